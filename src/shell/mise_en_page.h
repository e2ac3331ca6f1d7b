// `MiseEnPage`, the advice on printing a CV.
#pragma once

#include <functional>

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace talvor {

class MiseEnPage {
 public:
  static constexpr TextView HeadersAdvice =
      u"Pour supprimer les indications d'entête et de pied de page, lancer la prévisualisation "
      u"(Prévisualiser) puis sélectionner 'Mise en page'";
  static constexpr TextView ColoursAdvice =
      u"Pour activer l'impression des filigrammes et couleurs de fond, ouvrir le panneau de configuration "
      u"puis, dans les paramètres Internet, aller dans l'onglet 'Avancé', et cocher la case 'Imprimer les "
      u"couleurs et les images d'arrière plan'.";
  // The browser of the program has no such panel, nor its switch.
  static constexpr TextView ColoursAlwaysPrinted =
      u"Talvor imprime toujours les couleurs et les images d’arrière-plan\u00A0: il n’y a rien à cocher sur "
      u"cet ordinateur. Si elles manquent sur le papier, choisissez l’impression en couleurs dans les "
      u"réglages de l’imprimante, par le bouton «\u00A0Imprimer…\u00A0» de la prévisualisation.";
  static constexpr TextView NoCvOpen = u"Ouvrez d’abord un CV, puis lancez sa prévisualisation.";

  MiseEnPage(Shell& shell, Dialogs& dialogs) : shell_(shell), dialogs_(dialogs) {}

  // The print preview of the editor's page; nothing while it is not set.
  std::function<void()> previsualiser;

  void TellAboutColours() { dialogs_.Tell(ColoursAlwaysPrinted); }
  void Preview() {
    if (!shell_.FormeVisible(EditorForm)) return dialogs_.Tell(NoCvOpen);
    if (previsualiser) previsualiser();
  }
  void Close() { shell_.Unload(PrintAdviceForm); }

 private:
  Shell& shell_;
  Dialogs& dialogs_;
};

}  // namespace talvor
