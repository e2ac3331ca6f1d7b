// A failure of a file that no form handles: the operation is over, and so is the program.
#pragma once

#include <filesystem>
#include <stdexcept>

#include "base/result.h"

namespace talvor {

// The message is French, UTF-8, and names the file and the cause.
class FileError : public std::runtime_error {
 public:
  // `what` is what could not be done to the file, as it follows its name: «n’a pas pu être copié».
  FileError(const std::filesystem::path& file, TextView what, const Failure& cause);
};

}  // namespace talvor
