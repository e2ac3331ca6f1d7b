#include "app/file_error.h"

#include "base/failure_cause.h"

namespace talvor {

FileError::FileError(const std::filesystem::path& file, TextView what, const std::error_code& cause)
    : std::runtime_error(Quoted(file.string()) + " " + ToUtf8(what) + "\u00A0: " + ToUtf8(CauseOf(cause)) +
                         '.') {}

}  // namespace talvor
