#include "capture/form_cand_capture.h"

#include <utility>

#include "ads/analyser.h"

namespace talvor {

static_assert(HasAllNames(AdFieldTable, DetailFields), "the analyser fills a field that the detail lacks");

FormCandCapture::FormCandCapture(FormCand& form, const Clock& clock, Browser& browser)
    : form_(form), clock_(clock), browser_(browser) {}

void FormCandCapture::AnalyserVersDetail(Text texte) {
  AdFields record;
  CopyFieldsByName(DetailFields, form_, AdFieldTable, record);
  AnalyserAnnonce(texte, record, {form_.TermFin, browser_.LocationURL(), clock_.Today()});
  CopyFieldsByName(AdFieldTable, record, DetailFields, form_);
}

void FormCandCapture::Analyser() {
  AnalyserVersDetail(form_.Description);
  form_.ValeursParDefaut();
}

void FormCandCapture::CapturerTexte(Text texte) {
  form_.ViderDetail();
  AnalyserVersDetail(std::move(texte));
  form_.Valider();
}

void FormCandCapture::WatchPaste() {
  constexpr std::size_t LeastPaste = 50;
  if (form_.Description == form_.DescriptionConnue ||
      form_.Description.size() <= form_.DescriptionConnue.size() + LeastPaste)
    return;
  AnalyserVersDetail(form_.Description);
  form_.DescriptionConnue = form_.Description;
}

}  // namespace talvor
