// `FormRédigerCV`, the editor of one CV: the zones to fill, how the page looks, and its live preview.
//
// The fields of the form are those of the document. A window reports what the user does by the methods
// below and shows the fields afterwards; a method that is given an index or a name that does not exist
// does nothing. Indexes are 0-based.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "cv/cv_document.h"
#include "platform/browser.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/menus.h"
#include "platform/pickers.h"
#include "platform/shell.h"
#include "workspace/principale.h"

namespace talvor {

class FormRedigerCV : public CvDocument {
 public:
  struct Surroundings {
    Principale& principale;
    Shell& shell;
    Dialogs& dialogs;
    Pickers& pickers;
    Menus& menus;
    Browser& preview;
    Clipboard& clipboard;
    const Environment& environment;
    const Clock& clock;
    std::function<void(TextView)> showHelp;  // puts a text into the panel `Aide`
    std::function<void()> layOut;            // gives the controls and the preview their sizes
    // -- Ways out of the menus; one that is not set does nothing.
    std::function<void()> previsualiser, imprimer;  // the page, in a print preview or straight to the printer
    std::function<void(TextView document)> ouvrirDocument;
  };

  // The option panels, of which one at most is open.
  enum class Panel { None, Templates, Fonts, Paragraph, Colours };

  explicit FormRedigerCV(Surroundings surroundings);

  bool RenderingOn = true;         // nothing renders while it is off
  bool IdentityBoxVisible = true;  // the box of the pasted identity block
  bool compact = false;            // the layout is the compact one
  Panel openPanel = Panel::None;
  Text ZonesTitle;
  std::string Photo;               // bytes of the picture on show, whatever its kind; empty without
  std::vector<Text> templateRows;  // the rows of `ListeModeles`: templates without extension
  static constexpr int CompactUnder = 16000;  // width of the form in twips

  // Opening the editor; `width` is that of the form in twips (platform/twips.h).
  void Open(int width);

  // Fills the form from a file, given by its full path, and renders. A field that the file lacks keeps
  // its text; a file that cannot be read changes none. The CV takes the file's own name.
  void ChargerFichierCV(const std::filesystem::path& chemin);

  // Writes the CV to its file; failures are told to the user.
  void SauvegarderCV();

  // Saves what was typed since the last save, as the next render would: the form is about to go, or to
  // take another CV. A CV without a surname has no file yet and stays without one.
  void EnregistrerSaisie();

  // Renders the page into Modeles/CVtemp.html and shows it; a CV with a surname is saved at once.
  // Without its template it does nothing. Template names are bare file names: one that holds a folder
  // counts as missing.
  void VisualisationCV();

  // Sets a text field, as typing or choosing does, and runs the rule of its change.
  void Change(TextView field, TextView text);
  // The focus comes to a field, or leaves it.
  void Enter(TextView field);
  void Leave(TextView field);

  void Render() { VisualisationCV(); }
  void ToggleParagraph(std::size_t i);
  void ToggleOrder(std::size_t i);
  // A click on a box of the grid; `grid` is the name of the check group, `i` the language.
  void ToggleLanguage(TextView grid, std::size_t i);

  void ChooseSwatch(std::size_t i);
  void ChooseOtherColour();  // by the dialog
  void OpenTemplates();
  void OpenFonts();
  void ChooseTemplate(std::size_t row);
  void ChooseFont(std::size_t i);
  void ChooseSituation(std::size_t row);
  void ClosePanels() { openPanel = Panel::None; }

  void HideIdentityBox();
  void CompactLayout();
  // One of the five entries above the page: paragraph, colours, language, printing, Word version.
  void OpenEntry(std::size_t i);
  // The help of the icon of that number (cv/editor_texts.h).
  void ShowHelpOf(int i);

  // -- The menus of the buttons.
  // Runs the item of that name; false for a name of other menus.
  bool Choose(TextView item);
  void PrévisualiserCV();
  void ImprimerCV();
  void MessageTrames();  // the advice on printing
  void MenuFrancais();
  void MenuAnglais();
  void RattacherPhoto();
  void CollerPhoto();
  void SupprimerPhoto();
  void MenuConvFWord();  // the conversion
  void ConsulterWord();  // the last word-processor version

  // Where the page goes as a PDF: beside the converted versions.
  [[nodiscard]] std::filesystem::path VersionPDF() const;

 private:
  void SaveUnderName();
  void TakeLine(TextView line);
  void LoadPhotoOf(TextView name);
  void AgeFromBirthDate();
  void TakeColour(Colour colour);
  void OpenPanel(Panel panel);
  void OpenPanelFocusing(Panel panel, TextView field);
  void OfferLastWordVersion();

  Surroundings around_;
  bool unsaved_ = false;  // something was typed since the last save
};

}  // namespace talvor
