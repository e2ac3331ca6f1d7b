#include "app/libre_office.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "app/office_page.h"
#include "app/process.h"
#include "app/temporary_folder.h"
#include "base/code_page.h"
#include "base/failure_cause.h"
#include "base/file_address.h"
#include "base/line_file.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

// What the program said, without the lines that it says each time.
Text Said(const std::string& output) {
  Text said;
  for (const Text& line : SplitLines(FromUtf8(output).value_or(FromCodePage(output)))) {
    if (line.empty() || line.starts_with(u"convert ") || Contains(line, u"javaldx")) continue;
    said += (said.empty() ? u"" : u" ") + line;
  }
  constexpr std::size_t Longest = 500;
  return said.substr(0, Longest);
}

Failure FaultOf(const ProcessEnd& end) {
  switch (end.kind) {
    case ProcessEnd::Kind::NotFound:
      return Failure(
          u"LibreOffice n’est pas installé sur ce poste. Installez le paquet libreoffice-writer, puis "
          u"recommencez la conversion.");
    case ProcessEnd::Kind::TooLong:
      return Failure(
          u"LibreOffice n’a pas terminé la conversion dans le temps imparti. Fermez les autres "
          u"programmes, puis recommencez.");
    case ProcessEnd::Kind::Exited:
    case ProcessEnd::Kind::Failed:
      break;
  }
  const Text said = Said(end.output);
  return Failure(u"LibreOffice n’a pas pu convertir le CV" +
                 (said.empty() ? Text{u"."} : u"\u00A0: " + said));
}

}  // namespace

bool IsDocumentEnding(TextView ending) {
  constexpr std::array<TextView, 4> Endings{u".doc", u".docx", u".odt", u".pdf"};
  const Text lower = LowerCase(ending);
  return std::find(Endings.begin(), Endings.end(), lower) != Endings.end();
}

Result<> LibreOffice::Export(const fs::path& page, const fs::path& target) {
  try {
    return Convert(page, target);
  } catch (const fs::filesystem_error& fault) {
    return Failure(u"Le document n’a pas pu être écrit dans le dossier " +
                   Quoted(TextOf(target.parent_path()).value_or(Text{})) + u"\u00A0: " +
                   CauseOf(fault.code()) + u".");
  }
}

Result<> LibreOffice::Convert(const fs::path& page, const fs::path& target) const {
  const auto bytes = ReadBytes(page);
  if (!bytes) return Failure(u"La page du CV est introuvable ou illisible.");

  const TemporaryFolder scratch;
  const fs::path copy = scratch.Path() / "cv.html";
  const auto written = WriteBytes(copy, OfficePage(FromCodePage(*bytes), page.parent_path()));
  if (written.Failed()) throw fs::filesystem_error("page", copy, written.Code());

  // Beside the target, so that the whole document takes its name in one step.
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::current_path();
  const TemporaryFolder outcome(folder);
  const std::string ending = ToUtf8(LowerCase(TextOf(target.extension()).value_or(Text{})));
  const ProcessEnd end =
      RunProcess({program, "-env:UserInstallation=" + ToUtf8(FileAddress(scratch.Path() / "profil")),
                  "--headless", "--norestore", "--infilter=HTML (StarWriter)", "--convert-to",
                  ending.substr(1), "--outdir", outcome.Path().string(), copy.string()},
                 limit, whileWaiting);
  const fs::path made = outcome.Path() / ("cv" + ending);
  if (end.kind != ProcessEnd::Kind::Exited || end.exitCode != 0 || !fs::exists(made)) return FaultOf(end);
  fs::rename(made, target);
  return {};
}

bool LibreOffice::HasOpen(const fs::path& file) const {
  fs::path lock = file.parent_path();
  lock /= ".~lock." + file.filename().string() + "#";
  std::error_code unreadable;
  return fs::exists(lock, unreadable);
}

}  // namespace talvor
