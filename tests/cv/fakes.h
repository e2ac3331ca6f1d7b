// The surroundings of the CV engine, as tests see them.
#pragma once

#include <map>
#include <vector>

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace talvor {

class FakeShell : public Shell {
 public:
  void Show(TextView form) override { Log(u"show ", form); }
  void Load(TextView form) override { Log(u"load ", form); }
  void Unload(TextView form) override { Log(u"unload ", form); }
  bool FormeVisible(TextView form) const override { return Contains(visible, form); }
  void Focus(TextView form, TextView field) override { Log(u"focus ", Text{form} + u"." + Text{field}); }
  void PumpEvents() override {}
  void Wait(int milliseconds) override { waited += milliseconds; }

  Text visible;
  std::vector<Text> log;
  int waited = 0;

 private:
  void Log(TextView what, TextView whom) { log.push_back(Text{what}.append(whom)); }
};

class FakeDialogs : public Dialogs {
 public:
  void Tell(TextView message) override { told.emplace_back(message); }
  bool Confirm(TextView) override { return true; }

  std::vector<Text> told;
};

}  // namespace talvor
