#include "desktop/browser/browser_pane.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWebEngineView>
#include <algorithm>
#include <cmath>

#include "desktop/widgets/pane.h"

namespace talvor {
namespace {

constexpr int LeastWidth = 284;
constexpr int StripEdges = 24;
constexpr int ToolSide = 28;
constexpr int GaugeFull = 1300;

QProgressBar* MakeProgress(const QString& name, const QString& accessible, int height, QWidget* parent) {
  auto* bar = new QProgressBar(parent);
  bar->setObjectName(name);
  bar->setAccessibleName(accessible);
  bar->setTextVisible(false);
  bar->setFixedHeight(height);
  return bar;
}

}  // namespace

BrowserPane::BrowserPane(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setObjectName(QStringLiteral("CadreWeb"));
  setProperty("plane", QStringLiteral("surface"));
  setProperty("pane", true);
  setAttribute(Qt::WA_StyledBackground);
  setAccessibleName(tr("Navigateur"));
  setMinimumWidth(TextPixels(LeastWidth));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeBar());
  column->addWidget(MakeLine(theme, this));
  constexpr int ProgressHeight = 3;
  progress_ = MakeProgress(QStringLiteral("Progression"), tr("Chargement"), ProgressHeight, this);
  progress_->hide();
  column->addWidget(progress_);
  column->addWidget(MakeStrip());
  offer_ = new DownloadBar(theme, this);
  offer_->OnSave = [this] { Act(&Actions::save); };
  offer_->OnDismiss = [this] { Act(&Actions::dismiss); };
  column->addWidget(offer_);
  place_ = new QWidget(this);
  pages_ = new QStackedLayout(place_);
  pages_->addWidget(new QWidget(place_));
  notice_ = new PageNotice(theme, place_);
  notice_->OnReload = [this] { Act(&Actions::reload); };
  pages_->addWidget(notice_);
  column->addWidget(place_, 1);
  sites_ = new SiteList(theme, this);
  sites_->OnSite = [this](std::size_t row) {
    if (on.site) on.site(row);
  };
  sites_->OnLeave = [this] { Act(&Actions::leaveSites); };
}

void BrowserPane::Act(std::function<void()> Actions::* action) {
  const auto act = on.*action;  // the pane may be gone before it returns
  if (act) act();
}

QToolButton* BrowserPane::AddTool(QBoxLayout& row, const QString& name, const QString& icon,
                                  const QString& text, const QKeySequence& key,
                                  std::function<void()> Actions::* action) {
  constexpr int IconSide = 18;
  auto* tool = new QToolButton(this);
  tool->setObjectName(name);
  tool->setProperty("role", QStringLiteral("flat"));
  tool->setFixedSize(TextPixels(ToolSide), TextPixels(ToolSide) + 2);
  tool->setAccessibleName(text);
  tool->setToolTip(text);
  tool->setFocusPolicy(Qt::TabFocus);
  TintIcon(theme_, *tool, icon, QStringLiteral("text"), IconSide);
  const auto act = [this, action] { Act(action); };
  connect(tool, &QToolButton::clicked, this, act);
  if (!key.isEmpty()) connect(new QShortcut(key, this), &QShortcut::activated, tool, act);
  row.addWidget(tool);
  return tool;
}

QWidget* BrowserPane::MakeBar() {
  auto* bar = new QWidget(this);
  bar->setFixedHeight(TextPixels(43));
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(8, 0, 8, 0);
  row->setSpacing(2);
  back_ = AddTool(*row, QStringLiteral("Précédent"), QStringLiteral("left"), tr("Précédent"),
                  Qt::ALT | Qt::Key_Left, &Actions::back);
  forward_ = AddTool(*row, QStringLiteral("Suivant"), QStringLiteral("right"), tr("Suivant"),
                     Qt::ALT | Qt::Key_Right, &Actions::forward);
  AddTool(*row, QStringLiteral("Image4"), QStringLiteral("menu"), tr("Page de départ"),
          Qt::ALT | Qt::Key_Home, &Actions::start);
  address_ = new QLineEdit(bar);
  address_->setObjectName(QStringLiteral("AdresseWeb"));
  address_->setAccessibleName(tr("Adresse de la page"));
  address_->installEventFilter(this);
  globe_ = address_->addAction(theme_.Icon(QStringLiteral("globe"), QStringLiteral("text2")),
                               QLineEdit::LeadingPosition);
  connect(&theme_, &Theme::Changed, globe_,
          [this] { globe_->setIcon(theme_.Icon(QStringLiteral("globe"), QStringLiteral("text2"))); });
  globe_->setToolTip(tr("Effacer les données des sites"));
  connect(globe_, &QAction::triggered, this, [this] { Act(&Actions::clear); });
  connect(address_, &QLineEdit::returnPressed, this, [this] { Act(&Actions::enter); });
  connect(new QShortcut(Qt::CTRL | Qt::Key_L, this), &QShortcut::activated, address_, [this] {
    address_->setFocus(Qt::ShortcutFocusReason);
    address_->selectAll();
  });
  row->addWidget(address_, 1);
  go_ = AddTool(*row, QStringLiteral("Go"), QStringLiteral("go"), tr("Go"), {}, &Actions::go);
  stop_ = AddTool(*row, QStringLiteral("Arreter"), QStringLiteral("cross"), tr("Arrêter le chargement"), {},
                  &Actions::stop);
  stop_->hide();
  AddTool(*row, QStringLiteral("Image6"), QStringLiteral("list"), tr("Sites d’emploi"), Qt::Key_F4,
          &Actions::sites);
  open_ = AddTool(*row, QStringLiteral("Image5"), QStringLiteral("strip"), tr("Barre de capture"), {},
                  &Actions::strip);
  return bar;
}

QPushButton* BrowserPane::AddLink(const QString& icon, const QString& text, const QString& name,
                                  std::function<void()> Actions::* action) {
  QPushButton* link = MakeLink(theme_, icon, text, name, stripContent_);
  // The page keeps its selection and its field.
  link->setFocusPolicy(Qt::TabFocus);
  connect(link, &QPushButton::clicked, this, [this, action] { Act(action); });
  links_->addWidget(link, 0, Qt::AlignLeft);
  return link;
}

QWidget* BrowserPane::MakeStrip() {
  strip_ = MakePlane(QStringLiteral("window"), this);
  strip_->setObjectName(QStringLiteral("FrameWeb"));
  strip_->setAccessibleName(tr("Barre de capture"));
  // The content hangs from the bottom of the strip and slides down with it.
  stripContent_ = new QWidget(strip_);
  auto* column = new QVBoxLayout(stripContent_);
  column->setContentsMargins(12, 8, 12, 4);
  column->setSpacing(2);
  auto* level = new QHBoxLayout;
  level->setSpacing(10);
  constexpr int GaugeHeight = 10;
  gauge_ = MakeProgress(QStringLiteral("Niveau"), tr("Niveau"), GaugeHeight, stripContent_);
  gauge_->setRange(0, GaugeFull);
  level->addWidget(MakeLabel(tr("Niveau"), gauge_, stripContent_));
  level->addWidget(gauge_, 1);
  column->addLayout(level);
  links_ = new QBoxLayout(QBoxLayout::LeftToRight);
  links_->setSpacing(0);
  links_->setContentsMargins(0, 0, 0, 0);
  AddLink(QStringLiteral("capture"), tr("C&apturer l'annonce"), QStringLiteral("CaptureSel"),
          &Actions::capture);
  AddLink(QStringLiteral("prefill"), tr("P&réremplir les champs"), QStringLiteral("LienPreremplir"),
          &Actions::prefill);
  bring_ = AddLink(QStringLiteral("bring"), tr("Rapatrier la &fenêtre"), QStringLiteral("LienRapatrier"),
                   &Actions::bring);
  bring_->hide();
  column->addLayout(links_);
  strip_->setFixedHeight(0);
  strip_->hide();
  return strip_;
}

QWebEngineView* BrowserPane::MakeView() {
  if (view_ != nullptr) return view_;
  view_ = new QWebEngineView(place_);
  view_->setObjectName(QStringLiteral("WebBrowser1"));
  view_->setAccessibleName(tr("Page"));
  pages_->addWidget(view_);
  pages_->setCurrentWidget(view_);
  return view_;
}

void BrowserPane::Show(const FormCandWeb& web) {
  if (bring_->isHidden() == web.BringLinkVisible) bring_->setVisible(web.BringLinkVisible);
  ShowStrip(web.StripPlace);
  ShowGauge(web.Niveau);
  ShowSites(web.SiteListVisible);
}

// Between its two places the strip shows the part that its top has uncovered.
void BrowserPane::ShowStrip(int top) {
  top_ = top;
  constexpr int Way = FormCandWeb::StripOpen - FormCandWeb::StripClosed;
  const int wide = strip_->width();
  links_->setDirection(QBoxLayout::LeftToRight);
  if (links_->sizeHint().width() + StripEdges > wide) links_->setDirection(QBoxLayout::TopToBottom);
  int widest = TextPixels(LeastWidth);
  for (int i = 0; i < links_->count(); ++i)
    if (!links_->itemAt(i)->isEmpty())
      widest = std::max(widest, links_->itemAt(i)->minimumSize().width() + StripEdges);
  setMinimumWidth(std::max(widest, layout()->minimumSize().width()));
  stripContent_->layout()->invalidate();
  const int whole = stripContent_->layout()->sizeHint().height();
  const int high = whole * (top - FormCandWeb::StripClosed) / Way;
  strip_->setFixedHeight(high);
  strip_->setVisible(high > 0);
  stripContent_->setGeometry(0, high - whole, wide, whole);
}

void BrowserPane::ShowGauge(double width) {
  // A width of 1 is the empty gauge.
  const int value = width <= 1 ? 0 : std::min(GaugeFull, static_cast<int>(std::lround(width)));
  if (gauge_->value() == value && !gauge_->accessibleDescription().isEmpty()) return;
  gauge_->setValue(value);
  gauge_->setAccessibleDescription(
      value == 0 ? tr("La page ne ressemble pas à une annonce.")
                 : tr("La page ressemble à une annonce, à %1 pour cent.").arg(value * 100 / GaugeFull));
}

void BrowserPane::ShowSites(bool shown) {
  if (shown == sites_->isVisible()) return;
  if (!shown) return sites_->hide();
  sites_->Open(place_->mapToGlobal(QPoint(place_->width() - 10, 8)), place_->width() - 20);
}

void BrowserPane::ShowState(const WebState& state) {
  progress_->setVisible(state.loading);
  progress_->setValue(state.progress);
  stop_->setVisible(state.loading);
  ShowBar();
  back_->setEnabled(state.back);
  forward_->setEnabled(state.forward);
  offer_->ShowText(state.offer);
  notice_->ShowText(state.notice);
  if (!state.notice.isEmpty())
    pages_->setCurrentWidget(notice_);
  else if (view_ != nullptr)
    pages_->setCurrentWidget(view_);
  setCursor(state.loading ? Qt::BusyCursor : Qt::ArrowCursor);
}

bool BrowserPane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == address_ && event->type() == QEvent::MouseButtonPress) Act(&Actions::address);
  return QWidget::eventFilter(watched, event);
}

void BrowserPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShowBar();
  ShowStrip(top_);
}

// A narrow bar keeps its room for the address, where Enter does what Go does.
void BrowserPane::ShowBar() {
  constexpr int NarrowWidth = 340;
  const bool wide = width() >= NarrowWidth;
  go_->setVisible(wide && stop_->isHidden());
  globe_->setVisible(wide);
}

}  // namespace talvor
