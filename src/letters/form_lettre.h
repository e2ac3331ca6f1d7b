// `FormLettre`, the editor of one letter model as a view model.
//
// A window reports what the user does by the methods below and shows the fields afterwards. Indexes are
// 0-based; one that does not exist does nothing.
#pragma once

#include <array>
#include <filesystem>
#include <functional>

#include "letters/letter_model.h"
#include "letters/propositions.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "workspace/principale.h"

namespace talvor {

class FormLettre : public LetterModel {
 public:
  static constexpr std::size_t CvCount = 5;

  FormLettre(Principale& principale, const Clock& clock, Dialogs& dialogs, Shell& shell);

  std::array<Text, CvCount> NomCV;  // the list of CVs: file names without ".dat", empty beyond the last
  bool CvListVisible = true;
  bool SubjectVisible = true;  // the frame of the subject
  bool loading = false;        // a file is being applied: flags and buttons do not recompose
  bool saveFailed = false;     // the last save was not written; no message box tells it

  // Opens a document in the program associated with it; nothing happens while it is not set.
  std::function<void(const std::filesystem::path&)> openDocument;

  // The form is loaded, which comes before anything else asked of it: every field is empty, the flags
  // stand on a mail in answer to an advertisement, the list of CVs and the propositions are read.
  void Charger();

  // Clears the texts, keeps the flags, and offers to begin from the first CV. Events run inside.
  void NouvelleLettre();
  // Takes the sender from a CV, given by its full path, and recomposes.
  void InitLettre(const std::filesystem::path& chemin);
  // Fills the form from a file, given by its full path; what the file lacks keeps its value. The user
  // is told when there is no such file. The name of the model is the one that stands in the file.
  void ChargerFichierLettre(const std::filesystem::path& chemin);
  // Writes the model to its file.
  void EnregistrerLettre();
  // Every 1000 ms: saves a model with a surname whose text has changed.
  void SaveIfChanged();

  // Rebuilds `Text1`; what was typed into it is lost.
  void ComposerLettre();

  void PreviousSentence(std::size_t i);  // of a sentence group
  void NextSentence(std::size_t i);
  // A click turns the flag over, and its pair with it.
  void ToggleMedium(std::size_t i);    // `Check_Modele`
  void ToggleOccasion(std::size_t i);  // `Check_candidature`
  void BeginFromCv(std::size_t i);     // a row of the list of CVs
  void ComposeAnew();                  // empties the letter and composes it anew
  void OpenPropositions();
  void LeaveEmail();
  void LeavePrenom();

 private:
  void Clear();
  void ToggleFlag(FlagPair& flags, std::size_t i);
  void TakeSentence(std::size_t i, const Text& sentence);
  void RecomposeUnlessLoading();

  Principale& principale_;
  const Clock& clock_;
  Dialogs& dialogs_;
  Shell& shell_;
  Propositions propositions_;
  Text savedText_;  // `Text1` as last saved or loaded
};

}  // namespace talvor
