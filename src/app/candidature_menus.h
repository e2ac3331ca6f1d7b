// What the menus of the candidatures lead to: `MenuCandidature` under the last slot, and the popup
// `MenuItemCand` of a row.
#pragma once

#include <functional>

#include "platform/shell.h"
#include "workspace/principale.h"

namespace talvor {

class CandidatureMenus {
 public:
  CandidatureMenus(Principale& principale, Shell& shell) : principale_(principale), shell_(shell) {}

  // Ways to the forms; one that is not set does nothing.
  struct Ways {
    std::function<int()> hauteurDescription;  // of `Description` of `FormCand`, in twips
    std::function<void()> montrerCadreWeb;
    std::function<void()> naviguerAccueil;  // the address field and the browser go to the start page
    std::function<void()> imprimerListe;
    std::function<void()> justificatif;
    std::function<void()> toutSupprimer;
    std::function<void()> consulterInternet;
    std::function<void()> consulterOrigine;
    std::function<void()> postuler;
    std::function<void()> supprimerCand;
  };
  Ways ways;

  // Runs the item of that name; false for a name of other menus.
  bool Choose(TextView item);

  void MenuOuvrirCand();
  void MenuRechercherOffres();

 private:
  [[nodiscard]] bool IsFirst() const;

  Principale& principale_;
  Shell& shell_;
};

}  // namespace talvor
