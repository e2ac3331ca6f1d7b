// `FormCand`: advertisements out of pages, and the rating of pages.

#include <optional>
#include <utility>

#include "ads/page_rating.h"
#include "ads/ungluing.h"
#include "base/raised.h"
#include "capture/form_cand_web.h"
#include "workspace/systeme.h"

namespace talvor {
namespace {

constexpr TextView PageNotIdentified =
    u"Talvor a des difficultés pour identifier l'annonce dans la page affichée. Pour cette offre, veuillez "
    u"d'abord sélectionner le texte relatif à l'annonce puis cliquer à nouveau sur 'Capturer'";

// The address of the page of the company, as the markup of an advertisement gives it behind this mark.
constexpr TextView CompanyMark = u"ForwardToCoordEntreprise";

// A step that cannot be done leaves the address as the step before has left it.
Text CompanyAddress(TextView markup, TextView address) {
  constexpr std::size_t Back = 100;
  const auto mark = markup.find(CompanyMark);
  Text s;
  if (mark >= Back) s = markup.substr(mark - Back);
  if (const auto path = s.find(u"/Mes"); path != Text::npos) s.erase(0, path);
  const auto domain = address.find(u"fr/");
  const auto quote = s.find(u'"');
  if (domain != TextView::npos && quote != Text::npos)
    s = Text{address.substr(0, domain + 2)}.append(s, 0, quote);
  return s;
}

}  // namespace

void FormCandWeb::CaptureSelection() {
  if (capturing_) return;
  const Raised capturing(capturing_);
  clipboard_.Clear();
  browser_.CopySelection();
  shell_.PumpEvents();
  if (closed_) return;
  form_.Num.clear();
  Text selection = clipboard_.ReadText();
  if (selection.empty()) return CapturerPage();
  form_.ViderDetail();
  capture_.AnalyserVersDetail(std::move(selection));
  Enregistrer();
  SignalerCandidature();
}

// A base that refuses is not told here: the fields stay, without a number.
void FormCandWeb::Enregistrer() {
  try {
    form_.Valider();
  } catch (const StoreError&) {
    Changed();
  }
}

void FormCandWeb::CapturerPage() {
  // Read first: events run meanwhile, and the detail is emptied only for what is captured at once.
  const Text markup = browser_.BodyMarkup();
  const Text txt = browser_.BodyText(DocumentBrowser::Whole);
  if (closed_) return;
  form_.ViderDetail();
  capture_.AnalyserVersDetail(DecollerMots(txt));
  form_.DescriptionConnue = form_.Description;
  if (form_.Intitule.empty()) {
    dialogs_.Tell(PageNotIdentified);
    return;
  }
  Enregistrer();
  if (Contains(form_.AdresseWeb, u"apec") && form_.CP.empty() && Contains(markup, CompanyMark))
    SuivreCoordonnees(markup);
  if (!closed_) SignalerCandidature();
}

void FormCandWeb::SuivreCoordonnees(const Text& markup) {
  const Text captured = form_.Num;
  browser_.Navigate(CompanyAddress(markup, form_.AdresseWeb));
  if (!AttendrePage()) return;
  constexpr int SettleMilliseconds = 100;
  shell_.Wait(SettleMilliseconds);
  const Text coordonnees = browser_.BodyText(DocumentBrowser::Whole);
  // The details of the company are for the candidature that was captured, and for no other.
  if (closed_ || form_.Num != captured) return;
  form_.Description.append(LineEnd).append(coordonnees);
  form_.Reference.clear();
  capture_.AnalyserVersDetail(form_.Description);
  Enregistrer();
  browser_.GoBack();
}

bool FormCandWeb::AttendrePage() {
  constexpr int StepMilliseconds = 50;
  stopped_ = false;
  while (browser_.ReadyState() != DocumentBrowser::Complete && !closed_ && !stopped_) {
    shell_.Wait(StepMilliseconds);
    shell_.PumpEvents();
  }
  return !closed_ && !stopped_;
}

void FormCandWeb::SignalerCandidature() {
  if (OnSignal) OnSignal(u"s" + form_.Num);
}

void FormCandWeb::EvaluerPage() {
  pageLoaded_ = true;
  // Pages that load one behind the other are taken up by the run under way, not by runs inside it.
  if (rating_) return;
  const Raised rating(rating_);
  while (pageLoaded_ && !closed_) {
    pageLoaded_ = false;
    EvaluerUnePage();
  }
}

void FormCandWeb::EvaluerUnePage() {
  const Text start = browser_.BodyText(CharactersRated);
  if (closed_) return;
  const Text address = browser_.LocationURL();
  Evaluation = RatePage(start, address);
  form_.ShowAddress(address);
  Changed();
  constexpr int BeforeTheGaugeMilliseconds = 500;
  shell_.PumpEvents();
  shell_.Wait(BeforeTheGaugeMilliseconds);
  if (closed_) return;
  // A gauge that empties does so before the strip closes; one that fills waits for the strip to open.
  if (!Evaluation.stripOpens) Niveau = Evaluation.Niveau;
  MoveStrip(StripTop(Evaluation));
  if (closed_) return;
  Niveau = Evaluation.Niveau;
  Changed();
  PreremplirFormulaireConnu();
}

void FormCandWeb::MoveStrip(int top) {
  constexpr int Step = 15;
  constexpr int StepMilliseconds = 20;
  const int step = top == StripOpen ? Step : -Step;
  while (!closed_ && (step > 0 ? StripPlace < top : StripPlace > top)) {
    StripPlace += step;
    Changed();
    shell_.Wait(StepMilliseconds);
  }
  if (closed_) return;
  StripPlace = top;
  Changed();
}

void FormCandWeb::WatchPasteAndWindows() {
  capture_.WatchPaste();
  if (!form_.WebPaneVisible) return;
  const Text title = FenetreHttp(documents_);
  if (const auto blank = title.find(u' '); blank != Text::npos) OutsideAddress = title.substr(0, blank);
  // An address that has been taken over does not hide the link again.
  if (OutsideAddress.empty())
    BringLinkVisible = false;
  else if (OutsideAddress != DerniereFenetreHttp)
    BringLinkVisible = true;
}

void FormCandWeb::BringOutsidePage() {
  form_.GoTo(OutsideAddress);
  DerniereFenetreHttp = OutsideAddress;
}

}  // namespace talvor
