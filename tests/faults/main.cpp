// talvor_faults [KILLS]: the program is killed at random moments of its work and started again each time;
// then it works on a full disk, in a folder that cannot be written, and with the clock set back a year.
// Ends with 1 when anything committed was lost or torn.

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <functional>
#include <iostream>
#include <random>
#include <string>
#include <thread>

#include "app/installation.h"
#include "tests/fakes/scratch_folder.h"
#include "tests/faults/inspection.h"
#include "tests/faults/worker.h"
#include "tracking/store.h"

namespace {

namespace fs = std::filesystem;
using namespace talvor;
using namespace talvor::faults;

const Day FirstDay = *DayOf({2026, 3, 1});

// A process that works until it is killed or fails; what it says goes into the ledger.
class Process {
 public:
  Process(unsigned seed, const Ledger& ledger, Day today, const std::function<void()>& hinder) {
    int ends[2];
    if (::pipe(ends) != 0) std::abort();
    child_ = ::fork();
    if (child_ == 0) {
      ::close(ends[0]);
      hinder();
      Work(ends[1], seed, ledger, today);
    }
    ::close(ends[1]);
    words_ = ends[0];
  }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  void Kill() const { ::kill(child_, SIGKILL); }
  // Waits for its end and reads its last words. True when it ended by itself and in order.
  bool End(Ledger& ledger) {
    Word word;
    while (::read(words_, &word, sizeof word) == static_cast<ssize_t>(sizeof word)) ledger.Take(word);
    ::close(words_);
    int status = 0;
    ::waitpid(child_, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

 private:
  // An engine that fails ends the program in order, as the program itself does.
  [[noreturn]] static void Work(int words, unsigned seed, const Ledger& ledger, Day today) {
    Worker worker(seed, ledger, today, [words](const Word& word) {
      if (::write(words, &word, sizeof word) != static_cast<ssize_t>(sizeof word)) std::_Exit(2);
    });
    constexpr int Actions = 100000;
    try {
      if (!worker.Start()) std::_Exit(3);
      for (int i = 0; i < Actions; ++i) worker.Act();
    } catch (const std::exception&) {
      std::_Exit(0);
    }
    std::_Exit(4);
  }

  pid_t child_ = 0;
  int words_ = 0;
};

class Trial {
 public:
  // True when nothing was lost.
  bool Report(const std::string& what) {
    const Findings findings = Inspect(ledger, today);
    for (const std::string& fault : findings.faults) std::cout << what << ": " << fault << '\n';
    copies += findings.fromCopies.size();
    for (const std::string& file : findings.fromCopies)
      std::cout << what << ": " << file << " is taken from its kept version\n";
    return findings.faults.empty();
  }

  Ledger ledger;
  Day today = FirstDay;
  std::size_t copies = 0;
};

bool Kills(Trial& trial, int kills) {
  std::mt19937 chance(20260301);
  bool sound = true;
  for (int i = 0; i < kills; ++i) {
    trial.today.serial += i % 5 == 0;
    Process process(static_cast<unsigned>(chance()), trial.ledger, trial.today, [] {});
    std::this_thread::sleep_for(std::chrono::microseconds(chance() % 40000));
    process.Kill();
    process.End(trial.ledger);
    sound = trial.Report("kill " + std::to_string(i)) && sound;
  }
  std::cout << kills << " kills, " << trial.ledger.rows.size() << " rows, " << trial.copies
            << " documents taken from their kept version\n";
  return sound;
}

// No file may grow beyond a limit, as on a disk that is full.
bool FullDisk(Trial& trial) {
  bool sound = true;
  for (const rlim_t limit : {0U, 1000U, 5000U, 20000U, 40000U}) {
    Process process(static_cast<unsigned>(limit), trial.ledger, trial.today, [limit] {
      ::signal(SIGXFSZ, SIG_IGN);
      const rlimit files{limit, limit};
      if (::setrlimit(RLIMIT_FSIZE, &files) != 0) std::_Exit(5);
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    process.Kill();
    process.End(trial.ledger);
    sound = trial.Report("files of at most " + std::to_string(limit) + " bytes") && sound;
  }
  return sound;
}

// The administrator may write anywhere, so the work is done by nobody in particular.
bool ReadOnlyFolder(Trial& trial) {
  const auto each = [](fs::perms rights, fs::perm_options how) {
    for (const auto& entry : fs::recursive_directory_iterator("."))
      fs::permissions(entry.path(), rights, how);
    fs::permissions(".", rights, how);
  };
  constexpr auto Writing = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  each(Writing, fs::perm_options::remove);
  each(fs::perms::others_read | fs::perms::others_exec, fs::perm_options::add);
  Process process(1, trial.ledger, trial.today, [] {
    constexpr uid_t Nobody = 65534;
    if (::geteuid() == 0 && ::setuid(Nobody) != 0) std::_Exit(5);
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  process.Kill();
  process.End(trial.ledger);
  each(fs::perms::owner_write, fs::perm_options::add);
  return trial.Report("read-only folder");
}

// Statuses stay what they are; nothing is lost by a clock that goes back and comes again.
bool ClockSetBack(Trial& trial) {
  trial.today.serial -= 365;
  bool sound = true;
  for (unsigned seed = 0; seed < 5; ++seed) {
    Process process(seed, trial.ledger, trial.today, [] {});
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    process.Kill();
    process.End(trial.ledger);
    sound = trial.Report("clock set back") && sound;
    trial.today.serial += 73;
  }
  return sound;
}

}  // namespace

int main(int argc, char** argv) {
  constexpr int QuickForm = 100;
  const int kills = argc > 1 ? std::atoi(argv[1]) : QuickForm;
  const ScratchFolder folder;
  try {
    InstallerDossier(folder.Path() / "Talvor", DeliveredFiles());
    fs::current_path(folder.Path() / "Talvor");
    Trial trial;
    bool sound = Kills(trial, kills);
    sound = FullDisk(trial) && sound;
    sound = ReadOnlyFolder(trial) && sound;
    sound = ClockSetBack(trial) && sound;
    std::cout << (sound ? "nothing lost\n" : "SOMETHING WAS LOST\n");
    return sound ? EXIT_SUCCESS : EXIT_FAILURE;
  } catch (const std::exception& failure) {
    std::cout << "the folder could not be looked at: " << failure.what() << '\n';
    return EXIT_FAILURE;
  }
}
