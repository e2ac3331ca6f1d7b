// Any bytes as JSON Lines on the standard input of `talvorctl analyser --lot`: each line that is not blank
// has its answer, a line too, and nothing but a refusal comes of a line that is no record.

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>

#include "cli/commands.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::istringstream in(bytes);
  std::ostringstream out;
  std::ostringstream err;
  talvor::cli::Console console{in, out, err};
  talvor::cli::AnalyserLot(console);

  std::istringstream lines(bytes);
  long long records = 0;
  for (std::string line; std::getline(lines, line);)
    records += line.find_first_not_of(" \t\r") != std::string::npos;
  const std::string answers = out.str();
  if (std::count(answers.begin(), answers.end(), '\n') != records) __builtin_trap();
  return 0;
}
