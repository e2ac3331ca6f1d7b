#include "app/candidature_menus.h"

#include <array>

#include "app/hints.h"

namespace talvor {

bool CandidatureMenus::IsFirst() const {
  return principale_.ImageMenu[Principale::CandidatureSlot].picture == SlotPicture::ImageNew;
}

void CandidatureMenus::MenuOuvrirCand() {
  shell_.Load(CandidatureForm);
  shell_.Show(CandidatureForm);
  // The hint needs the room of a tall description to speak of.
  constexpr int TallDescription = 5200;
  if (IsFirst() && ways.hauteurDescription && ways.hauteurDescription() > TallDescription)
    principale_.AfficherGuide(hints::NewCandidature);
}

void CandidatureMenus::MenuRechercherOffres() {
  shell_.Load(CandidatureForm);
  shell_.Show(CandidatureForm);
  if (ways.montrerCadreWeb) ways.montrerCadreWeb();
  shell_.PumpEvents();
  if (IsFirst()) principale_.AfficherGuide(hints::Capture);
  if (ways.naviguerAccueil) ways.naviguerAccueil();
}

bool CandidatureMenus::Choose(TextView item) {
  if (item == u"MenuOuvrirCand") {
    MenuOuvrirCand();
    return true;
  }
  if (item == u"MenuRechercherOffres") {
    MenuRechercherOffres();
    return true;
  }
  struct Way {
    TextView item;
    std::function<void()> Ways::* run;
  };
  static constexpr std::array<Way, 7> Elsewhere{{
      {u"MenuImprimerListe", &Ways::imprimerListe},
      {u"MenuJustificatif", &Ways::justificatif},
      {u"MenuSupprimer", &Ways::toutSupprimer},
      {u"MenuConsulterInternet", &Ways::consulterInternet},
      {u"MenuConsulterOrigine", &Ways::consulterOrigine},
      {u"MenuPostuler", &Ways::postuler},
      {u"MenuSupprimerCand", &Ways::supprimerCand},
  }};
  for (const Way& way : Elsewhere)
    if (way.item == item) {
      if (ways.*way.run) (ways.*way.run)();
      return true;
    }
  // An item without an action.
  return item == u"MenuImprimerCand";
}

}  // namespace talvor
