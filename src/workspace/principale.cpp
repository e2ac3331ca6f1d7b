#include "workspace/principale.h"

#include "base/line_file.h"

namespace talvor {
namespace {

// The tests look anywhere in the name, not only at its end, and Word comes before PDF.
SlotPicture PictureOfCv(TextView name) {
  if (Contains(name, u".doc") || Contains(name, u".docx") || Contains(name, u".rtf"))
    return SlotPicture::CVWord;
  if (Contains(name, u".pdf")) return SlotPicture::CVPDF;
  return SlotPicture::ImageCV;
}

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

}  // namespace

Principale::Principale(Shell& shell) : shell_(shell) {}

void Principale::InitMenu() {
  InitCvSlots();
  for (std::size_t i = FirstLetterSlot; i < CandidatureSlot; ++i) ImageMenu[i].visible = false;
  InitLetterSlots();
}

void Principale::InitCvSlots() {
  ListedFiles.Point(workspace_paths::CvFolder());
  for (std::size_t i = 0; i < CvSlots; ++i) {
    MenuSlot& slot = ImageMenu[i];
    slot.toolTip = ListedFiles.List(i);
    // One free slot behind the last file; the slots behind it are hidden and keep their old picture.
    slot.visible = ListedFiles.Count() >= i;
    if (ListedFiles.Count() > i)
      slot.picture = PictureOfCv(slot.toolTip);
    else if (ListedFiles.Count() == i)
      slot.picture = SlotPicture::ImageNew;
  }
}

void Principale::InitLetterSlots() {
  ListedFiles.Point(workspace_paths::LetterFolder());
  // A sixth letter takes over slot 10; the slots of the seventh and later ones do not exist.
  for (std::size_t i = 0; i < ListedFiles.Count() && FirstLetterSlot + i < ImageMenu.size(); ++i)
    ImageMenu[FirstLetterSlot + i] = {true, SlotPicture::ImageLettre, ListedFiles.List(i)};
  // With exactly four letters there is no free slot, although slot 9 is empty.
  constexpr std::size_t NoFreeSlotFrom = 4;
  if (ListedFiles.Count() < NoFreeSlotFrom)
    ImageMenu[FirstLetterSlot + ListedFiles.Count()] = {true, SlotPicture::ImageNew, {}};
}

void Principale::RetourMenu() {
  shell_.Unload(AssistantForm);
  shell_.Unload(HomeForm);
  shell_.Load(HomeForm);
}

void Principale::ChargerInfosCV(const std::filesystem::path& file) {
  const auto lines = ReadLines(file);
  if (!lines) return;
  for (const TextView line : *lines) {
    // A digit begins a check of a group, and the main window has none of those.
    const auto equals = line.find(u'=');
    if (line.empty() || IsDigit(line.front()) || equals == TextView::npos) continue;
    if (const auto* field = FindField(IdentityFields, line.substr(0, equals)))
      this->*(field->text) = ReplaceAll(line.substr(equals + 1), u"<N>", LineEnd);
  }
}

void Principale::AfficherGuide(TextView message) {
  constexpr int Rounds = 10;
  constexpr int RoundMilliseconds = 100;
  InfoGuide = message;
  for (int i = 0; i < Rounds; ++i) {
    shell_.Wait(RoundMilliseconds);
    shell_.PumpEvents();
  }
  // Loading the hint is what shows its message.
  shell_.Load(GuideForm);
  shell_.Unload(GuideForm);
}

}  // namespace talvor
