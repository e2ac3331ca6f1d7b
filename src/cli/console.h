// cli: the command-line tool talvorctl, a thin shell over the core. Texts are UTF-8.
#pragma once

#include <istream>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/text.h"
#include "platform/browser.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

namespace talvor::cli {

// Where a command reads and writes.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
};

enum ExitCode : int { Done = 0, Refused = 1, WrongUsage = 2 };

// A refusal, told on standard error. The message is French, UTF-8.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Messages go to standard error, questions are never answered with OK.
class ConsoleDialogs : public Dialogs {
 public:
  explicit ConsoleDialogs(std::ostream& err) : err_(err) {}
  void Tell(TextView message) override { err_ << ToUtf8(message) << '\n'; }
  [[nodiscard]] bool Confirm(TextView) override { return false; }

 private:
  std::ostream& err_;
};

// A terminal has no forms and no events.
class ConsoleShell : public Shell {
 public:
  void Show(TextView) override {}
  void Load(TextView) override {}
  void Unload(TextView) override {}
  [[nodiscard]] bool FormeVisible(TextView) const override { return false; }
  void Focus(TextView, TextView) override {}
  void PumpEvents() override {}
  void Wait(int) override {}
};

// Stands at one address and goes nowhere.
class ConsoleBrowser : public Browser {
 public:
  explicit ConsoleBrowser(Text address) : address_(std::move(address)) {}
  void Navigate(TextView) override {}
  [[nodiscard]] Text LocationURL() const override { return address_; }

 private:
  Text address_;
};

}  // namespace talvor::cli
