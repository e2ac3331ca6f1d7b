// Fakes of what picks files and offers menus.
#pragma once

#include <filesystem>
#include <map>
#include <optional>

#include "platform/menus.h"
#include "platform/pickers.h"

namespace talvor {

class FakePickers : public Pickers {
 public:
  std::optional<std::filesystem::path> OpenFile(const FileQuestion& question) override {
    asked = question;
    return file;
  }
  std::optional<std::filesystem::path> SaveFile(const FileQuestion& question) override {
    asked = question;
    return file;
  }
  std::optional<Colour> PickColour() override { return std::nullopt; }

  FileQuestion asked;
  std::optional<std::filesystem::path> file;  // nothing: the user gives up
};

class FakeMenus : public Menus {
 public:
  void Open(TextView menu) override { opened = menu; }
  void Enable(TextView item, bool value) override { enabled[Text{item}] = value; }
  void Check(TextView, bool) override {}

  Text opened;
  std::map<Text, bool> enabled;  // an item that no rule has touched is missing
};

}  // namespace talvor
