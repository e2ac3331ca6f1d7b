// Fakes of what picks, opens and offers files.
#pragma once

#include <map>
#include <vector>

#include "platform/documents.h"
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
