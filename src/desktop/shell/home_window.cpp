#include "desktop/shell/home_window.h"

#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/shell/road_picture.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int RowWidth = 600;
constexpr int TextLeft = 92;
constexpr int TextRight = 52;
constexpr int TitleFont = 17;
constexpr int TitleHeight = 27;
constexpr int LineHeight = 18;
constexpr int SideWidth = 408;
constexpr int LeastSide = 320;  // where it has not even that, the right column goes below the rows
constexpr int Margin = 24;
constexpr int Gap = 56;

struct RowLook {
  const char16_t* title;
  const char16_t* icon;
  const char16_t* mnemonic;  // the part of the title that begins with it
};

constexpr std::array<RowLook, 11> Looks{{
    {u"Rédiger un Curriculum Vitae", u"cv", u"Curriculum"},
    {u"Rédiger un modèle de lettre", u"letter", u"lettre"},
    {u"Gérer les candidatures", u"case", u"Gérer"},
    {u"Statistiques, calendrier et alertes", u"calendar", u"Stat"},
    {u"Réaliser un nouveau CV", u"doc-new", u"nouveau"},
    {u"Rattacher un CV existant", u"clip", u"xistant"},
    {u"Réaliser un nouveau modèle de lettre", u"doc-new", u"nouveau"},
    {u"Gestion manuelle des candidatures", u"case", u"Gestion"},
    {u"Recherche des offres sur Internet", u"globe", u"Internet"},
    {u"Justificatif de recherche d'emploi", u"print", u"Justificatif"},
    {u"Retour au menu principal", u"undo", u"our"},
}};

const RowLook* LookOf(TextView title) {
  for (const RowLook& look : Looks)
    if (title == look.title) return &look;
  return nullptr;
}

QFont Sized(QFont font, int pixels, QFont::Weight weight) {
  font.setPixelSize(TextPixels(pixels));
  font.setWeight(weight);
  return font;
}

}  // namespace

HomeRowButton::HomeRowButton(const Theme& theme, QWidget* parent) : CardButton(theme, parent) {}

QSize HomeRowButton::sizeHint() const { return {TextPixels(RowWidth), minimumSizeHint().height()}; }

// The title stands on one line, the explanation on two at most.
QSize HomeRowButton::minimumSizeHint() const {
  constexpr int Air = 33;
  constexpr int LeastWidth = 440;
  const QFontMetrics title(Sized(font(), TitleFont, QFont::DemiBold));
  return {std::max(LeastWidth,
                   TextLeft + TextRight + title.size(Qt::TextShowMnemonic, text()).width() + 2 * TextGap),
          TextPixels(TitleHeight) + 2 * TextPixels(LineHeight) + Air};
}

void HomeRowButton::SetRow(const QString& icon, const HomeRow& row, qsizetype mnemonic) {
  icon_ = icon;
  row_ = row;
  QString text = ToQt(row.title).replace(QLatin1Char('&'), QLatin1String("&&"));
  if (mnemonic >= 0) text.insert(mnemonic, QLatin1Char('&'));
  setText(text);
  setAccessibleName(ToQt(row.title));
  setAccessibleDescription(ToQt(row.explanation));
  update();
}

void HomeRowButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintCard(painter, QStringLiteral("line"));
  constexpr int Tile = 52;
  constexpr int Picture = 24;
  const QRect tile(21, (height() - Tile) / 2, Tile, Tile);
  PaintTile(painter, tile, icon_, Picture);

  const QFont plain = Sized(font(), 13, QFont::Normal);
  const QString explanation = ToQt(row_.explanation);
  const QRect room(TextLeft, 0, width() - TextLeft - TextRight, 2 * TextPixels(LineHeight));
  const int lines = QFontMetrics(plain).boundingRect(room, Qt::TextWordWrap, explanation).height();
  const int title = TextPixels(TitleHeight);
  const int middle = height() / 2;
  const int top = middle - (title + std::min(lines, room.height())) / 2;
  painter.setFont(Sized(font(), TitleFont, QFont::DemiBold));
  painter.setPen(Look().Color(QStringLiteral("text")));
  painter.drawText(QRect(room.left(), top, room.width(), title),
                   Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, text());
  painter.setFont(plain);
  painter.setPen(Look().Color(QStringLiteral("text2")));
  painter.drawText(room.translated(0, top + title), Qt::AlignTop | Qt::TextWordWrap, explanation);
  painter.drawPixmap(width() - 42, middle - 10,
                     Look().Pixmap(QStringLiteral("chev-r"), QStringLiteral("text2"), 20));
}

HomeWindow::HomeWindow(AssistantTexte& panel, const Theme& theme, QWidget* parent)
    : QWidget(parent), panel_(panel), theme_(theme) {
  setObjectName(QStringLiteral("AssistantTexte"));
  setProperty("plane", QStringLiteral("window"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  auto* columns = columns_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
  columns->setContentsMargins(Margin, Margin, Margin, Margin);
  columns->setSpacing(Gap);
  columns->addStretch(1);

  auto* left = new QVBoxLayout;
  left->setSpacing(8);
  left->addStretch(1);
  auto* question = new QLabel(tr("Vous souhaitez..."), this);
  question->setProperty("role", QStringLiteral("hero"));
  left->addWidget(question);
  left->addSpacing(10);
  left->addWidget(MakeRows());
  left->addStretch(1);
  columns->addLayout(left, 8);

  side_ = new QWidget(this);
  auto* right = new QVBoxLayout(side_);
  right->setContentsMargins(0, 0, 0, 0);
  right->setSpacing(16);
  right->addStretch(1);
  road_ = new RoadPicture(theme, side_);
  right->addWidget(road_);
  right->addWidget(MakeCounts());
  right->addStretch(1);
  columns->addWidget(side_);
  columns->addStretch(1);
  constexpr int TickMilliseconds = 16;
  slideTimer_.setInterval(TickMilliseconds);
  connect(&slideTimer_, &QTimer::timeout, this, [this] { Slide(); });
  Refresh();
}

QWidget* HomeWindow::MakeRows() {
  auto* box = new QWidget(this);
  fade_ = new QGraphicsOpacityEffect(box);
  box->setGraphicsEffect(fade_);
  rowsColumn_ = new QVBoxLayout(box);
  rowsColumn_->setContentsMargins(0, 0, 0, 0);
  rowsColumn_->setSpacing(8);
  for (HomeRowButton*& row : rows_) {
    row = new HomeRowButton(theme_, box);
    row->setMaximumWidth(TextPixels(RowWidth) + 4);
    row->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(row, &QAbstractButton::clicked, this, [this, row] { Click(*row); });
    rowsColumn_->addWidget(row);
  }
  return box;
}

// A system without animations has the rows in their place at once.
void HomeWindow::BeginSlide() {
  if (style()->styleHint(QStyle::SH_Widget_Animate, nullptr, this) == 0)
    while (panel_.Slide()) continue;
  slideTimer_.start();
  Slide();
}

void HomeWindow::Slide() {
  const int ecart = panel_.RowOffset;
  rowsColumn_->setContentsMargins(ecart, 0, 0, 0);
  fade_->setOpacity(1 - static_cast<double>(ecart) / (AssistantTexte::FarthestRowOffset + 1));
  fade_->setEnabled(ecart > 0);
  if (ecart == 0) return slideTimer_.stop();
  static_cast<void>(panel_.Slide());
}

QWidget* HomeWindow::MakeCounts() {
  auto* card = new QFrame(side_);
  card->setProperty("card", true);
  auto* lines = new QVBoxLayout(card);
  lines->setContentsMargins(20, 6, 20, 6);
  lines->setSpacing(0);
  for (std::size_t i = 0; i < counts_.size(); ++i) {
    if (i > 0) lines->addWidget(MakeLine(theme_, card));
    auto* line = new QHBoxLayout;
    line->setContentsMargins(0, 11, 0, 11);
    countNames_[i] = new QLabel(card);
    countNames_[i]->setProperty("role", QStringLiteral("label"));
    counts_[i] = new QLabel(card);
    counts_[i]->setStyleSheet(QStringLiteral("font-size: %1px; font-weight: 600;").arg(TextPixels(20)));
    line->addWidget(countNames_[i], 1);
    line->addWidget(counts_[i]);
    lines->addLayout(line);
  }
  return card;
}

void HomeWindow::Click(const HomeRowButton& button) {
  const QPointer<HomeWindow> self(this);
  const Text title = button.Row().title;
  const auto acted = OnActed;
  panel_.Choose(title);
  if (!self) {
    if (acted) acted();
    return;
  }
  Refresh();
  if (OnActed) OnActed();
}

void HomeWindow::Refresh() {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const HomeRow row = i < panel_.Rows.size() ? panel_.Rows[i] : HomeRow{};
    const RowLook* look = LookOf(row.title);
    const QString fileIcon =
        panel_.level == AssistantTexte::Level::CV ? QStringLiteral("cv") : QStringLiteral("letter");
    rows_[i]->SetRow(look == nullptr ? fileIcon : QString::fromUtf16(look->icon), row,
                     look == nullptr ? -1 : ToQt(row.title).indexOf(QString::fromUtf16(look->mnemonic)));
    rows_[i]->setVisible(!row.title.empty());
  }
  PlaceSide();
  if (panel_.RowOffset > 0 && !slideTimer_.isActive()) BeginSlide();
  const QStringList lines = ShownText(panel_.Compteurs).split(QLatin1Char('\n'));
  for (std::size_t i = 0; i < counts_.size(); ++i) {
    const QString line = lines.value(static_cast<qsizetype>(i));
    const qsizetype colon = line.indexOf(QLatin1Char(':'));
    countNames_[i]->setText(line.left(colon + 1));
    const QString count = line.mid(colon + 1).trimmed();
    counts_[i]->setText(count.isEmpty() ? QStringLiteral("0") : count);
  }
}

void HomeWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  rows_.front()->setFocus(Qt::OtherFocusReason);
}

int HomeWindow::RowsWidth() const {
  int widest = 0;
  for (const HomeRowButton* row : rows_)
    if (!row->isHidden()) widest = std::max(widest, row->minimumSizeHint().width());
  return widest;
}

// Of the narrowest arrangement, so that a window may become narrow.
QSize HomeWindow::minimumSizeHint() const {
  return {std::max(RowsWidth(), side_->minimumSizeHint().width()) + 2 * Margin,
          columns_->minimumSize().height()};
}

// The rows shrink first, then the right column narrows, then it goes below them.
void HomeWindow::PlaceSide() {
  constexpr int Slack = 2;  // of the shares that the layout rounds
  const int room = width() - RowsWidth() - Gap - 2 * Margin - Slack;
  const bool below = room < std::max(LeastSide, side_->minimumSizeHint().width());
  columns_->setDirection(below ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  side_->setFixedWidth(below ? std::min(TextPixels(SideWidth), width() - 2 * Margin)
                             : std::min(TextPixels(SideWidth), room));
  updateGeometry();
}

void HomeWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceSide();
}

}  // namespace talvor
