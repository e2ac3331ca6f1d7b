// `AssistantTexte`, the panel that greets the user. Its rows are its commands: a click is dispatched on
// the title that is shown.
#pragma once

#include <functional>
#include <vector>

#include "platform/dialogs.h"
#include "platform/shell.h"
#include "workspace/principale.h"

namespace talvor {

struct HomeRow {
  Text title;
  Text explanation;
  bool operator==(const HomeRow&) const = default;
};

class AssistantTexte {
 public:
  enum class Level { Home, CV, Letters, Candidatures };

  AssistantTexte(Principale& principale, Shell& shell, Dialogs& dialogs);

  // What the commands lead to on other floors; one that is not set does nothing.
  struct Commands {
    std::function<void()> rattacherCv;
    std::function<void()> nouvelleLettre;
    std::function<void()> rechercherOffres;  // shows the browser pane of `FormCand`
    std::function<void()> naviguerAccueil;   // its browser goes to the start page
    std::function<void()> justificatif;
    std::function<void(TextView file)> ouvrirCv;      // the name in slot 0
    std::function<void(TextView file)> ouvrirLettre;  // the name in slot 5 or 6
  };
  Commands commands;

  // At most four rows, in order; a row without a name is empty.
  std::vector<HomeRow> Rows;
  Text Compteurs;  // three lines, the counts of CVs, letters and candidatures
  Level level = Level::Home;
  // How far the rows stand from their place, in pixels; a change of level moves them away.
  static constexpr int FarthestRowOffset = 24;
  int RowOffset = 0;

  // The panel is loaded: the home level and the counts.
  void Charger();
  void ChoixCV();
  void ChoixLettre();
  void ChoixCand();
  // Moves the rows towards their place; false once they are there.
  [[nodiscard]] bool Slide();
  // The click on a row, by its title.
  void Choose(TextView title);

 private:
  [[nodiscard]] int CountCvs() const;
  [[nodiscard]] HomeRow LetterRow(std::size_t slot) const;
  [[nodiscard]] Text NameInSlot(std::size_t slot) const;
  void ChooseFile(TextView title);
  void RattacherCV();
  void Show(Level shown, std::vector<HomeRow> rows);
  void GererCandidatures();
  void RechercherOffres();

  Principale& principale_;
  Shell& shell_;
  Dialogs& dialogs_;
};

}  // namespace talvor
