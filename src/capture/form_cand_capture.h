// capture: from a page to a candidature, and from a candidature into the form of a page.
//
// The capture side of `FormCand`: advertisements from a text into the detail.
#pragma once

#include "platform/browser.h"
#include "platform/clock.h"
#include "tracking/form_cand.h"

namespace talvor {

class FormCandCapture {
 public:
  FormCandCapture(FormCand& form, const Clock& clock, Browser& browser);

  // Analyses what stands in `Description` into the empty fields and fills the defaults. Saves nothing
  // and clears nothing.
  void Analyser();

  // Runs the analyser on a text into the empty fields of the detail, and nothing else.
  void AnalyserVersDetail(Text texte);

  // Makes a new candidature of the text of an advertisement (lines end in CR LF) and saves it. What
  // cannot be identified is told, and the detail keeps what was found.
  void CapturerTexte(Text texte);

  // Every 500 ms: analyses a description that has grown by more than 50 characters, as by a paste.
  void WatchPaste();

 private:
  FormCand& form_;
  const Clock& clock_;
  Browser& browser_;
};

}  // namespace talvor
