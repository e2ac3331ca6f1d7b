// The part of the editor that its menus reach.
#include <array>

#include "base/line_file.h"
#include "cv/editor.h"
#include "workspace/document_keeping.h"
#include "workspace/documents_folder.h"

namespace talvor {

bool FormRedigerCV::Choose(TextView item) {
  struct Action {
    TextView item;
    void (FormRedigerCV::*run)();
  };
  static constexpr std::array<Action, 10> Actions{{
      {u"PrévisualiserCV", &FormRedigerCV::PrévisualiserCV},
      {u"ImprimerCV", &FormRedigerCV::ImprimerCV},
      {u"MessageTrames", &FormRedigerCV::MessageTrames},
      {u"MenuFrancais", &FormRedigerCV::MenuFrancais},
      {u"MenuAnglais", &FormRedigerCV::MenuAnglais},
      {u"RattacherPhoto", &FormRedigerCV::RattacherPhoto},
      {u"CollerPhoto", &FormRedigerCV::CollerPhoto},
      {u"SupprimerPhoto", &FormRedigerCV::SupprimerPhoto},
      {u"MenuConvFWord", &FormRedigerCV::MenuConvFWord},
      {u"ConsulterWord", &FormRedigerCV::ConsulterWord},
  }};
  for (const Action& action : Actions)
    if (action.item == item) {
      (this->*action.run)();
      return true;
    }
  return false;
}

void FormRedigerCV::PrévisualiserCV() {
  if (around_.previsualiser) around_.previsualiser();
}

void FormRedigerCV::ImprimerCV() {
  if (around_.imprimer) around_.imprimer();
}

void FormRedigerCV::MessageTrames() { around_.shell.Show(PrintAdviceForm); }

void FormRedigerCV::MenuFrancais() {
  around_.menus.Check(u"MenuFrancais", true);
  around_.menus.Check(u"MenuAnglais", false);
  Change(u"LangueCV", u"0");
}

void FormRedigerCV::MenuAnglais() {
  around_.menus.Check(u"MenuAnglais", true);
  around_.menus.Check(u"MenuFrancais", false);
  Change(u"LangueCV", u"1");
}

void FormRedigerCV::MenuConvFWord() { around_.shell.Show(ConvertForm); }

// In "Documents", whatever the layout of the folders is.
void FormRedigerCV::ConsulterWord() {
  const auto version = ConvertedCv(around_.environment, DocumentsLayout::Newer, NomCV, u".doc");
  if (around_.ouvrirDocument)
    around_.ouvrirDocument(TextOf(ExistingFile(version).value_or(version)).value_or(Text{}));
}

std::filesystem::path FormRedigerCV::VersionPDF() const {
  return ConvertedCv(around_.environment, DocumentsLayout::Newer, NomCV, u".pdf");
}

}  // namespace talvor
