// The part of the editor that changes the photo of a CV.
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/line_file.h"
#include "cv/editor.h"
#include "cv/editor_texts.h"
#include "cv/model_files.h"
#include "workspace/document_keeping.h"

namespace talvor {
namespace {

// Photos by a name that differs in case alone are one photo.
std::filesystem::path PhotoFile(TextView nomCV) {
  const Text name = Text{nomCV} + u".jpg";
  return ExistingModelFile(name).value_or(ModelFile(name));
}

// A pasted photo goes to another folder and under another name than an attached one: the page does not
// show it. A copy that fails leaves the picture on show in the form.
void KeepPastedPhoto(TextView nomModele, std::string_view picture) {
  if (!IsBareName(nomModele)) return;
  const auto folder = std::filesystem::current_path() / "Visualisation";
  static_cast<void>(WriteBytes(FileIn(folder, Text{nomModele} + u".jpg"), picture));
}

}  // namespace

void FormRedigerCV::RattacherPhoto() {
  const auto pictures = PathOf(around_.environment.Variable(u"homepath") + u"/Pictures");
  const auto chosen =
      around_.pickers.OpenFile({Text{editor_texts::PhotoTitle}, pictures, Text{editor_texts::PhotoFilter}});
  if (!chosen) return;
  auto picture = ReadBytes(*chosen);
  // The bytes are copied as they stand, whatever kind of picture they are.
  const auto saved = picture ? SaveDocument(PhotoFile(NomCV), *picture) : Result<>(picture.Why());
  if (saved.Failed())
    return around_.dialogs.Tell(u"La photographie " + Quoted(TextOf(*chosen).value_or(Text{})) +
                                u" n’a pas pu être copiée\u00A0: " + saved.Why().Cause() + u".");
  Photo = *std::move(picture);
  VisualisationCV();
}

void FormRedigerCV::CollerPhoto() {
  auto picture = around_.clipboard.Image();
  if (!picture) return;
  Photo = *std::move(picture);
  KeepPastedPhoto(NomModele, Photo);
  VisualisationCV();
}

void FormRedigerCV::SupprimerPhoto() {
  std::error_code ignored;  // a photo that is not there is gone already
  static_cast<void>(DeleteDocument(PhotoFile(NomCV)));
  std::filesystem::remove(PhotoFile(u"Photo"), ignored);
  Photo.clear();
  VisualisationCV();
}

}  // namespace talvor
