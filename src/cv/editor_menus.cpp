// The part of the editor that its menus reach.
#include <array>

#include "base/line_file.h"
#include "cv/editor.h"
#include "workspace/document_keeping.h"
#include "workspace/documents_folder.h"

namespace talvor {

bool FormRédigerCV::Choose(TextView item) {
  struct Action {
    TextView item;
    void (FormRédigerCV::*run)();
  };
  static constexpr std::array<Action, 10> Actions{{
      {u"PrévisualiserCV", &FormRédigerCV::PrévisualiserCV},
      {u"ImprimerCV", &FormRédigerCV::ImprimerCV},
      {u"MessageTrames", &FormRédigerCV::MessageTrames},
      {u"MenuFrancais", &FormRédigerCV::MenuFrancais},
      {u"MenuAnglais", &FormRédigerCV::MenuAnglais},
      {u"RattacherPhoto", &FormRédigerCV::RattacherPhoto},
      {u"CollerPhoto", &FormRédigerCV::CollerPhoto},
      {u"SupprimerPhoto", &FormRédigerCV::SupprimerPhoto},
      {u"MenuConvFWord", &FormRédigerCV::MenuConvFWord},
      {u"ConsulterWord", &FormRédigerCV::ConsulterWord},
  }};
  for (const Action& action : Actions)
    if (action.item == item) {
      (this->*action.run)();
      return true;
    }
  return false;
}

void FormRédigerCV::PrévisualiserCV() {
  if (around_.previsualiser) around_.previsualiser();
}

void FormRédigerCV::ImprimerCV() {
  if (around_.imprimer) around_.imprimer();
}

void FormRédigerCV::MessageTrames() { around_.shell.Show(PrintAdviceForm); }

void FormRédigerCV::MenuFrancais() {
  around_.menus.Check(u"MenuFrancais", true);
  around_.menus.Check(u"MenuAnglais", false);
  Change(u"LangueCV", u"0");
}

void FormRédigerCV::MenuAnglais() {
  around_.menus.Check(u"MenuAnglais", true);
  around_.menus.Check(u"MenuFrancais", false);
  Change(u"LangueCV", u"1");
}

void FormRédigerCV::MenuConvFWord() { around_.shell.Show(ConvertForm); }

// In "Documents", whatever the layout of the folders is.
void FormRédigerCV::ConsulterWord() {
  const auto version = ConvertedCv(around_.environment, DocumentsLayout::Newer, NomCV, u".doc");
  if (around_.ouvrirDocument)
    around_.ouvrirDocument(TextOf(ExistingFile(version).value_or(version)).value_or(Text{}));
}

std::filesystem::path FormRédigerCV::VersionPDF() const {
  return ConvertedCv(around_.environment, DocumentsLayout::Newer, NomCV, u".pdf");
}

}  // namespace talvor
