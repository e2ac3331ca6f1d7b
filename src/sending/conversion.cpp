#include "sending/conversion.h"

#include <system_error>

#include "base/line_file.h"
#include "cv/model_files.h"
#include "workspace/document_keeping.h"
#include "workspace/documents_folder.h"
#include "workspace/systeme.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView InUse = u"Le fichier est en cours d'utilisation. Conversion impossible";
constexpr TextView NoPage =
    u"Il n’y a pas encore de page à convertir\u00A0: remplissez d’abord le CV, au moins son nom.";

// The old document, out of the way under a name of its own until the new one stands.
class OldVersion {
 public:
  explicit OldVersion(const fs::path& document) : document_(document) {
    if (const auto old = ExistingFile(document)) {
      document_ = *old;
      aside_ = *old;
      aside_ += "~";
      fs::rename(document_, aside_, error_);
    }
  }
  [[nodiscard]] bool IsGone() const { return !error_; }

  void BringBack() {
    if (!aside_.empty()) fs::rename(aside_, document_, error_);
  }
  void Forget() {
    if (!aside_.empty()) fs::remove(aside_, error_);
  }

 private:
  fs::path document_;
  fs::path aside_;  // empty when there was no old document
  std::error_code error_;
};

}  // namespace

fs::path CvConversion::Target(TextView ending) const {
  return ConvertedCv(around_.environment, DocumentsLayout::OfTheSystem, around_.editor.NomCV, ending);
}

// A target in use or without a folder, a CV without a name or without a page: told, and not converted.
bool CvConversion::CanConvert(const fs::path& target) {
  const Text& name = around_.editor.NomCV;
  if (name.empty() || !IsBareName(name) || !ExistingModelFile(u"CVtemp.html")) {
    around_.dialogs.Tell(NoPage);
    return false;
  }
  if (around_.wordProcessor.HasOpen(target)) {
    around_.dialogs.Tell(InUse);
    return false;
  }
  std::error_code error;
  fs::create_directories(target.parent_path(), error);
  if (!error) return true;
  around_.dialogs.Tell(u"Le dossier " + Quoted(TextOf(target.parent_path()).value_or(Text{})) +
                       u" ne peut pas être créé. Conversion impossible.");
  return false;
}

Result<> CvConversion::Export(PageExporter& exporter, const fs::path& target) const {
  const Hourglass hourglass(around_.waitCursor);
  return exporter.Export(*ExistingModelFile(u"CVtemp.html"), target);
}

void CvConversion::ConvertirWord() {
  if (!around_.shell.FormeVisible(EditorForm)) return;

  const fs::path target = Target(u".doc");
  if (!CanConvert(target)) return;

  // The old document goes before anything else is done; one that cannot go ends the conversion.
  OldVersion old(target);
  if (!old.IsGone()) return around_.dialogs.Tell(InUse);

  const auto exported = Export(around_.wordProcessor, target);
  if (exported.Failed()) {
    old.BringBack();
    return around_.dialogs.Tell(exported.Why().Cause());
  }
  old.Forget();

  // The word processor is left open for the user, showing the new document.
  OuvrirDocument(TextOf(target).value_or(Text{}), around_.documents, around_.dialogs);
}

void CvConversion::Replace(TextView ending, PageExporter& exporter) {
  if (!around_.shell.FormeVisible(EditorForm)) return;
  const fs::path target = Target(ending);
  if (!CanConvert(target)) return;
  const auto exported = Export(exporter, target);
  if (exported.Failed()) return around_.dialogs.Tell(exported.Why().Cause());
  OuvrirDocument(TextOf(target).value_or(Text{}), around_.documents, around_.dialogs);
}

void CvConversion::ConvertirODF() { Replace(u".odt", around_.wordProcessor); }
void CvConversion::ConvertirPDF() { Replace(u".pdf", around_.printer); }

}  // namespace talvor
