#include "app/file_error.h"

namespace talvor {

FileError::FileError(const std::filesystem::path& file, TextView what, const Failure& cause)
    : std::runtime_error(Quoted(file.string()) + " " + ToUtf8(what) + "\u00A0: " + ToUtf8(cause.Cause()) +
                         '.') {}

}  // namespace talvor
