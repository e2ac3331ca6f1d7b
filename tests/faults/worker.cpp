#include "tests/faults/worker.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "app/start_up.h"
#include "base/fonctionnel.h"
#include "cv/cv_file.h"
#include "tracking/status_lists.h"

namespace talvor::faults {
namespace {

constexpr int Documents = 3;  // CVs, and as many letters
constexpr TextView Advertisement =
    u"Comptable fournisseurs\r\nSociété : Maison Durand\r\nContrat : CDI\r\nLieu : 69003 Lyon\r\nRéf. 12\r\n";

}  // namespace

Worker::Worker(unsigned seed, const Ledger& ledger, Day today, std::function<void(const Word&)> tell)
    : chance_(seed), tell_(std::move(tell)) {
  clock_.today = today;
  for (const auto* objects : {&ledger.rows, &ledger.cvs, &ledger.letters})
    for (const auto& [id, versions] : *objects)
      version_ = std::max({version_, versions.begun + 1, versions.committed + 1});
  for (const auto& [id, versions] : ledger.rows)
    if (versions.committed != 0) rows_.push_back(id);
}

bool Worker::Start() {
  return ChargerPrincipale(principale_, environment_, clock_, dialogs_) == StartOutcome::Ready;
}

int Worker::Draw(int below) { return std::uniform_int_distribution<int>(0, below - 1)(chance_); }

void Worker::Act() {
  switch (Draw(8)) {
    case 0:
      return NewRow();
    case 1:
      return ChangedRow();
    case 2:
      return Capture();
    case 3:
      return SaveCv();
    case 4:
      return SaveLetter();
    case 5:
      return BackUp();
    case 6:
      return Restore();
    default:
      clock_.today.serial += Draw(10);
      if (!Start()) throw std::runtime_error("the base was not found");
  }
}

// A row that is new tells its number only once it stands.
void Worker::SaveRow(const std::function<void()>& save, std::int32_t id) {
  const std::int32_t version = version_++;
  form_.Lettre = Body(version);
  form_.Remarques = NumberText(version);
  if (id != 0) tell_({Kind::Row, id, version, 0});
  save();
  if (form_.Num.empty()) return;
  id = static_cast<std::int32_t>(ValeurNumerique(form_.Num));
  tell_({Kind::Row, id, version, 1});
  if (std::find(rows_.begin(), rows_.end(), id) == rows_.end()) rows_.push_back(id);
}

void Worker::NewRow() {
  form_.RunAction(DetailAction::New);
  form_.Intitule = u"Maçon";
  form_.Statut = ListeStatuts[static_cast<std::size_t>(Draw(static_cast<int>(ListeStatuts.size())))];
  form_.DateEnvoi = DateText(clock_.Today());
  SaveRow([this] { form_.Valider(); }, 0);
}

void Worker::ChangedRow() {
  if (rows_.empty()) return;
  const std::int32_t id = rows_[static_cast<std::size_t>(Draw(static_cast<int>(rows_.size())))];
  form_.ChargerCandidature(static_cast<std::int16_t>(id));
  SaveRow([this] { form_.SaveIfChanged(); }, id);
}

// The capture begins a detail of its own: its row takes the body afterwards, by the timer.
void Worker::Capture() {
  capture_.CapturerTexte(Text{Advertisement});
  if (form_.Num.empty()) return;
  SaveRow([this] { form_.SaveIfChanged(); }, static_cast<std::int32_t>(ValeurNumerique(form_.Num)));
}

void Worker::SaveCv() {
  const std::int32_t id = Draw(Documents);
  const std::int32_t version = version_++;
  CvDocument cv;
  cv.Nom = u"Marchand";
  cv.NomCV = CvName(id);
  cv.Experiences = Body(version);
  tell_({Kind::Cv, id, version, 0});
  if (SauvegarderCV(cv, dialogs_, principale_)) tell_({Kind::Cv, id, version, 1});
}

void Worker::SaveLetter() {
  const std::int32_t id = Draw(Documents);
  const std::int32_t version = version_++;
  lettre_.Nom = u"Marchand";
  lettre_.NomLettre = LetterName(id);
  lettre_.Text1 = Body(version);
  tell_({Kind::Letter, id, version, 0});
  lettre_.SaveIfChanged();
  if (!lettre_.saveFailed) tell_({Kind::Letter, id, version, 1});
}

void Worker::BackUp() {
  const std::filesystem::path key = std::filesystem::absolute(Key);
  std::error_code ignored;
  std::filesystem::create_directory(key, ignored);
  backup_.SauverDans(key / "Talvor.mdb");
}

// From a copy of what stands here, so that nothing goes back in time.
void Worker::Restore() {
  const std::filesystem::path here = std::filesystem::current_path();
  const std::filesystem::path copy = here.parent_path() / "copie" / here.filename();
  std::error_code ignored;
  std::filesystem::remove_all(copy.parent_path(), ignored);
  std::filesystem::create_directory(copy.parent_path(), ignored);
  if (backup_.SauverDans(copy.parent_path() / "Talvor.mdb")) backup_.Restaurer(copy, here);
}

}  // namespace talvor::faults
