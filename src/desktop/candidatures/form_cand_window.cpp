#include "desktop/candidatures/form_cand_window.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QSplitter>
#include <QStyle>
#include <algorithm>

namespace talvor {
namespace {

constexpr int ListWidth = 312;
constexpr int DetailWidth = 502;

}  // namespace

FormCandWindow::FormCandWindow(FormCand& form, FormCandCapture& capture, FormCandWeb& web,
                               WebBrowser& browser, const Theme& theme, QWidget* parent)
    : QWidget(parent), form_(form), capture_(capture), webModel_(web), browser_(browser), theme_(theme) {
  setObjectName(QStringLiteral("FormCand"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  splitter_ = new QSplitter(Qt::Horizontal, this);
  splitter_->setHandleWidth(6);
  splitter_->setChildrenCollapsible(false);
  list_ = new CandidatureListPane(form.Liste, theme, splitter_);
  detail_ = new CandidatureDetailPane(theme, splitter_);
  web_ = new BrowserPane(theme, splitter_);
  web_->hide();
  for (int i = 0; i < splitter_->count(); ++i) splitter_->setStretchFactor(i, i);
  row->addWidget(splitter_);

  Bind();
  ConnectList();
  ConnectDetail();
  ConnectWeb();

  constexpr int PasteWatchMilliseconds = 500;
  constexpr int SaveMilliseconds = 3000;
  connect(&watchTimer_, &QTimer::timeout, this, [this] { Tick500(); });
  connect(&saveTimer_, &QTimer::timeout, this, [this] { Tick3000(); });
  watchTimer_.start(PasteWatchMilliseconds);
  saveTimer_.start(SaveMilliseconds);
  shownVersion_ = form_.ListVersion;
  Refresh();
}

void FormCandWindow::Bind() {
  QLineEdit& interview = detail_->Interview();
  for (const auto& field : DetailFields) {
    if (field.text == &Candidature::Num) continue;  // not shown
    QWidget& widget = WidgetNamed(*detail_, field.name);
    binder_.Bind(widget, &widget == &interview ? form_.SaisieRDV.Texte : form_.*(field.text));
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) lines_.push_back(line);
  }
  binder_.Bind(web_->Address(), form_.AdresseWeb);
  binder_.OnEdited = [this, &interview](QWidget& field) {
    if (&field == &detail_->Statut()) detail_->ShowStatusDot(form_.Statut);
    if (&field == &interview) form_.SaisieRDV.Typed();
    ShowRefusal();
  };
  connect(&interview, &QLineEdit::editingFinished, this, [this] { Do([&] { form_.QuitterRDV(); }); });
}

void FormCandWindow::ConnectList() {
  list_->OnTri = [this](std::size_t index) { Do([&] { form_.SortBy(static_cast<Tri>(index)); }); };
  list_->OnToutSupprimer = [this] { Do([&] { form_.ToutSupprimer(); }); };
  list_->OnRechercher = [this](std::size_t index) { Do([&] { form_.Rechercher(index); }); };
  CandidatureTreeView& tree = list_->Tree();
  tree.OnPress = [this](bool right) { form_.BoutonDroit = right; };
  tree.OnNode = [this](TextView key) { Do([&] { form_.OpenNode(key); }); };
  tree.OnDelete = [this] { Do([&] { form_.MenuSupprimerCand(); }); };
  form_.openItemMenu = [this] {
    Refresh();
    if (OnItemMenu) OnItemMenu(list_->Tree().PopupPlace());
  };
}

void FormCandWindow::ConnectDetail() {
  detail_->OnAction = [this](DetailAction action) { Do([&] { form_.RunAction(action); }); };
  detail_->OnAnalyser = [this] { Do([&] { capture_.Analyser(); }); };
  detail_->OnPostuler = [this] { Do([&] { form_.OpenApplyForm(); }); };
  ChoiceField& status = detail_->Statut();
  status.OnToggle = [this] { Do([&] { form_.ToggleStatusList(); }); };
  status.OnChosen = [this](std::size_t row) { Do([&] { form_.ChooseStatus(row); }); };
  status.OnLeave = [this] { Do([&] { form_.CloseStatusList(); }); };
  ChoiceField& contract = detail_->Nature();
  contract.OnToggle = [this] { Do([&] { form_.ToggleContractList(); }); };
  contract.OnChosen = [this](std::size_t row) { Do([&] { form_.ChooseContract(row); }); };
  contract.OnLeave = [this] { Do([&] { form_.CloseContractList(); }); };
  // A click on the address of the advertisement opens it.
  detail_->Link().installEventFilter(this);
}

void FormCandWindow::ConnectWeb() {
  const auto doing = [this](void (FormCandWeb::*action)()) {
    return [this, action] { Do([&] { (webModel_.*action)(); }); };
  };
  web_->on = {.enter = [this] { Later([this] { webModel_.FollowAddress(); }); },
              .address = doing(&FormCandWeb::CloseSiteList),
              .go = doing(&FormCandWeb::FollowAddress),
              .stop = doing(&FormCandWeb::StopLoading),
              .back = doing(&FormCandWeb::GoBack),
              .forward = doing(&FormCandWeb::GoForward),
              .start = doing(&FormCandWeb::GoToStartPage),
              .strip = doing(&FormCandWeb::OpenStrip),
              .sites = doing(&FormCandWeb::ToggleSiteList),
              .leaveSites = doing(&FormCandWeb::CloseSiteList),
              .capture = doing(&FormCandWeb::CaptureSelection),
              .prefill = doing(&FormCandWeb::PrefillForm),
              .bring = doing(&FormCandWeb::BringOutsidePage),
              .reload = [this] { browser_.Reload(); },
              .save = [this] { Later([this] { browser_.TakeOffer(); }); },
              .dismiss = [this] { browser_.DismissOffer(); },
              .clear = [this] { Later([this] { browser_.AskToClearStore(); }); },
              .site = [this](std::size_t row) { Later([this, row] { webModel_.OpenSite(row); }); }};
  webModel_.OnChange = [this] { Refresh(); };
  webModel_.OnSignal = [this](TextView key) {
    Refresh();
    list_->Tree().Flash(key);
  };
  browser_.makeView = [this] { return web_->MakeView(); };
  browser_.OnLoaded = doing(&FormCandWeb::EvaluerPage);
  browser_.OnState = [this](const WebState& state) { web_->ShowState(state); };
  web_->ShowState(browser_.State());
}

// The window goes: the model may still be in a wait, from which it comes back to no window.
FormCandWindow::~FormCandWindow() {
  webModel_.Close();
  webModel_.OnChange = {};
  webModel_.OnSignal = {};
  browser_.makeView = {};
  browser_.OnLoaded = {};
  browser_.OnState = {};
  browser_.Forget();
}

bool FormCandWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease && watched == &detail_->Link())
    Later([this] { webModel_.OpenAdvertisement(); });
  return QWidget::eventFilter(watched, event);
}

void FormCandWindow::Do(const std::function<void()>& action) {
  const QPointer<FormCandWindow> self(this);
  const std::shared_ptr<void> kept = models;
  action();
  if (!self) return;
  Refresh();
  if (OnActed) OnActed();
}

void FormCandWindow::Later(const std::function<void()>& action) {
  // The window itself may go while the action waits; the browser stays.
  QMetaObject::invokeMethod(
      &browser_,
      [self = QPointer<FormCandWindow>(this), action] {
        if (self) self->Do(action);
      },
      Qt::QueuedConnection);
}

void FormCandWindow::Tick500() {
  Do([&] { webModel_.WatchPasteAndWindows(); });
}

void FormCandWindow::Tick3000() {
  Do([&] { form_.SaveIfChanged(); });
}

void FormCandWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  detail_->Title().setFocus(Qt::OtherFocusReason);
}

// The fields come first: they get what their font asks for, and in a narrow window whatever the list and
// the page can spare.
void FormCandWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  constexpr int NarrowWindow = 1200;
  const bool narrow = width() < TextPixels(NarrowWindow);
  if (narrow_ == narrow) return;
  narrow_ = narrow;
  const int room = width() - 2 * splitter_->handleWidth();
  const int list = narrow ? list_->minimumSizeHint().width() : TextPixels(ListWidth);
  const int detail =
      narrow ? room - list - web_->minimumWidth() : std::max(TextPixels(DetailWidth), detail_->RoomyWidth());
  splitter_->setSizes({list, detail, room - list - detail});
}

void FormCandWindow::StopTimers() {
  watchTimer_.stop();
  saveTimer_.stop();
}

void FormCandWindow::Refresh() {
  form_.SaisieRDV.Follow();
  binder_.Refresh();
  if (shownVersion_ != form_.ListVersion) {
    shownVersion_ = form_.ListVersion;
    list_->Tree().Rebuild();
  }
  list_->ShowTri(form_.ChosenSort ? static_cast<int>(*form_.ChosenSort) : -1);
  detail_->ShowPostuler(form_.ApplyButtonVisible);
  detail_->ShowInternet(form_.WebPaneVisible);
  detail_->ShowStatusDot(form_.Statut);
  ShowRefusal();
  detail_->Statut().ShowList(form_.StatusList);
  detail_->Nature().ShowList(form_.ContractList);
  if (web_->isHidden() == form_.WebPaneVisible) web_->setVisible(form_.WebPaneVisible);
  web_->Show(webModel_);
}

// A field at fault looks and speaks so until its text changes.
void FormCandWindow::ShowRefusal() {
  for (QLineEdit* line : lines_) {
    const bool refused = form_.IsAtFault(FromQt(line->objectName()));
    if (line->property("invalid").toBool() == refused) continue;
    line->setProperty("invalid", refused);
    line->setAccessibleDescription(refused ? ToQt(form_.LastRefusal->message) : QString());
    line->style()->unpolish(line);
    line->style()->polish(line);
  }
}

}  // namespace talvor
