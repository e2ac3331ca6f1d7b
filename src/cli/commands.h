// The commands, one function each. They throw CommandError, StoreError or filesystem_error for what is
// refused or fails, and otherwise return the exit code.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "cli/console.h"
#include "cv/cv_document.h"

namespace talvor::cli {

struct AnalyseOptions {
  std::string file = "-";
  std::optional<std::string> address;
  std::optional<std::string> date;
  std::optional<std::string> initial;
  bool unglue = false;
  bool raw = false;
};

// The fields of one advertisement as a JSON object.
ExitCode Analyser(const AnalyseOptions& options, Console& console);

// JSON Lines on standard input, a record a line on standard output. A line that is no record gives an
// object with the key "erreur", and the command ends with a refusal once all lines are read.
ExitCode AnalyserLot(Console& console);

// The rating of a page's text as a JSON object.
ExitCode Evaluer(const std::string& file, const std::optional<std::string>& address, Console& console);

// The data folder given by --espace, empty for the usual one.
ExitCode Preparer(const std::string& workspace, Console& console);

struct CaptureOptions {
  std::string file = "-";
  std::optional<std::string> address;
};

// Analyses an advertisement, saves it and prints its number.
ExitCode Capturer(const std::string& workspace, const CaptureOptions& options, Console& console);

// The list, grouped by `tri` (societes, dates, statuts, origine).
ExitCode Candidatures(const std::string& workspace, const std::string& tri, bool json, Console& console);

// One candidature by its number.
ExitCode UneCandidature(const std::string& workspace, std::int32_t num, bool json, Console& console);

// The page of a report, "liste" or "justificatif", on standard output; nothing without any row.
ExitCode Rapport(const std::string& workspace, const std::string& report, Console& console);

// The counts by status and the interviews to come.
ExitCode Statistiques(const std::string& workspace, bool json, Console& console);

struct ComposeOptions {
  std::string file;
  std::optional<std::string> date;
};

// Composes a letter model; `Text1`, `Objet` and `Domaine` as a JSON object. The file stays as it is.
ExitCode LettreComposer(const ComposeOptions& options, Console& console);

struct MergeOptions {
  std::string file;
  std::string candidature;  // a JSON file of fields of `FormCand`, "-" for standard input
  std::optional<std::string> date;
};

// Merges a letter model with a candidature; `Texte`, `Email` and `Objet` as a JSON object.
ExitCode LettreFusionner(const MergeOptions& options, Console& console);

// The CV of a file, under the name of that file; throws CommandError when it cannot be read.
[[nodiscard]] CvDocument CvOf(const std::filesystem::path& file);

struct RenderOptions {
  std::string file;
  std::string model;
  bool photo = false;
};

// The page of a CV as UTF-8, its lines ended by CR LF, whatever character set the template declares.
// The language grid is summed up anew, and the CV bears the name of its file.
ExitCode RendreCv(const RenderOptions& options, Console& console);

struct ConvertOptions {
  std::string file;
  std::string target;  // its ending tells the format
};

// Writes a CV as a document for a word processor or as PDF, over one of that name; prints its path.
// Template and photo come from the data folder given by --espace, or else from the one of the CV.
ExitCode ConvertirCv(const std::string& workspace, const ConvertOptions& options, Console& console);

// The eleven fields of a pasted identity block as a JSON object, empty where no line fills them.
ExitCode IdentiteCv(const std::string& file, Console& console);

// Copies the whole data folder into a folder, under its own name.
ExitCode Sauvegarder(const std::string& workspace, const std::string& folder, Console& console);

// Copies such a copy over the data folder; `folder` is the copy itself, or the one that it was made in.
ExitCode Restaurer(const std::string& workspace, const std::string& folder, Console& console);

// Runs the tool on its arguments (without the program's name).
[[nodiscard]] ExitCode RunCommandLine(std::vector<std::string> arguments, Console& console);

}  // namespace talvor::cli
