// `FormConvert`, the dialog around the conversion of the CV in the editor.
#pragma once

#include <filesystem>

#include "sending/conversion.h"

namespace talvor {

class FormConvert {
 public:
  explicit FormConvert(const CvConversion::Surroundings& around) : around_(around), conversion_(around) {}

  Text DocProgram;                      // the program associated with .doc
  Text Info{u"Aucun fichier trouvé."};  // the last converted version, with its date
  bool infoLeads = false;               // a click on `Info` opens that version

  // The form is loaded, which comes before anything else asked of it.
  void Charger();

  void OpenLastVersion();
  void OpenDocumentsFolder();
  void Close();
  void ConvertToDoc();  // and closes the form
  void OpenPage();
  void ConvertToPdf();  // and closes the form

 private:
  void Ouvrir(const std::filesystem::path& target);

  CvConversion::Surroundings around_;
  CvConversion conversion_;
  std::filesystem::path target_;
};

}  // namespace talvor
