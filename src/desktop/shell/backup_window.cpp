#include "desktop/shell/backup_window.h"

#include <algorithm>

#include <QCloseEvent>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QProgressBar>
#include <QVBoxLayout>

#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int WindowWidth = 572;
constexpr int Tile = 40;
constexpr int TextLeft = 69;
constexpr int TextRight = 42;
constexpr int Padding = 13;
constexpr int TitleHeight = 20;

struct LinkLook {
  const char16_t* icon;
  const char16_t* mnemonic;  // the part of the text that begins with it
  bool (FormLoadSave::*action)();
};

constexpr std::array<LinkLook, 3> Looks{{
    {u"save", u"copie", &FormLoadSave::Sauver},
    {u"restore", u"Restaurer", &FormLoadSave::Charger},
    {u"relocate", u"Travailler", &FormLoadSave::Nouvel},
}};

}  // namespace

BackupLink::BackupLink(const Theme& theme, const FormLoadSave::Link& link, const QString& icon,
                       qsizetype mnemonic, QWidget* parent)
    : CardButton(theme, parent), icon_(icon), explanation_(ToQt(link.explanation)) {
  setObjectName(ToQt(link.name));
  setText(ToQt(link.text).insert(mnemonic, QLatin1Char('&')));
  setAccessibleName(ToQt(link.text));
  setAccessibleDescription(explanation_);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QFont BackupLink::Title() const {
  QFont face = font();
  face.setPixelSize(TextPixels(14));
  face.setWeight(QFont::DemiBold);
  face.setUnderline(underMouse() || hasFocus());
  return face;
}

QRect BackupLink::TextRoom(int width) const {
  const QRect room(TextLeft, 0, width - TextLeft - TextRight, 1000);
  return fontMetrics().boundingRect(room, Qt::TextWordWrap, explanation_);
}

int BackupLink::heightForWidth(int width) const {
  return std::max(Tile, TextPixels(TitleHeight) + TextRoom(width).height()) + 2 * Padding;
}

QSize BackupLink::sizeHint() const {
  const int wide = TextPixels(WindowWidth) - 40;
  return {wide, heightForWidth(wide)};
}

QSize BackupLink::minimumSizeHint() const {
  const int title = QFontMetrics(Title()).size(Qt::TextShowMnemonic, text()).width();
  return {title + TextLeft + TextRight, Tile + 2 * Padding};
}

void BackupLink::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintCard(painter, QStringLiteral("line2"));
  constexpr int Picture = 22;
  PaintTile(painter, {15, (height() - Tile) / 2, Tile, Tile}, icon_, Picture);

  const int title = TextPixels(TitleHeight);
  const int texts = title + TextRoom(width()).height();
  const int top = (height() - texts) / 2;
  const int room = width() - TextLeft - TextRight;
  painter.setFont(Title());
  painter.setPen(Ink(QStringLiteral("primary")));
  painter.drawText(QRect(TextLeft, top, room, title), Qt::AlignVCenter | Qt::TextShowMnemonic, text());
  painter.setFont(font());
  painter.setPen(Ink(QStringLiteral("text2")));
  painter.drawText(QRect(TextLeft, top + title, room, texts - title + 2), Qt::TextWordWrap, explanation_);
  painter.drawPixmap(width() - 34, height() / 2 - 9,
                     Look().Pixmap(QStringLiteral("chev-r"),
                                   isEnabled() ? QStringLiteral("text2") : QStringLiteral("edge"), 18));
}

BackupWindow::BackupWindow(FormLoadSave& form, const Theme& theme, QWidget* parent)
    : ScrollingDialog(parent), form_(form), theme_(theme) {
  setObjectName(QStringLiteral("FormLoadSave"));
  setWindowTitle(ToQt(FormLoadSave::Title));
  SetWanted({TextPixels(WindowWidth), 0});
  auto* column = new QVBoxLayout(Body());
  column->setContentsMargins(20, 18, 20, 16);
  column->setSpacing(10);
  auto* explanation = new QLabel(ToQt(FormLoadSave::Explanation), this);
  explanation->setWordWrap(true);
  column->addWidget(explanation);
  column->addSpacing(6);
  AddLinks(*column);
  column->addWidget(MakeProgress());
  column->addSpacing(6);
  close_ = new BoutonTLV(theme, tr("&Fermer"), this);
  close_->setObjectName(QStringLiteral("BoutonTLV1"));
  close_->setAutoDefault(false);
  connect(close_, &QPushButton::clicked, this, [this] { Do([&] { form_.Close(); }); });
  column->addWidget(close_, 0, Qt::AlignRight);
  Refresh();
}

void BackupWindow::AddLinks(QLayout& column) {
  for (std::size_t i = 0; i < Looks.size(); ++i) {
    const FormLoadSave::Link& link = FormLoadSave::Links[i];
    const qsizetype mnemonic = ToQt(link.text).indexOf(QString::fromUtf16(Looks[i].mnemonic));
    links_[i] = new BackupLink(theme_, link, QString::fromUtf16(Looks[i].icon), mnemonic, this);
    connect(links_[i], &QAbstractButton::clicked, this,
            [this, i] { Do([&] { static_cast<void>((form_.*Looks[i].action)()); }); });
    column.addWidget(links_[i]);
  }
}

QWidget* BackupWindow::MakeProgress() {
  copying_ = new QWidget(this);
  auto* column = new QVBoxLayout(copying_);
  column->setContentsMargins(2, 6, 2, 0);
  column->setSpacing(6);
  count_ = new QLabel(copying_);
  count_->setObjectName(QStringLiteral("Avancement"));
  bar_ = new QProgressBar(copying_);
  bar_->setTextVisible(false);
  bar_->setAccessibleName(tr("Avancement de la copie"));
  constexpr int Thousandths = 1000;
  bar_->setRange(0, Thousandths);
  column->addWidget(count_);
  column->addWidget(bar_);
  return copying_;
}

void BackupWindow::Do(const std::function<void()>& action) {
  const QPointer<BackupWindow> self(this);
  const auto acted = OnActed;
  action();
  if (self) Refresh();
  if (acted) acted();
}

void BackupWindow::Refresh() {
  const CopyProgress& now = form_.progress;
  const bool shown = form_.busy && now.fileCount > 0;
  for (BackupLink* link : links_) link->setEnabled(!form_.busy);
  close_->SetLibelle(form_.busy ? tr("&Annuler") : tr("&Fermer"));
  if (shown) {
    const QLocale french = locale();
    count_->setText(
        (now.files < 2 ? tr("Copie\u00A0: %1 fichier sur %2, %3 sur %4")
                       : tr("Copie\u00A0: %1 fichiers sur %2, %3 sur %4"))
            .arg(french.toString(static_cast<qulonglong>(now.files)),
                 french.toString(static_cast<qulonglong>(now.fileCount)),
                 french.formattedDataSize(static_cast<qint64>(now.bytes), 0, QLocale::DataSizeSIFormat),
                 french.formattedDataSize(static_cast<qint64>(now.byteCount), 0, QLocale::DataSizeSIFormat)));
    const double part =
        now.byteCount == 0 ? 1 : static_cast<double>(now.bytes) / static_cast<double>(now.byteCount);
    bar_->setValue(static_cast<int>(std::min(part, 1.0) * bar_->maximum()));
  }
  if (copying_->isHidden() == shown) {
    copying_->setVisible(shown);
    FitContent();
  }
}

// The window goes by its button's rule: a copy under way is stopped first and tells its end.
void BackupWindow::closeEvent(QCloseEvent* event) {
  const bool copying = form_.busy;
  form_.Close();
  event->setAccepted(!copying);
}

void BackupWindow::reject() { form_.Close(); }

}  // namespace talvor
