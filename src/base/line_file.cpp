#include "base/line_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "base/code_page.h"

namespace talvor {
namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }

std::error_code WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return LastError();
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return ::fsync(descriptor) == 0 ? std::error_code{} : LastError();
}

// Why a file cannot be read, which the stream does not say.
Failure ReadFailure(const std::filesystem::path& file) {
  std::error_code error;
  if (std::filesystem::is_directory(file, error)) return std::errc::is_a_directory;
  const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return LastError();
  ::close(descriptor);
  if (std::filesystem::file_size(file, error) > LargestFile && !error) return std::errc::file_too_large;
  return std::errc::io_error;
}

}  // namespace

std::filesystem::path PathOf(TextView text) { return std::filesystem::path{ToUtf8(text)}; }

std::optional<Text> TextOf(const std::filesystem::path& path) { return FromUtf8(path.native()); }

Result<std::string> ReadBytes(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return ReadFailure(file);
  if (std::filesystem::file_size(file, error) > LargestFile) return ReadFailure(file);
  std::ifstream stream{file, std::ios::binary};
  std::string bytes;
  std::array<char, 65536> block{};
  while (stream.read(block.data(), block.size()) || stream.gcount() > 0)
    bytes.append(block.data(), static_cast<std::size_t>(stream.gcount()));
  if (!stream.eof() || stream.bad()) return ReadFailure(file);
  return bytes;
}

Result<> WriteBytes(const std::filesystem::path& file, std::string_view bytes) {
  std::error_code error;
  std::filesystem::remove(file, error);
  if (error) return error;
  const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (descriptor < 0) return LastError();
  error = WriteAll(descriptor, bytes);
  if (::close(descriptor) != 0 && !error) error = LastError();
  if (error) {
    std::error_code ignored;  // the first failure is the one to tell
    std::filesystem::remove(file, ignored);
  }
  return error;
}

std::vector<Text> SplitLines(TextView text) {
  const char16_t end = Contains(text, u"\r") ? u'\r' : u'\n';
  std::vector<Text> lines;
  while (!text.empty()) {
    const auto length = text.find(end);
    lines.emplace_back(text.substr(0, length));
    if (length == TextView::npos) break;
    text.remove_prefix(length + 1);
    if (end == u'\r' && text.starts_with(u'\n')) text.remove_prefix(1);
  }
  return lines;
}

std::optional<std::vector<Text>> ReadLines(const std::filesystem::path& file) {
  const auto bytes = ReadBytes(file);
  if (!bytes) return std::nullopt;
  return SplitLines(FromCodePage(*bytes));
}

}  // namespace talvor
