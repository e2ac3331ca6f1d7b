#include "app/process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace talvor {
namespace {

constexpr std::size_t LongestOutput = 64 * 1024;

// A pipe whose reading end never blocks; neither end outlives the object, nor goes to the program by
// itself.
class Pipe {
 public:
  Pipe() {
    if (::pipe2(ends_.data(), O_CLOEXEC) != 0) ends_ = {-1, -1};
    if (IsOpen()) ::fcntl(ends_[0], F_SETFL, O_NONBLOCK);
  }
  ~Pipe() {
    for (int& end : ends_) Close(end);
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  [[nodiscard]] bool IsOpen() const { return ends_[0] >= 0; }
  [[nodiscard]] int WritingEnd() const { return ends_[1]; }
  void CloseWritingEnd() { Close(ends_[1]); }

  // Waits at most that long for something to read.
  void WaitForInput(int milliseconds) const {
    pollfd entry{ends_[0], POLLIN, 0};
    // At its end, too, the pipe has something to tell: without a pause the loop would spin.
    if (ended_ || ::poll(&entry, 1, milliseconds) < 0) ::usleep(static_cast<useconds_t>(milliseconds) * 1000);
  }
  // Takes over what has come; what is beyond the longest output is thrown away.
  void ReadInto(std::string& output) {
    std::array<char, 4096> block{};
    ssize_t count = 0;
    while ((count = ::read(ends_[0], block.data(), block.size())) > 0)
      if (output.size() < LongestOutput) output.append(block.data(), static_cast<std::size_t>(count));
    ended_ = count == 0;
  }

 private:
  static void Close(int& end) {
    if (end >= 0) ::close(end);
    end = -1;
  }

  std::array<int, 2> ends_{-1, -1};
  bool ended_ = false;
};

// How the program is started: in a group of its own, its outputs into the pipe, its input empty.
class SpawnOrder {
 public:
  explicit SpawnOrder(const Pipe& pipe) {
    ::posix_spawn_file_actions_init(&actions_);
    ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions_, pipe.WritingEnd(), STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions_, pipe.WritingEnd(), STDERR_FILENO);
    ::posix_spawnattr_init(&attributes_);
    ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETPGROUP);
    ::posix_spawnattr_setpgroup(&attributes_, 0);
  }
  ~SpawnOrder() {
    ::posix_spawn_file_actions_destroy(&actions_);
    ::posix_spawnattr_destroy(&attributes_);
  }
  SpawnOrder(const SpawnOrder&) = delete;
  SpawnOrder& operator=(const SpawnOrder&) = delete;

  // 0, or the reason for which nothing was started.
  [[nodiscard]] int Start(std::vector<std::string> arguments, pid_t& child) const {
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return ::posix_spawnp(&child, pointers.front(), &actions_, &attributes_, pointers.data(), environ);
  }

 private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

}  // namespace

ProcessEnd RunProcess(const std::vector<std::string>& arguments, std::chrono::milliseconds limit,
                      const std::function<void()>& whileWaiting) {
  ProcessEnd end;
  Pipe pipe;
  if (!pipe.IsOpen() || arguments.empty()) return end;
  pid_t child = 0;
  if (const int fault = SpawnOrder(pipe).Start(arguments, child); fault != 0) {
    end.kind = fault == ENOENT ? ProcessEnd::Kind::NotFound : ProcessEnd::Kind::Failed;
    return end;
  }
  pipe.CloseWritingEnd();

  constexpr int StepMilliseconds = 50;
  const auto deadline = std::chrono::steady_clock::now() + limit;
  int status = 0;
  pid_t ended = 0;
  while ((ended = ::waitpid(child, &status, WNOHANG)) == 0) {
    if (std::chrono::steady_clock::now() >= deadline) {
      end.kind = ProcessEnd::Kind::TooLong;
      ::kill(-child, SIGKILL);
      ::waitpid(child, &status, 0);
      break;
    }
    if (whileWaiting) whileWaiting();
    pipe.WaitForInput(StepMilliseconds);
    pipe.ReadInto(end.output);
  }
  pipe.ReadInto(end.output);
  if (ended == child && WIFEXITED(status)) {
    end.kind = ProcessEnd::Kind::Exited;
    end.exitCode = WEXITSTATUS(status);
  }
  return end;
}

}  // namespace talvor
