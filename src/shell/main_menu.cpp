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

void SurvolerCandidatures(Principale& principale, bool over) {
  MenuSlot& slot = principale.ImageMenu[Principale::CandidatureSlot];
  if (slot.picture == SlotPicture::ImageCandidature && over)
    slot.picture = SlotPicture::ImageCandidatureSel;
  else if (slot.picture == SlotPicture::ImageCandidatureSel && !over)
    slot.picture = SlotPicture::ImageCandidature;
}

void MainMenu::Activer() {
  if (shell_.FormeVisible(u"FormLoadSave")) shell_.Show(u"FormLoadSave");
  shell_.Unload(u"FormStat");
}

void MainMenu::Redimensionner() { shell_.Unload(u"Assistant"); }

void MainMenu::ClicMenu() {
  if (shell_.FormeVisible(u"Assistant")) return;
  shell_.Unload(u"AssistantTexte");
  shell_.Load(u"AssistantTexte");
  for (const TextView form : {u"FormLettre", u"FormRédigerCV", u"FormCand", u"Guide", u"Aide"})
    shell_.Unload(form);
  shell_.PumpEvents();
  shell_.Load(u"Assistant");
}

void MainMenu::ClicSauver() { shell_.Show(u"FormLoadSave"); }
void MainMenu::ClicLogo() { shell_.Show(u"APropos"); }

void MainMenu::DoubleClicCandidatures() {
  shell_.Load(u"FormCand");
  shell_.Show(u"FormCand");
}

void MainMenu::Decharger() {
  for (const TextView form : {u"Assistant", u"Aide", u"Guide", u"Depart"}) shell_.Unload(form);
}

}  // namespace talvor
