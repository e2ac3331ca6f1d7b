// Fakes of the platform interfaces: what a test sets, they answer; what is asked of them, they keep.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <vector>

#include "platform/browser.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/shell.h"

namespace talvor {

class FakeClock : public Clock {
 public:
  explicit FakeClock(CivilDate date) : today(*DayOf(date)) {}
  Day Today() const override { return today; }

  Day today;
};

class FakeEnvironment : public Environment {
 public:
  Text Variable(TextView name) const override {
    const auto found = values.find(Text{name});
    return found == values.end() ? Text{} : found->second;
  }

  std::map<Text, Text> values;
};

class FakeDialogs : public Dialogs {
 public:
  void Tell(TextView message) override {
    told.emplace_back(message);
    if (whileTelling) whileTelling();
  }
  bool Confirm(TextView question) override {
    asked.emplace_back(question);
    return answer;
  }

  bool answer = true;
  std::function<void()> whileTelling;  // events that run while a message box is up
  std::vector<Text> told;
  std::vector<Text> asked;
};

class FakeShell : public Shell {
 public:
  void Show(TextView form) override {
    visible.emplace(form);
    calls.push_back(u"Show " + Text{form});
  }
  void Load(TextView form) override { calls.push_back(u"Load " + Text{form}); }
  void Unload(TextView form) override {
    visible.erase(Text{form});
    calls.push_back(u"Unload " + Text{form});
  }
  bool FormeVisible(TextView form) const override { return visible.contains(Text{form}); }
  void Focus(TextView form, TextView field) override { focus = Text{form} + u"." + Text{field}; }
  void PumpEvents() override { ++pumps; }
  void Wait(int milliseconds) override { waited += milliseconds; }

  std::set<Text> visible;
  std::vector<Text> calls;
  Text focus;
  int pumps = 0;
  int waited = 0;  // milliseconds
};

class FakeBrowser : public Browser {
 public:
  void Navigate(TextView address) override { location = address; }
  Text LocationURL() const override { return location; }

  Text location{BlankPage};
};

}  // namespace talvor
