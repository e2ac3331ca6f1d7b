#include <iostream>

#include "cli/commands.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  talvor::cli::Console console{std::cin, std::cout, std::cerr};
  const auto code = talvor::cli::RunCommandLine({argv + 1, argv + argc}, console);
  // An output that could not be written (a full disk, a closed pipe) is a failure of the command.
  if (!std::cout.flush()) {
    std::cerr << "talvorctl\u00A0: le résultat n’a pas pu être écrit\n";
    return talvor::cli::Refused;
  }
  return code;
}
