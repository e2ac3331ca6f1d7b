// The tool run in this process: what it was told and what it said.
#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/commands.h"

namespace talvor::cli {

struct Result {
  int code;
  std::string out;
  std::string err;
};

inline Result Talvorctl(std::vector<std::string> arguments, const std::string& input = {}) {
  // A command may move into the data folder; the next one starts where the user stands.
  const auto here = std::filesystem::current_path();
  std::istringstream in{input};
  std::ostringstream out;
  std::ostringstream err;
  Console console{in, out, err};
  const int code = RunCommandLine(std::move(arguments), console);
  std::filesystem::current_path(here);
  return {code, out.str(), err.str()};
}

}  // namespace talvor::cli
