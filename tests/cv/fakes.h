// The surroundings of the CV engine, as tests see them.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/browser.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/menus.h"
#include "platform/pickers.h"
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

class FakePickers : public Pickers {
 public:
  std::optional<std::filesystem::path> OpenFile(const FileQuestion& question) override {
    asked = question;
    return file;
  }
  std::optional<std::filesystem::path> SaveFile(const FileQuestion&) override { return std::nullopt; }
  std::optional<Colour> PickColour() override { return colour; }

  FileQuestion asked;
  std::optional<std::filesystem::path> file;
  std::optional<Colour> colour;
};

class FakeMenus : public Menus {
 public:
  void Open(TextView menu) override { opened = menu; }
  void Enable(TextView item, bool value) override { enabled[Text{item}] = value; }
  void Check(TextView item, bool value) override { checked[Text{item}] = value; }

  Text opened;
  std::map<Text, bool> enabled, checked;
};

class FakeBrowser : public Browser {
 public:
  void Navigate(TextView address) override { visited.emplace_back(address); }
  Text LocationURL() const override { return visited.empty() ? Text{BlankPage} : visited.back(); }

  std::vector<Text> visited;
};

class FakeClipboard : public Clipboard {
 public:
  std::optional<std::string> Image() override { return image; }
  Text ReadText() const override { return {}; }
  void Clear() override { image.reset(); }

  std::optional<std::string> image;
};

class FakeEnvironment : public Environment {
 public:
  Text Variable(TextView name) const override {
    const auto found = variables.find(Text{name});
    return found == variables.end() ? Text{} : found->second;
  }

  std::map<Text, Text> variables;
};

class FakeClock : public Clock {
 public:
  Day Today() const override { return today; }

  Day today;
};

}  // namespace talvor
