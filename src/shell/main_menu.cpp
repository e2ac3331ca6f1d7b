#include "shell/main_menu.h"

#include <array>

namespace talvor {
namespace {

constexpr TextView CreateNew = u"Créer nouveau";
constexpr std::array<TextView, 4> LetterKinds{u"(IS)", u"(IR)", u"(ES)", u"(ER)"};

}  // namespace

Text SlotInformation(const Principale& principale, std::size_t slot) {
  const Text& name = principale.ImageMenu[slot].toolTip;
  if (name.empty()) return Text{CreateNew};
  if (slot == Principale::CandidatureSlot) return name;
  return (slot < Principale::FirstLetterSlot ? u"CV : " : u"Modèle de lettre : ") + name;
}

Text KindInName(TextView name) {
  Text kind;
  for (const TextView candidate : LetterKinds)
    if (Contains(name, candidate)) kind = candidate.substr(1, 2);
  return kind;
}

Text SlotCaption(const Principale& principale, std::size_t slot) {
  const MenuSlot& shown = principale.ImageMenu[slot];
  if (slot == Principale::CandidatureSlot && shown.picture != SlotPicture::ImageLettre)
    return u"Candidatures";
  if (shown.toolTip.empty()) return Text{CreateNew};
  Text name = shown.toolTip.substr(0, shown.toolTip.rfind(u'.'));
  for (const TextView kind : LetterKinds) name = ReplaceAll(name, kind, u"");
  return Text{TrimBlanks(name)};
}

void HoverCandidatures(Principale& principale, bool over) {
  MenuSlot& slot = principale.ImageMenu[Principale::CandidatureSlot];
  if (slot.picture == SlotPicture::ImageCandidature && over)
    slot.picture = SlotPicture::ImageCandidatureSel;
  else if (slot.picture == SlotPicture::ImageCandidatureSel && !over)
    slot.picture = SlotPicture::ImageCandidature;
}

void MainMenu::Activate() {
  if (shell_.FormeVisible(LoadSaveForm)) shell_.Show(LoadSaveForm);
  shell_.Unload(StatisticsForm);
}

void MainMenu::Resize() { shell_.Unload(AssistantForm); }

void MainMenu::GoHome() {
  if (shell_.FormeVisible(AssistantForm)) return;
  shell_.Unload(HomeForm);
  shell_.Load(HomeForm);
  for (const TextView form : {LetterForm, EditorForm, CandidatureForm, GuideForm, EditorHelpForm})
    shell_.Unload(form);
  shell_.PumpEvents();
  shell_.Load(AssistantForm);
}

void MainMenu::OpenBackup() { shell_.Show(LoadSaveForm); }
void MainMenu::OpenAbout() { shell_.Show(AboutForm); }

void MainMenu::OpenCandidatures() {
  shell_.Load(CandidatureForm);
  shell_.Show(CandidatureForm);
}

void MainMenu::Unload() {
  for (const TextView form : {AssistantForm, EditorHelpForm, GuideForm, SplashForm}) shell_.Unload(form);
}

}  // namespace talvor
