// A program of the machine run to its end.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace talvor {

struct ProcessEnd {
  enum class Kind { Exited, NotFound, TooLong, Failed };
  Kind kind = Kind::Failed;
  int exitCode = -1;   // when it has exited by itself
  std::string output;  // what it wrote on both its outputs, its beginning at least
};

// Runs a program with its arguments (the first one is its name, looked up in the path; no shell reads
// them) and without input. Beyond the limit the program is killed with all that it has started.
// `whileWaiting` is called several times a second meanwhile.
[[nodiscard]] ProcessEnd RunProcess(const std::vector<std::string>& arguments,
                                    std::chrono::milliseconds limit,
                                    const std::function<void()>& whileWaiting = {});

}  // namespace talvor
