#include "desktop/platform/file_dialog.h"

#include <QDateTime>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QLocale>
#include <QTreeView>

#include "desktop/widgets/scrolling.h"

namespace talvor {
namespace {

// Sizes and dates as the program writes them: the model of Qt takes the language of the machine.
class FrenchColumns : public QIdentityProxyModel {
 public:
  using QIdentityProxyModel::QIdentityProxyModel;

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    enum Column { Size = 1, Date = 3 };
    const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (files == nullptr || role != Qt::DisplayRole) return QIdentityProxyModel::data(index, role);
    const QModelIndex file = mapToSource(index);
    if (index.column() == Size && !files->isDir(file)) return QLocale().formattedDataSize(files->size(file));
    if (index.column() == Date)
      return QLocale().toString(files->lastModified(file).toLocalTime(), QLocale::ShortFormat);
    return QIdentityProxyModel::data(index, role);
  }
};

// Dates and kinds are as wide as they read; a dialog of the desktop has no list of ours.
void ShowWhole(QFileDialog& dialog) {
  auto* list = dialog.findChild<QTreeView*>();
  if (list == nullptr) return;
  for (int column = 1; column < list->header()->count(); ++column)
    list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  constexpr QSize Size(860, 500);
  dialog.resize(Size.boundedTo(RoomOver(dialog.parentWidget())));
}

}  // namespace

QString AskForFile(QWidget* parent, QFileDialog::AcceptMode mode, const QString& title,
                   const QString& beginning, const QString& filter) {
  const QFileInfo start(beginning);
  QFileDialog dialog(parent, title, start.isDir() ? beginning : start.path(), filter);
  dialog.setProxyModel(new FrenchColumns(&dialog));
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (!start.isDir()) dialog.selectFile(start.fileName());
  ShowWhole(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

}  // namespace talvor
