#include "tests/faults/inspection.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <system_error>

#include "base/fonctionnel.h"
#include "base/line_file.h"
#include "cv/cv_file.h"
#include "letters/letter_file.h"
#include "tests/faults/worker.h"
#include "tracking/store.h"
#include "workspace/document_keeping.h"
#include "workspace/workspace_paths.h"

namespace talvor::faults {
namespace {

namespace fs = std::filesystem;

void CheckIntegrity(const fs::path& file, Findings& findings) {
  SQLite::Database base(file.string(), SQLite::OPEN_READWRITE);
  const std::string verdict = base.execAndGet("PRAGMA integrity_check").getString();
  if (verdict != "ok") findings.faults.push_back(file.string() + ": " + verdict);
}

void CheckBase(Ledger& ledger, Day today, Findings& findings) {
  CheckIntegrity("Talvor.mdb", findings);
  FakeClock clock{{2026, 1, 1}};
  clock.today = today;
  Database database = Database::Open(clock);
  std::map<std::int32_t, std::int32_t> found;
  database.WalkRows(RowOrder::Unsorted, [&](const RowView& row) {
    const auto id = static_cast<std::int32_t>(ValeurNumerique(row.Value(&Candidature::Num)));
    const auto version = VersionOf(row.Value(&Candidature::Lettre));
    // A captured row has no body before its first change.
    const bool untouched =
        row.Value(&Candidature::Lettre).empty() && row.Value(&Candidature::Remarques).empty();
    if (!untouched && NumberText(version) != row.Value(&Candidature::Remarques))
      findings.faults.push_back("row " + std::to_string(id) + " is torn");
    found[id] = version;
  });
  for (auto& [id, versions] : ledger.rows) {
    const auto row = found.find(id);
    if (row == found.end())
      findings.faults.push_back("row " + std::to_string(id) + " is lost");
    else if (!versions.Allow(row->second))
      findings.faults.push_back("row " + std::to_string(id) + " has gone back to version " +
                                std::to_string(row->second));
  }
  for (const auto& [id, version] : found) ledger.rows[id] = {version, version};
}

using ReadVersion = std::int32_t (*)(const fs::path& file);

std::int32_t CvVersion(const fs::path& file) {
  CvDocument cv;
  return ReadCv(file, cv) ? VersionOf(cv.Experiences) : 0;
}

std::int32_t LetterVersion(const fs::path& file) {
  LetterModel model;
  const auto lines = ReadLines(file);
  if (!lines) return 0;
  for (const TextView line : *lines) ApplyLetterLine(model, line);
  return VersionOf(model.Text1);
}

void CheckDocument(const fs::path& file, ReadVersion read, Versions& versions, Findings& findings) {
  std::int32_t found = read(file);
  for (int age = 1; age <= KeptVersions && (found == 0 || !versions.Allow(found)); ++age) {
    found = read(KeptVersion(file, age));
    if (found != 0 && versions.Allow(found)) findings.fromCopies.push_back(file.string());
  }
  if (!versions.Allow(found)) findings.faults.push_back(file.string() + " is lost");
  versions = {found, found};
}

// The base of the backup goes first, so it may be missing; what stands on the key is whole.
void CheckKey(Findings& findings) {
  const fs::path landed = fs::path{Key} / fs::current_path().filename();
  if (fs::exists(landed / "Talvor.mdb")) CheckIntegrity(landed / "Talvor.mdb", findings);
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(landed / "CV", none))
    if (CvVersion(entry.path()) == 0) findings.faults.push_back(entry.path().string() + " is torn");
  for (const auto& entry : fs::directory_iterator(landed / "Lettres", none))
    if (LetterVersion(entry.path()) == 0) findings.faults.push_back(entry.path().string() + " is torn");
}

}  // namespace

Findings Inspect(Ledger& ledger, Day today) {
  Findings findings;
  CheckBase(ledger, today, findings);
  for (auto& [id, versions] : ledger.cvs)
    CheckDocument(ExistingFile(CvFile(CvName(id))).value_or(CvFile(CvName(id))), CvVersion, versions,
                  findings);
  for (auto& [id, versions] : ledger.letters)
    CheckDocument(FileIn(workspace_paths::LetterFolder(), LetterName(id) + u".dat"), LetterVersion, versions,
                  findings);
  CheckKey(findings);
  return findings;
}

}  // namespace talvor::faults
