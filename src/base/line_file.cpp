#include "base/line_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>
#include <utility>

#include "base/code_page.h"

namespace talvor {
namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }

// A file that is new under its name; unless it is finished, it is deleted again.
class NewFile {
 public:
  explicit NewFile(const std::filesystem::path& file)
      : file_(file), descriptor_(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {
    if (descriptor_ < 0) error_ = LastError();
  }
  ~NewFile() {
    if (descriptor_ < 0) return;
    ::close(descriptor_);
    std::error_code ignored;  // the first failure is the one to tell
    std::filesystem::remove(file_, ignored);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  // Small pieces are gathered. After a failure nothing more is written.
  void Write(std::string_view piece) {
    constexpr std::size_t Block = 65536;
    if (gathered_.size() + piece.size() > Block) Flush();
    if (piece.size() > Block)
      WriteThrough(piece);
    else
      gathered_ += piece;
  }
  // Forces the file to the disk; the first failure, or none.
  std::error_code Finish() {
    Flush();
    if (!error_ && ::fsync(descriptor_) != 0) error_ = LastError();
    if (error_) return error_;
    if (::close(std::exchange(descriptor_, -1)) == 0) return {};
    error_ = LastError();
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
    return error_;
  }

 private:
  void Flush() {
    WriteThrough(gathered_);
    gathered_.clear();
  }
  void WriteThrough(std::string_view bytes) {
    while (!error_ && !bytes.empty()) {
      const auto written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0)
        error_ = LastError();
      else
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  const std::filesystem::path& file_;
  int descriptor_;
  std::error_code error_;
  std::string gathered_;
};

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
  return WritePieces(file, [bytes](const PieceSink& write) { write(bytes); });
}

Result<> WritePieces(const std::filesystem::path& file, const std::function<void(const PieceSink&)>& make) {
  std::error_code error;
  std::filesystem::remove(file, error);
  if (error) return error;
  NewFile begun(file);
  make([&begun](std::string_view piece) { begun.Write(piece); });
  return begun.Finish();
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
