#include "desktop/shell/header_bar.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>
#include <QToolButton>
#include <algorithm>

#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

// In pixels at the usual size of text.
constexpr int SlotWidth = 66;
constexpr int CandidatureSlotWidth = 94;
constexpr int ButtonWidth = 58;
constexpr int NameFont = 18;
constexpr int NarrowWindow = 1200;     // the name and `Information` go
constexpr int NarrowestWindow = 1100;  // slots show their picture alone

// The plane of a group of slots; a hidden slot leaves a dashed well.
class Tray : public QFrame {
 public:
  Tray(const Theme& theme, QWidget* parent) : QFrame(parent), theme_(theme) {
    setProperty("tray", true);
    setFixedHeight(IconTile::Height() + 4);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2, 2, 2, 2);
    row->setSpacing(2);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme_.Color(QStringLiteral("line2")), 1, Qt::DashLine));
    for (const auto* slot : findChildren<IconTile*>(QString(), Qt::FindDirectChildrenOnly))
      if (slot->isHidden())
        painter.drawRoundedRect(QRectF(slot->geometry()).adjusted(14.5, 9.5, -14.5, -9.5), 6, 6);
  }

 private:
  const Theme& theme_;
};

QString IconOf(const MenuSlot& slot) {
  switch (slot.picture) {
    case SlotPicture::None:
    case SlotPicture::ImageNew:
      return QStringLiteral("new");
    case SlotPicture::ImageCV:
      return QStringLiteral("cv");
    case SlotPicture::CVWord:
      return QStringLiteral("cv-word");
    case SlotPicture::CVPDF:
      return QStringLiteral("cv-pdf");
    case SlotPicture::ImageLettre:
      return QStringLiteral("letter");
    case SlotPicture::ImageCandidature:
    case SlotPicture::ImageCandidatureSel:
      break;
  }
  return QStringLiteral("case");
}

}  // namespace

HeaderBar::HeaderBar(Principale& principale, const Theme& theme, QWidget* parent)
    : QFrame(parent), principale_(principale), theme_(theme) {
  setObjectName(QStringLiteral("Entete"));
  setFixedHeight(IconTile::Height() + 12);
  // A menu that opened at once would swallow the second click.
  constexpr int LongestWait = 250;
  doubleClick_.setSingleShot(true);
  doubleClick_.setInterval(std::min(LongestWait, QApplication::doubleClickInterval()));
  connect(&doubleClick_, &QTimer::timeout, this, [this] {
    if (OnSlotClick) OnSlotClick(clicked_);
  });
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 0, 12, 0);
  row->setSpacing(8);

  MakeLogo();
  row->addWidget(logo_);
  row->addWidget(
      MakeButton(QStringLiteral("menu"), tr("&Menu"), QStringLiteral("Label2"), &HeaderBar::OnMenu));
  row->addWidget(MakeTray(0, Principale::FirstLetterSlot, tr("CV")));
  row->addWidget(MakeTray(Principale::FirstLetterSlot, Principale::CandidatureSlot, tr("Modèles de lettre")));
  row->addWidget(MakeTray(Principale::CandidatureSlot, slots_.size(), tr("Candidatures")));

  information_ = new QLabel(this);
  information_->setObjectName(QStringLiteral("Information"));
  information_->setTextFormat(Qt::PlainText);
  information_->setMinimumWidth(0);
  information_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  information_->setWordWrap(true);
  information_->installEventFilter(this);
  row->addWidget(information_, 1);

  row->addWidget(
      MakeButton(QStringLiteral("print"), tr("Imprimer"), QStringLiteral("Image7"), &HeaderBar::OnPrint));
  row->addWidget(
      MakeButton(QStringLiteral("save"), tr("Sa&uver"), QStringLiteral("Label3"), &HeaderBar::OnSave));
}

void HeaderBar::MakeLogo() {
  logo_ = new QToolButton(this);
  logo_->setObjectName(QStringLiteral("Logo"));
  logo_->setProperty("role", QStringLiteral("flat"));
  logo_->setText(QStringLiteral("Talvor"));
  logo_->setAccessibleName(tr("Talvor, à propos"));
  logo_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  QFont face = logo_->font();
  face.setPixelSize(TextPixels(NameFont));
  face.setWeight(QFont::DemiBold);
  logo_->setFont(face);
  logo_->setStyleSheet(QStringLiteral("QToolButton { font-size: %1px; font-weight: 600; padding: 2px; }")
                           .arg(TextPixels(NameFont)));
  constexpr int Side = 34;
  QPixmap picture(Side * 2, Side * 2);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  QSvgRenderer(QStringLiteral(":/icons/logo.svg")).render(&painter);
  painter.end();
  picture.setDevicePixelRatio(2);
  logo_->setIcon(picture);
  logo_->setIconSize({Side, Side});
  connect(logo_, &QToolButton::clicked, this, [this] {
    if (OnLogo) OnLogo();
  });
}

IconTile* HeaderBar::MakeButton(const QString& icon, const QString& caption, const QString& name,
                                std::function<void()> HeaderBar::* click) {
  // A wide font widens the button rather than cut its caption.
  QFont face = font();
  face.setPixelSize(TextPixels(IconTile::CaptionFont));
  constexpr int Margin = 10;
  const int needed = QFontMetrics(face).size(Qt::TextShowMnemonic, caption).width() + Margin;
  auto* button = new IconTile(theme_, {std::max(ButtonWidth, needed), IconTile::Height()}, this);
  button->setObjectName(name);
  button->setText(caption);
  button->SetLook({.icon = icon});
  connect(button, &QAbstractButton::clicked, this, [this, click] {
    if (this->*click) (this->*click)();
  });
  return button;
}

QWidget* HeaderBar::MakeTray(std::size_t from, std::size_t to, const QString& name) {
  auto* tray = new Tray(theme_, this);
  tray->setAccessibleName(name);
  for (std::size_t i = from; i < to; ++i) {
    firstOfTray_[i] = from;
    endOfTray_[i] = to;
    MakeSlot(i, tray);
  }
  return tray;
}

void HeaderBar::MakeSlot(std::size_t index, QWidget* tray) {
  const int wide = index == Principale::CandidatureSlot ? CandidatureSlotWidth : SlotWidth;
  auto* slot = new IconTile(theme_, {TextPixels(wide), IconTile::Height()}, tray);
  slot->setObjectName(QStringLiteral("ImageMenu%1").arg(index));
  QSizePolicy policy = slot->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  slot->setSizePolicy(policy);
  // A tray is one stop of the Tab key; the arrows move inside it.
  slot->setFocusPolicy(index == firstOfTray_[index] ? Qt::StrongFocus : Qt::ClickFocus);
  ConnectSlot(index, *slot);
  tray->layout()->addWidget(slot);
  slots_[index] = slot;
}

void HeaderBar::ConnectSlot(std::size_t index, IconTile& slot) {
  const auto run = [this, index](std::function<void(std::size_t)> HeaderBar::* action) {
    doubleClick_.stop();
    if (this->*action) (this->*action)(index);
  };
  slot.OnHover = [this, index](bool over) { HoverSlot(index, over); };
  slot.OnArrow = [this, index](int step) { MoveFocus(index, step); };
  slot.OnOpen = [run] { run(&HeaderBar::OnSlotOpen); };
  slot.OnMenu = [run] { run(&HeaderBar::OnSlotClick); };
  slot.OnKey = [run](int key) {
    run(key == Qt::Key_F2 ? &HeaderBar::OnSlotRename : &HeaderBar::OnSlotDelete);
  };
  connect(&slot, &QAbstractButton::clicked, this, [this, index, run, &slot] {
    if (!slot.ByPointer()) return run(&HeaderBar::OnSlotClick);
    clicked_ = index;
    doubleClick_.start();
  });
}

void HeaderBar::MoveFocus(std::size_t index, int step) {
  const std::size_t from = firstOfTray_[index];
  const std::size_t count = endOfTray_[index] - from;
  std::size_t next = index;
  do {
    next = from + (next - from + count + static_cast<std::size_t>(step + static_cast<int>(count))) % count;
  } while (next != index && slots_[next]->isHidden());
  slots_[index]->setFocusPolicy(Qt::ClickFocus);
  slots_[next]->setFocusPolicy(Qt::StrongFocus);
  slots_[next]->setFocus(Qt::TabFocusReason);
}

void HeaderBar::HoverSlot(std::size_t index, bool over) {
  if (index == Principale::CandidatureSlot) HoverCandidatures(principale_, over);
  if (over && width() >= TextPixels(NarrowWindow)) ShowInformation(SlotInformation(principale_, index));
}

void HeaderBar::ShowInformation(TextView text) { information_->setText(ToQt(text)); }

// A file that is open in the form at the front.
bool HeaderBar::IsCurrent(std::size_t index, TextView page) const {
  if (index == Principale::CandidatureSlot) return page == CandidatureForm;
  const bool letter = index >= Principale::FirstLetterSlot;
  if (!askOpenFile || page != (letter ? LetterForm : EditorForm)) return false;
  const Text& name = principale_.ImageMenu[index].toolTip;
  return !name.empty() && name == askOpenFile(page);
}

void HeaderBar::Refresh(TextView page) {
  page_ = page;
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    const MenuSlot& slot = principale_.ImageMenu[i];
    const Text name = slot.toolTip;
    const bool candidatures = i == Principale::CandidatureSlot;
    slots_[i]->SetLook({.icon = IconOf(slot),
                        .caption = ToQt(SlotCaption(principale_, i)),
                        .badge = ToQt(KindInName(name)),
                        .current = IsCurrent(i, page),
                        .free = slot.picture == SlotPicture::ImageNew && !candidatures});
    slots_[i]->setToolTip(ToolTipText(name));
    slots_[i]->setAccessibleName(ToQt(name.empty() ? SlotInformation(principale_, i) : name));
    slots_[i]->setVisible(slot.visible || candidatures);
  }
}

void HeaderBar::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  const bool narrow = width() < TextPixels(NarrowWindow);
  if (narrow) information_->clear();
  logo_->setToolButtonStyle(narrow ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
  for (IconTile* slot : slots_) slot->SetCompact(width() < TextPixels(NarrowestWindow));
}

// A pointer over the label empties it.
bool HeaderBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched == information_ && event->type() == QEvent::Enter) information_->clear();
  return QFrame::eventFilter(watched, event);
}

}  // namespace talvor
