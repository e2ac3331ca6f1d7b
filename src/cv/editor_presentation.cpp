// The part of the editor that sets how the page looks, opens its menus and gives help.
#include <algorithm>
#include <array>

#include "cv/colours.h"
#include "cv/editor.h"
#include "cv/editor_texts.h"
#include "workspace/document_keeping.h"
#include "workspace/documents_folder.h"

namespace talvor {

void FormRedigerCV::ToggleParagraph(std::size_t i) {
  static constexpr std::array<TextView, 4> Mirrors{u"Gras", u"Souligné", u"Indentation", u"Saut"};
  if (i >= Mirrors.size()) return;
  CheckParagraphe[i] = !CheckParagraphe[i];
  Change(Mirrors[i], CheckParagraphe[i] ? u"1" : u"0");
}

void FormRedigerCV::ToggleOrder(std::size_t i) {
  if (i > 1) return;
  CheckDisposition[i] = !CheckDisposition[i];
  CheckDisposition[1 - i] = !CheckDisposition[i];
  VisualisationCV();
}

void FormRedigerCV::ToggleLanguage(TextView grid, std::size_t i) {
  const CheckGroup* clicked = FindCheckGroup(grid);
  if (clicked == nullptr || !grid.starts_with(u"Langue") || i >= clicked->size) return;
  const bool ticked = !(this->*(clicked->values))[i];
  // A click that unticks a box empties the row as well.
  for (const auto& group : CheckGroups)
    if (group.name.starts_with(u"Langue")) (this->*(group.values))[i] = &group == clicked && ticked;
  VisualisationCV();
}

void FormRedigerCV::TakeColour(Colour colour) {
  // The change of the main colour renders, so that the pale one must stand before it.
  CouleurClaire = ColourText(PaleColour(colour));
  const Text main = ColourText(colour);
  if (Couleur == main)
    VisualisationCV();
  else
    Change(u"Couleur", main);
}

void FormRedigerCV::ChooseSwatch(std::size_t i) {
  if (i < Swatches.size()) TakeColour(Swatches[i]);
}

void FormRedigerCV::ChooseOtherColour() {
  if (const auto colour = around_.pickers.PickColour()) TakeColour(*colour);
}

void FormRedigerCV::OpenPanel(Panel panel) {
  ClosePanels();
  openPanel = panel;
}

void FormRedigerCV::OpenTemplates() { OpenPanel(Panel::Templates); }
void FormRedigerCV::OpenFonts() { OpenPanel(Panel::Fonts); }

void FormRedigerCV::ChooseTemplate(std::size_t row) {
  if (row >= templateRows.size()) return;
  ListeModeles = templateRows[row];
  Change(u"NomModele", ListeModeles);
  Change(u"Modèle", ListeModeles + u".htm");
  ClosePanels();
}

void FormRedigerCV::ChooseFont(std::size_t i) {
  if (i < editor_texts::Fonts.size()) Change(u"Police", editor_texts::Fonts[i]);
}

void FormRedigerCV::ChooseSituation(std::size_t row) {
  if (row >= editor_texts::Situations.size()) return;
  ListeSituations = editor_texts::Situations[row];
  Change(u"Situation", ListeSituations);
}

void FormRedigerCV::HideIdentityBox() { IdentityBoxVisible = false; }

void FormRedigerCV::CompactLayout() {
  compact = true;
  if (around_.layOut) around_.layOut();
}

void FormRedigerCV::OpenPanelFocusing(Panel panel, TextView field) {
  // The focus moves first: the field that it leaves may close the panels.
  around_.shell.Focus(EditorForm, field);
  OpenPanel(panel);
}

void FormRedigerCV::OfferLastWordVersion() {
  const auto version = ConvertedCv(around_.environment, DocumentsLayout::Newer, NomCV, u".doc");
  around_.menus.Enable(u"ConsulterWord", ExistingFile(version).has_value());
  around_.menus.Open(u"MenuConvertirWord");
}

void FormRedigerCV::OpenEntry(std::size_t i) {
  ClosePanels();
  switch (i) {
    case 0:
      OpenPanelFocusing(Panel::Paragraph, u"Age");
      break;
    case 1:
      OpenPanelFocusing(Panel::Colours, u"Nom");
      break;
    case 2:
      around_.menus.Open(u"MenuLangues");
      break;
    case 3:
      around_.menus.Open(u"MenuImprimer");
      break;
    case 4:
      OfferLastWordVersion();
      break;
    default:
      break;
  }
}

void FormRedigerCV::ShowHelpOf(int i) {
  const auto help = std::find_if(editor_texts::Help.begin(), editor_texts::Help.end(),
                                 [i](const auto& row) { return row.icon == i; });
  if (help == editor_texts::Help.end()) return;
  Text text;
  if (help->paragraph) text.append(editor_texts::ParagraphNote).append(LineEnd);
  text.append(help->text);
  if (!around_.shell.FormeVisible(EditorHelpForm)) around_.shell.Show(EditorHelpForm);
  if (around_.showHelp) around_.showHelp(text);
}

}  // namespace talvor
