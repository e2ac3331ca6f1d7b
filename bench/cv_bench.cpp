// What one render of a CV costs, template read and page written, beside reading and writing the same
// bytes.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "base/code_page.h"
#include "base/line_file.h"
#include "cv/model_files.h"
#include "cv/renderer.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

// Three printed pages of a long career.
CvDocument LongCareer() {
  CvDocument cv;
  cv.Nom = u"Marchand";
  cv.Prenom = u"Julie";
  cv.Ville = u"Lyon";
  cv.Police = u"Verdana";
  cv.Couleur = u"#112233";
  cv.CouleurClaire = u"#DDEEFF";
  for (int year = 1985; year < 2025; ++year)
    cv.Experiences += u"Depuis " + NumberText(year) +
                      u" : Chargée de communication\r\n- Préparation des salons et des lettres\r\n- Suivi de "
                      u"la presse\r\n\r\n";
  cv.Etudes = u"1984 : Licence de lettres\r\n1981 : Baccalauréat\r\n";
  cv.Competences = u"Rédaction, édition, relations publiques\r\n";
  return cv;
}

struct Folder {
  Folder() {
    fs::create_directory("Modeles");
    fs::copy_file(fs::path{TALVOR_DATA_FOLDER} / "Modeles/Basic.htm", ModelFile(u"Basic.htm"));
  }
  ScratchFolder scratch;
};

std::string Rendered(const CvDocument& cv) {
  return ToCodePage(FillTemplate(cv, *ReadTemplate(ModelFile(u"Basic.htm")), PhotoOnPage::None));
}

void ReadAndWriteBytes(benchmark::State& state) {
  const Folder folder;
  const std::string page = Rendered(LongCareer());
  for (auto _ : state) {
    benchmark::DoNotOptimize(ReadBytes(ModelFile(u"Basic.htm")));
    if (WriteBytes("CVtemp.html", page).Failed()) state.SkipWithError("the page could not be written");
  }
}

void RenderPage(benchmark::State& state) {
  const Folder folder;
  const CvDocument cv = LongCareer();
  for (auto _ : state)
    if (WriteBytes("CVtemp.html", Rendered(cv)).Failed())
      state.SkipWithError("the page could not be written");
}

BENCHMARK(ReadAndWriteBytes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(RenderPage)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace talvor
