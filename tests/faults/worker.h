// A program at work on a data folder, without its windows.
#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <vector>

#include "app/form_load_save.h"
#include "capture/form_cand_capture.h"
#include "letters/form_lettre.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/file_fakes.h"
#include "tests/faults/ledger.h"

namespace talvor::faults {

// Beside the data folder: where the backups go.
inline constexpr const char* Key = "../cle";

class Worker {
 public:
  // Begins where the ledger ends. `tell` hears each word at once.
  Worker(unsigned seed, const Ledger& ledger, Day today, std::function<void(const Word&)> tell);

  // Starts as the program does, which ages the statuses. False when it refuses to.
  [[nodiscard]] bool Start();
  // One action, drawn by chance. Throws what the program would end with.
  void Act();

  [[nodiscard]] const std::vector<Text>& Told() const { return dialogs_.told; }

 private:
  void NewRow();
  void ChangedRow();
  void Capture();
  void SaveCv();
  void SaveLetter();
  void BackUp();
  void Restore();
  void SaveRow(const std::function<void()>& save, std::int32_t id);
  [[nodiscard]] int Draw(int below);

  std::mt19937 chance_;
  std::function<void(const Word&)> tell_;
  FakeClock clock_{{2026, 1, 1}};
  FakeEnvironment environment_;
  FakeDialogs dialogs_;
  FakeShell shell_;
  FakeBrowser browser_;
  FakePickers pickers_;
  Principale principale_{shell_};
  FormCand form_{principale_, clock_, dialogs_, shell_, browser_};
  FormCandCapture capture_{form_, clock_, browser_};
  FormLettre lettre_{principale_, clock_, dialogs_, shell_};
  FormLoadSave backup_{{principale_, shell_, dialogs_, pickers_, clock_}};
  std::vector<std::int32_t> rows_;
  std::int32_t version_ = 1;
};

}  // namespace talvor::faults
