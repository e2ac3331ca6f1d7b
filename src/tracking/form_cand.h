// `FormCand`, the form of the candidatures as a view model: the list on its left, the detail on its
// right. What browses, captures and prefills stands in capture.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "ads/end_markers.h"
#include "platform/browser.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "tracking/candidature.h"
#include "tracking/candidature_tree.h"
#include "tracking/interview_field.h"
#include "workspace/principale.h"

namespace talvor {

// A popup list beside a text field.
struct ChoiceList {
  bool visible = false;
  std::optional<std::size_t> selected;  // index of the row that equals the field, if any
};

// What `openApplyForm` hands to the apply form.
struct ApplyRequest {
  Text Texte;              // the letter
  bool canBeSent = false;  // shows the button that sends
};

// Why the last check refused the fields.
struct Refusal {
  Text field;  // its name
  Text value;  // as refused; a field that says something else by now is no longer at fault
  Text message;
};

// Their values number the buttons.
enum class DetailAction { New, Delete, ShowApplyForm, Save, ShowBrowser };

class FormCand : public Candidature {
 public:
  FormCand(Principale& principale, const Clock& clock, Dialogs& dialogs, Shell& shell, Browser& browser);

  // -- State beside the fields of the detail.
  Text SignatureEnregistree;  // as last loaded or saved
  Text SignatureCourante;     // as last computed
  Text DescriptionConnue;     // the description as last loaded or analysed
  Text TermFin{TermFinDelivered};
  // The browser pane: its address field, which takes what the user types, and whether it stands. All else
  // writes them through the methods of the pane below.
  Text AdresseWeb;
  bool WebPaneVisible = false;
  bool ApplyButtonVisible = false;
  InterviewField SaisieRDV{*this};  // what stands in the field of `DateRDV`
  std::optional<Refusal> LastRefusal;
  ChoiceList StatusList;
  ChoiceList ContractList;

  std::optional<Tri> ChosenSort = Tri::Statuts;
  CandidatureTree Liste;
  bool ListVisible = false;
  unsigned ListVersion = 0;       // counts the builds, for a view that has to take the tree over
  bool BoutonDroit = false;       // the last press on the tree was the right button
  bool ApplyItemEnabled = false;  // whether the popup offers "Postuler"

  // -- Ways out to what stands on higher floors; one that is not set does nothing.
  std::function<void(const ApplyRequest&)> openApplyForm;
  std::function<void()> openItemMenu;

  // The form is loaded: blank browser, list built, no known description.
  void Charger();

  // -- The browser pane.
  void ShowWebPane() { WebPaneVisible = true; }
  void HideWebPane() { WebPaneVisible = false; }
  // The browser goes to an address, which its field shows from now on.
  void GoTo(TextView address);
  // The same in two steps, for who lets events run in between: the field shows the address, and the browser
  // goes to what the field says.
  void ShowAddress(TextView address) { AdresseWeb = address; }
  void FollowAddress() { browser_.Navigate(AdresseWeb); }

  // -- The list.
  // Rebuilds the tree from the rows and the sort option. Failures are not reported: the tree holds what
  // could be read. Closes the handle that the detail keeps.
  void InitListe();
  void SortBy(Tri tri);
  // Opens the row of a leaf; the right button opens the popup as well. A key that passes as a leaf's and
  // names no row is a failure of the engine.
  void OpenNode(TextView key);
  // Deletes every row after a question; the same from the main menu, which asks in other words and
  // clears the tree instead of building it again.
  void ToutSupprimer();
  void MenuSupprimer();
  // The links of the search panel, 0 or 1; the second one has no action.
  void Rechercher(std::size_t index);

  // -- The detail.
  // Shows the row of a key and leaves the database open; throws StoreError when there is no such row.
  void ChargerCandidature(std::int16_t num);
  // Empties every field of the detail and the known description.
  void ViderDetail();
  // Fills what an empty field stands for.
  void ValeursParDefaut();
  // True if the fields can be saved; the first fault is told, stands in `LastRefusal` and, being a date, takes
  // the focus. `DateRDV` is not looked at.
  [[nodiscard]] bool ControleSaisie();
  // Whether a field still says what the last check refused.
  [[nodiscard]] bool IsAtFault(TextView field) const;
  // Saves the detail as a new row or over its own; the only writer of rows. Throws StoreError when the
  // engine refuses, a `DateRDV` that is no date included.
  void Valider();
  // Every 3000 ms: saves a row that has a key and has changed. Nothing while a save is under way.
  void SaveIfChanged();

  // The actions above the detail. No button runs ShowApplyForm, which brings the apply form forward with
  // its merged letter.
  void RunAction(DetailAction action);
  // Deletes the row of the detail on the handle that the detail holds. Once the list has been built
  // again that handle is closed and the delete fails like any failure of the engine.
  void Supprimer();
  // The same from the popup, on a handle of its own.
  void MenuSupprimerCand();
  void OpenApplyForm();  // with the letter that the row holds

  // Marks the row as sent today with that CV and letter, and saves it.
  void MarquerEnvoyee(TextView cv, TextView lettre);

  // -- The choices of status and contract.
  void ToggleStatusList();
  void ChooseStatus(std::size_t index);
  void CloseStatusList();
  void ToggleContractList();
  void ChooseContract(std::size_t index);
  void CloseContractList();

  // The typing into the field of the interview is over: what is no date is told, and stands in `LastRefusal`.
  void QuitterRDV();

 private:
  [[nodiscard]] Text Today() const;
  [[nodiscard]] std::optional<std::int32_t> Key() const;
  void EnregistrerLigne();
  void DeleteAllRows();
  bool RefuseDate(TextView field, const Text& value);
  void TellBadDate(TextView field, TextView value);
  void MontrerCadreWeb();
  void ViderControles();
  void DeleteOn(Database& database);

  Principale& principale_;
  const Clock& clock_;
  Dialogs& dialogs_;
  Shell& shell_;
  Browser& browser_;
  Database base_;  // the handle of the last operation
  bool saving_ = false;
  bool refusing_ = false;
};

}  // namespace talvor
