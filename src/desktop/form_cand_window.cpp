#include "desktop/form_cand_window.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPointer>
#include <QSplitter>

namespace talvor {
namespace {

const QList<int> WideSizes{312, 474, 494};

}  // namespace

FormCandWindow::FormCandWindow(FormCand& form, FormCandCapture& capture, Browser& browser, const Theme& theme,
                               QWidget* parent)
    : QWidget(parent), form_(form), capture_(capture), browser_(browser), theme_(theme) {
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
  splitter_->setSizes(WideSizes);
  row->addWidget(splitter_);

  binder_.BindByName(*this, DetailFields, form_);
  if (auto* address = findChild<QWidget*>(QStringLiteral("AdresseWeb")))
    binder_.Bind(*address, form_.AdresseWeb);
  binder_.OnEdited = [this](QWidget& field) {
    if (&field == &detail_->Statut()) detail_->ShowStatusDot(form_.Statut);
  };
  ConnectList();
  ConnectDetail();

  constexpr int PasteWatchMilliseconds = 500;
  constexpr int SaveMilliseconds = 3000;
  connect(&timer1_, &QTimer::timeout, this, [this] { Tick500(); });
  connect(&timer2_, &QTimer::timeout, this, [this] { Tick3000(); });
  timer1_.start(PasteWatchMilliseconds);
  timer2_.start(SaveMilliseconds);
  shownVersion_ = form_.ListeVersion;
  Refresh();
}

void FormCandWindow::ConnectList() {
  list_->OnTri = [this](std::size_t index) { Do([&] { form_.ClicTri(static_cast<Tri>(index)); }); };
  list_->OnToutSupprimer = [this] { Do([&] { form_.ToutSupprimer(); }); };
  list_->OnRechercher = [this](std::size_t index) { Do([&] { form_.Rechercher(index); }); };
  CandidatureTreeView& tree = list_->Tree();
  tree.OnPress = [this](bool right) { form_.BoutonDroit = right; };
  tree.OnNode = [this](TextView key) { Do([&] { form_.ClicNoeud(key); }); };
  tree.OnDelete = [this] { Do([&] { form_.MenuSupprimerCand(); }); };
  form_.OuvrirMenuItemCand = [this] {
    Refresh();
    OpenItemMenu();
  };
}

void FormCandWindow::ConnectDetail() {
  detail_->OnAction = [this](std::size_t index) { Do([&] { form_.Action(index); }); };
  detail_->OnAnalyser = [this] { Do([&] { capture_.Analyser(); }); };
  detail_->OnPostuler = [this] { Do([&] { form_.ClicPicturePostuler(); }); };
  ChoiceField& status = detail_->Statut();
  status.OnToggle = [this] { Do([&] { form_.ClicImage2(); }); };
  status.OnChosen = [this](std::size_t row) { Do([&] { form_.ClicStatut(row); }); };
  status.OnLeave = [this] { Do([&] { form_.QuitterStatut(); }); };
  ChoiceField& contract = detail_->Nature();
  contract.OnToggle = [this] { Do([&] { form_.ClicImage1(); }); };
  contract.OnChosen = [this](std::size_t row) { Do([&] { form_.ClicContrat(row); }); };
  contract.OnLeave = [this] { Do([&] { form_.QuitterNature(); }); };
  web_->OnGo = [this] { Do([&] { browser_.Navigate(form_.AdresseWeb); }); };
}

void FormCandWindow::Do(const std::function<void()>& action) {
  const QPointer<FormCandWindow> self(this);
  action();
  if (!self) return;
  Refresh();
  if (OnActed) OnActed();
}

void FormCandWindow::Tick500() {
  Do([&] { capture_.Timer1(); });
}

void FormCandWindow::Tick3000() {
  Do([&] { form_.Timer2(); });
}

void FormCandWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (auto* title = findChild<QWidget*>(QStringLiteral("Intitule"))) title->setFocus(Qt::OtherFocusReason);
}

// In a narrow window the fields come first.
void FormCandWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  constexpr int NarrowWindow = 1200;
  const bool narrow = width() < NarrowWindow;
  if (narrow == narrow_) return;
  narrow_ = narrow;
  if (!narrow) return splitter_->setSizes(WideSizes);
  const int list = list_->minimumSizeHint().width();
  const int web = web_->minimumWidth();
  splitter_->setSizes({list, width() - list - web - 2 * splitter_->handleWidth(), web});
}

void FormCandWindow::StopTimers() {
  timer1_.stop();
  timer2_.stop();
}

void FormCandWindow::Refresh() {
  binder_.Refresh();
  if (shownVersion_ != form_.ListeVersion) {
    shownVersion_ = form_.ListeVersion;
    list_->Tree().Rebuild();
  }
  list_->ShowTri(form_.TriChoisi ? static_cast<int>(*form_.TriChoisi) : -1);
  detail_->ShowPostuler(form_.PicturePostulerVisible);
  detail_->ShowInternet(form_.CadreWebVisible);
  detail_->ShowStatusDot(form_.Statut);
  detail_->Statut().ShowList(form_.ListeStatutsChoice);
  detail_->Nature().ShowList(form_.ListeContratsChoice);
  if (web_->isHidden() == form_.CadreWebVisible) web_->setVisible(form_.CadreWebVisible);
}

void FormCandWindow::OpenItemMenu() {
  QMenu menu(this);
  const auto add = [&](const QString& icon, const QString& text) {
    return menu.addAction(theme_.Icon(icon, QStringLiteral("text2")), text);
  };
  add(QStringLiteral("globe"), tr("Consulter l'offre sur &Internet"))->setEnabled(false);
  add(QStringLiteral("link"), tr("Consulter le site d'&origine"))->setEnabled(false);
  menu.addSeparator();
  QAction* apply = add(QStringLiteral("send"), tr("&Postuler"));
  apply->setEnabled(form_.MenuPostulerActif);
  menu.addSeparator();
  add(QStringLiteral("print"), tr("I&mprimer"));
  QAction* remove = add(QStringLiteral("trash"), tr("&Supprimer"));
  remove->setObjectName(QStringLiteral("MenuSupprimerCand"));

  const QAction* chosen = menu.exec(list_->Tree().PopupPlace());
  if (chosen == apply && OnMenuPostuler) OnMenuPostuler();
  if (chosen == remove) form_.MenuSupprimerCand();
}

}  // namespace talvor
