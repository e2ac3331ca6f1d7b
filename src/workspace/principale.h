// `Principale`, the model of the main window: the eleven menu slots and what the forms share.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>

#include "base/fields.h"
#include "platform/shell.h"
#include "workspace/workspace_paths.h"

namespace talvor {

enum class SlotPicture {
  None,  // before the first InitMenu
  ImageCV,
  CVWord,
  CVPDF,
  ImageLettre,
  ImageNew,
  ImageCandidature,
  ImageCandidatureSel,
};

// The tooltip is the slot's only record of what it stands for: a bare file name, empty on a free slot.
struct MenuSlot {
  bool visible = false;
  SlotPicture picture = SlotPicture::None;
  Text toolTip;
};

// The start page of the embedded browser; the program serves it itself, without a network.
inline constexpr TextView StartPage = u"talvor://accueil/";

// The identity of the CV last opened, under the keys of the CV file.
struct Identity {
  Text Nom, Prenom, Adresse1, CP, Ville, Tel, Email, Fonction;
};

inline constexpr FieldTable<Identity, 8> IdentityFields{{
    {u"Nom", &Identity::Nom},
    {u"Prénom", &Identity::Prenom},
    {u"Adresse1", &Identity::Adresse1},
    {u"CP", &Identity::CP},
    {u"Ville", &Identity::Ville},
    {u"Tel", &Identity::Tel},
    {u"Email", &Identity::Email},
    {u"Fonction", &Identity::Fonction},
}};

class Principale : public Identity {
 public:
  static constexpr std::size_t CvSlots = 5;          // slots 0 to 4
  static constexpr std::size_t FirstLetterSlot = 5;  // slots 5 to 9
  static constexpr std::size_t CandidatureSlot = 10;

  explicit Principale(Shell& shell);

  std::array<MenuSlot, 11> ImageMenu;
  std::int16_t IndexMenu = -1;  // the slot last clicked
  Text InfoGuide;               // what the next showing of `Guide` displays
  Text AdresseWeb{StartPage};
  Text NbCand;  // count of candidatures at the start, empty when there was none
  FileList ListedFiles;

  // Rebuilds slots 0 to 9 from the folders of CVs and letters. Slot 10 is never reset, but a sixth
  // letter lands on it; more CVs or letters than that are out of the menu's reach.
  void InitMenu();

  // Back to the home panel.
  void RetourMenu();

  // Takes the identity fields from a CV file. A file that cannot be read changes nothing.
  void ChargerInfosCV(const std::filesystem::path& file);

  // Shows a hint for a while; takes one second, in which events run.
  void AfficherGuide(TextView message);

 private:
  void InitCvSlots();
  void InitLetterSlots();

  Shell& shell_;
};

}  // namespace talvor
