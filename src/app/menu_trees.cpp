#include "app/menu_trees.h"

#include <array>
#include <filesystem>
#include <system_error>

#include "workspace/documents_folder.h"

namespace talvor {
namespace {

constexpr std::array<MenuItem, 14> MenuCV{{
    {u"MenuNouveauCV", u"Rédiger un nouveau CV"},
    {u"MenuRattacherCV", u"Rattacher un CV existant"},
    {u"Tiret", u""},
    {u"MenuOuvrirCV", u"Ouvrir"},
    {u"MenuSupprimerCV", u"Supprimer"},
    {u"Renommer", u"Renommer"},
    {u"MenuDupliquerCV", u"Dupliquer"},
    {u"Tiret1", u""},
    {u"MenuConvertirCV", u"Convertir"},
    {u"MenuOuvrirWord", u"Dernière version Word"},
    {u"MenuImprimerCV", u"Imprimer"},
    {u"Tiret2", u""},
    {u"MenuEnvoyerAmi", u"Envoyer à un ami"},
    {u"MenuEnvoyerRecruteur", u"Envoyer à un recruteur"},
}};

constexpr std::array<MenuItem, 6> MenuLettre{{
    {u"MenuRédigerLettre", u"Rédiger"},
    {u"TR5", u""},
    {u"MenuOuvrirLettre", u"Ouvrir"},
    {u"MenuDuppliquerLettre", u"Dupliquer"},
    {u"RenommerLettre", u"Renommer"},
    {u"MenuSupprimerLettre", u"Supprimer"},
}};

constexpr std::array<MenuItem, 7> MenuCandidature{{
    {u"MenuOuvrirCand", u"Ouvrir"},
    {u"MenuRechercherOffres", u"Rechercher des offres sur Internet"},
    {u"TR9", u""},
    {u"MenuImprimerListe", u"Imprimer "},
    {u"MenuJustificatif", u"Justificatif de recherche d'emploi"},
    {u"TR10", u""},
    {u"MenuSupprimer", u"Tout supprimer"},
}};

constexpr std::array<MenuItem, 4> MenuImprimer{{
    {u"PrévisualiserCV", u"Prévisualiser"},
    {u"ImprimerCV", u"Imprimer"},
    {u"TR4", u""},
    {u"MessageTrames", u"Mise en page"},
}};

constexpr std::array<MenuItem, 4> MenuPhoto{{
    {u"RattacherPhoto", u"Rattacher..."},
    {u"CollerPhoto", u"Coller"},
    {u"TR8", u""},
    {u"SupprimerPhoto", u"Supprimer"},
}};

constexpr std::array<MenuItem, 2> MenuLangues{{
    {u"MenuFrancais", u"Français"},
    {u"MenuAnglais", u"Anglais"},
}};

constexpr std::array<MenuItem, 2> MenuConvertirWord{{
    {u"MenuConvFWord", u"Conversion du format"},
    {u"ConsulterWord", u"Dernière version"},
}};

constexpr std::array<MenuItem, 7> MenuItemCand{{
    {u"MenuConsulterInternet", u"Consulter l'offre sur Internet"},
    {u"MenuConsulterOrigine", u"Consulter le site d'origine"},
    {u"TR6", u""},
    {u"MenuPostuler", u"Postuler"},
    {u"TR7", u""},
    {u"MenuImprimerCand", u"Imprimer"},
    {u"MenuSupprimerCand", u"Supprimer"},
}};

constexpr std::array<MenuTree, 8> Trees{{
    {u"MenuCV", MenuCV},
    {u"MenuLettre", MenuLettre},
    {u"MenuCandidature", MenuCandidature},
    {u"MenuImprimer", MenuImprimer},
    {u"MenuPhoto", MenuPhoto},
    {u"MenuLangues", MenuLangues},
    {u"MenuConvertirWord", MenuConvertirWord},
    {u"MenuItemCand", MenuItemCand},
}};

// What an item becomes on a slot that holds a file, and on a free one.
enum class State {
  Enabled,
  Disabled,
  Kept,             // as the click before has left it
  FewFiles,         // while the list of files has under five
  OpenDocument,     // beside an open editor, for a document of the system
  LastWordVersion,  // when the last word-processor version exists
};

struct Rule {
  TextView item;
  State holding;
  State free;
};

constexpr std::array<Rule, 11> CvRules{{
    {u"MenuRattacherCV", State::Disabled, State::Enabled},
    {u"MenuNouveauCV", State::Disabled, State::Enabled},
    {u"MenuOuvrirCV", State::Enabled, State::Disabled},
    {u"MenuSupprimerCV", State::Enabled, State::Disabled},
    {u"Renommer", State::Enabled, State::Disabled},
    {u"MenuDupliquerCV", State::FewFiles, State::Disabled},
    {u"MenuConvertirCV", State::OpenDocument, State::Disabled},
    {u"MenuImprimerCV", State::OpenDocument, State::Disabled},
    {u"MenuOuvrirWord", State::LastWordVersion, State::LastWordVersion},
    // Once disabled by a free slot, these two stay so.
    {u"MenuEnvoyerAmi", State::Kept, State::Disabled},
    {u"MenuEnvoyerRecruteur", State::Kept, State::Disabled},
}};

constexpr std::array<Rule, 5> LetterRules{{
    {u"MenuRédigerLettre", State::Disabled, State::Enabled},
    {u"MenuOuvrirLettre", State::Enabled, State::Disabled},
    {u"MenuDuppliquerLettre", State::Enabled, State::Disabled},
    {u"MenuSupprimerLettre", State::Enabled, State::Disabled},
    {u"RenommerLettre", State::Enabled, State::Disabled},
}};

bool HoldsFile(const MenuSlot& slot, bool letter) {
  if (letter) return slot.picture != SlotPicture::ImageNew;
  return slot.picture == SlotPicture::ImageCV || slot.picture == SlotPicture::CVWord ||
         slot.picture == SlotPicture::CVPDF;
}

bool HasWordVersion(const Environment& environment, TextView cvFile) {
  std::error_code unreadable;
  return std::filesystem::is_regular_file(LastWordVersion(environment, DocumentsLayout::OfTheSystem, cvFile),
                                          unreadable);
}

}  // namespace

std::span<const MenuTree> MenuTrees() { return Trees; }

TextView MenuOfSlot(std::size_t slot) {
  if (slot < Principale::FirstLetterSlot) return Trees[0].name;
  return slot < Principale::CandidatureSlot ? Trees[1].name : Trees[2].name;
}

void EnableSlotMenu(Menus& menus, const Principale& principale, std::size_t slot, bool cvOpen,
                    const Environment& environment) {
  if (slot >= Principale::CandidatureSlot) return;
  const bool letter = slot >= Principale::FirstLetterSlot;
  const MenuSlot& clicked = principale.ImageMenu[slot];
  const auto enabled = [&](State state) {
    // The list is the one read last, which is that of the letters after each change of the files.
    constexpr std::size_t MostFiles = 5;
    if (state == State::FewFiles) return principale.ListedFiles.Count() < MostFiles;
    if (state == State::OpenDocument) return cvOpen && Contains(clicked.toolTip, u".dat");
    if (state == State::LastWordVersion) return HasWordVersion(environment, clicked.toolTip);
    return state == State::Enabled;
  };
  const std::span<const Rule> rules = letter ? std::span<const Rule>{LetterRules} : CvRules;
  for (const Rule& rule : rules) {
    const State state = HoldsFile(clicked, letter) ? rule.holding : rule.free;
    if (state != State::Kept) menus.Enable(rule.item, enabled(state));
  }
}

}  // namespace talvor
