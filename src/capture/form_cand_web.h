// The browsing side of `FormCand`: the browser pane with its directory of sites, the capture of
// advertisements out of pages, the rating of pages and the prefill of web forms.
#pragma once

#include <functional>

#include "ads/page_rating.h"
#include "capture/form_cand_capture.h"
#include "capture/site_directory.h"
#include "platform/clipboard.h"
#include "platform/documents.h"

namespace talvor {

// What the apply form holds for web forms.
struct ApplyTexts {
  Text Email;
  Text Texte;  // the letter
};

class FormCandWeb {
 public:
  // Places of the top of `FrameWeb`, the strip with the gauge and the capture links.
  static constexpr int StripClosed = 330;
  static constexpr int StripOpen = 660;
  // Where the strip moves for a page.
  [[nodiscard]] static constexpr int StripTop(const PageRating& rating) {
    return rating.stripOpens ? StripOpen : StripClosed;
  }

  struct Surroundings {
    Principale& principale;
    Dialogs& dialogs;
    Shell& shell;
    DocumentBrowser& browser;
    Clipboard& clipboard;
    const Documents& documents;
  };

  FormCandWeb(FormCand& form, FormCandCapture& capture, const Surroundings& around);

  // -- State beside `AdresseWeb` and `WebPaneVisible` of the form.
  SiteDirectory Sites;
  bool SiteListVisible = false;
  int StripPlace = StripClosed;  // the top of the strip
  PageRating Evaluation;         // of the page loaded last
  double Niveau = 1;             // the width of the gauge
  Text OutsideAddress;           // address out of the title of a window outside the program
  Text DerniereFenetreHttp;      // the address last taken over
  bool BringLinkVisible = false;

  // -- Ways out; one that is not set does nothing.
  std::function<void()> OnChange;            // the state has changed while an operation goes on
  std::function<void(TextView)> OnSignal;    // lights up the node of that key in the tree
  std::function<ApplyTexts()> askApplyForm;  // asked only while the apply form is on screen

  // The form is loaded: the directory of sites is read.
  void Charger();
  // True while a page is captured or rated.
  [[nodiscard]] bool Busy() const { return capturing_ || rating_ || pageLoaded_; }
  // The form goes: operations that wait end there, and do nothing more.
  void Close();

  // -- Capture. A second one is not begun while the first is under way.
  // A new candidature out of the selected text, or out of the whole page without a selection.
  void CaptureSelection();
  // A new candidature out of the whole page. On one job board the company's details are fetched from a
  // second page; that wait ends when the load does, is stopped, or another candidature is opened.
  void CapturerPage();
  // A page has been loaded: it is rated, the gauge and the strip follow, and a known form is filled
  // while the apply form is on screen. Lets events run for about a second. A page that is loaded
  // meanwhile is rated in its turn.
  void EvaluerPage();
  // Every 500 ms: the paste watch, and the watch for an address in the title of a window outside.
  void WatchPasteAndWindows();
  // Brings the page of the window outside into the pane.
  void BringOutsidePage();

  // -- Prefill of the form on the page from the identity and the letter.
  void PrefillForm();

  // -- Browsing.
  void FollowAddress();
  void GoForward();
  void GoBack();
  void GoToStartPage();
  void OpenStrip();
  void ToggleSiteList();
  // A row of the list of sites, from 0.
  void OpenSite(std::size_t row);
  void CloseSiteList();
  void OpenAdvertisement();
  // The start page of the site that `www` leads to.
  void ConsulterOrigine();
  // The user ends the load under way.
  void StopLoading();
  // Rebuilds the file of sites from the page of sites, unless that page has no text. Fails when the file
  // cannot be written.
  [[nodiscard]] Result<> MajListeSites();

 private:
  void Enregistrer();
  void SuivreCoordonnees(const Text& markup);
  void SignalerCandidature();
  void EvaluerUnePage();
  void MoveStrip(int top);
  void PreremplirFormulaireConnu();
  [[nodiscard]] ApplyTexts Postuler() const;
  // Lets events run until the page is complete. False when the wait was ended before that.
  [[nodiscard]] bool AttendrePage();
  void Changed() const;

  FormCand& form_;
  FormCandCapture& capture_;
  Principale& principale_;
  Dialogs& dialogs_;
  Shell& shell_;
  DocumentBrowser& browser_;
  Clipboard& clipboard_;
  const Documents& documents_;
  bool closed_ = false;
  bool stopped_ = false;
  bool capturing_ = false;
  bool rating_ = false;
  bool pageLoaded_ = false;  // and not rated yet
};

}  // namespace talvor
