// Fakes of the platform interfaces: what a test sets, they answer; what is asked of them, they keep.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/browser.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/documents.h"
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
  void Wait(int milliseconds) override {
    waited += milliseconds;
    if (whileWaiting) whileWaiting();
  }

  std::set<Text> visible;
  std::vector<Text> calls;
  Text focus;
  int pumps = 0;
  int waited = 0;                      // milliseconds
  std::function<void()> whileWaiting;  // events that run during a wait
};

// A page as a test writes it.
struct FakePage {
  Text text;    // of its body
  Text markup;  // inside its body
  std::vector<PageElement> elements;
  int loading = 0;  // so many questions for the ready state until it is complete; below 0 it never is
};

// Shows the pages of its map, and an empty one at every other address.
class FakeBrowser : public DocumentBrowser {
 public:
  void Navigate(TextView address) override {
    location = address;
    visited.emplace_back(address);
    loading = Page().loading;
  }
  Text LocationURL() const override { return location; }
  void GoBack() override { calls.emplace_back(u"GoBack"); }
  void GoForward() override { calls.emplace_back(u"GoForward"); }
  void Stop() override { calls.emplace_back(u"Stop"); }
  int ReadyState() const override {
    if (loading == 0) return Complete;
    if (loading > 0) --loading;
    return 1;
  }
  Text BodyText(std::size_t characters) override {
    if (whileReading) whileReading();
    return Page().text.substr(0, characters);
  }
  Text BodyMarkup() override { return Page().markup; }
  void CopySelection() override {
    if (onCopy) onCopy();
  }
  std::vector<PageElement> Elements(std::size_t count) override {
    auto elements = Page().elements;
    if (elements.size() > count) elements.resize(count);
    return elements;
  }
  void SetValues(const std::vector<ElementValue>& values) override { set = values; }
  void SetNamedValue(TextView name, TextView value) override { named[Text{name}] = value; }

  std::map<Text, FakePage> pages;
  Text location{BlankPage};
  std::vector<Text> visited;
  std::vector<Text> calls;
  mutable int loading = 0;
  std::function<void()> whileReading;  // events that run while a page is read
  std::function<void()> onCopy;
  std::vector<ElementValue> set;  // of the last SetValues
  std::map<Text, Text> named;

 private:
  FakePage Page() const {
    const auto found = pages.find(location);
    return found == pages.end() ? FakePage{} : found->second;
  }
};

class FakeClipboard : public Clipboard {
 public:
  std::optional<std::string> Image() override { return std::nullopt; }
  Text ReadText() const override { return text; }
  void Clear() override { text.clear(); }

  Text text;
};

class FakeDocuments : public Documents {
 public:
  bool Open(TextView target) override {
    opened.emplace_back(target);
    return answer;
  }
  Text ProgramFor(TextView) const override { return program; }
  std::vector<Text> WindowTitles() const override { return titles; }

  bool answer = true;
  Text program;
  std::vector<Text> opened;
  std::vector<Text> titles;
};

}  // namespace talvor
