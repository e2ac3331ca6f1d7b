#include "desktop/platform/qt_dialogs.h"

#include <cstdint>
#include <filesystem>
#include <optional>

#include <QColorDialog>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include "base/line_file.h"
#include "desktop/platform/file_dialog.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

int Ask(QWidget* frame, QMessageBox::Icon icon, TextView text, QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, QStringLiteral("Talvor"), ToQt(text), buttons, frame);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Ok);
  return box.exec();
}

// «Label|*.a;*.b|Label|*.c» as Qt writes it: "Label (*.a *.b);;Label (*.c)", in capitals as well.
QString QtFilter(TextView filter) {
  const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
  QStringList kinds;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString label = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
    const QString patterns = QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
    kinds.append(QStringLiteral("%1 (%2 %3)").arg(label, patterns, patterns.toUpper()));
  }
  return kinds.join(QStringLiteral(";;"));
}

// The folder itself, or the nearest above it that exists: the dialog would take a missing one for the name
// of a file.
QString ExistingFolder(const QString& folder) {
  QString nearest = QDir::cleanPath(folder);
  while (!QFileInfo(nearest).isDir() && nearest.contains(QLatin1Char('/')))
    nearest.truncate(nearest.lastIndexOf(QLatin1Char('/')));
  return QFileInfo(nearest).isDir() ? nearest : QDir::rootPath();
}

// Where the desktops of this system mount what the user plugs in.
QStringList MountFolders() {
  const QString user = qEnvironmentVariable("USER");
  if (user.isEmpty()) return {};
  return {QStringLiteral("/media/") + user, QStringLiteral("/run/media/") + user};
}

// The folder where the dialog starts, with the proposed name.
QString Beginning(const FileQuestion& question) {
  const QString folder = question.folder.empty()
                             ? UsersFolder(MountFolders())
                             : ExistingFolder(ToQt(TextOf(question.folder).value_or(Text{})));
  return question.name.empty() ? folder : folder + QLatin1Char('/') + ToQt(question.name);
}

std::optional<std::filesystem::path> Answer(const QString& file) {
  if (file.isEmpty()) return std::nullopt;
  return PathOf(FromQt(file));
}

}  // namespace

QString UsersFolder(const QStringList& mountFolders) {
  for (const QString& folder : mountFolders) {
    const QStringList plugged =
        QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable | QDir::Executable);
    if (!plugged.isEmpty()) return plugged.size() == 1 ? folder + QLatin1Char('/') + plugged.first() : folder;
  }
  return QDir::homePath();
}

void QtDialogs::Tell(TextView message) { Ask(frame_, QMessageBox::Information, message, QMessageBox::Ok); }

bool QtDialogs::Confirm(TextView question) {
  return Ask(frame_, QMessageBox::Warning, question, QMessageBox::Ok | QMessageBox::Cancel) ==
         QMessageBox::Ok;
}

std::optional<std::filesystem::path> QtPickers::OpenFile(const FileQuestion& question) {
  return Answer(AskForFile(frame_, QFileDialog::AcceptOpen, ToQt(question.title), Beginning(question),
                           QtFilter(question.filter)));
}

std::optional<std::filesystem::path> QtPickers::SaveFile(const FileQuestion& question) {
  return Answer(AskForFile(frame_, QFileDialog::AcceptSave, ToQt(question.title), Beginning(question),
                           QtFilter(question.filter)));
}

std::optional<Colour> QtPickers::PickColour() {
  const QColor now = askCurrentColour ? askCurrentColour() : QColor();
  const QColor colour = QColorDialog::getColor(now.isValid() ? now : QColor(Qt::white), frame_);
  if (!colour.isValid()) return std::nullopt;
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  return Colour{part(colour.red()), part(colour.green()), part(colour.blue())};
}

}  // namespace talvor
