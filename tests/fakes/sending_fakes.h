// Fakes of what sends and converts: they keep what is asked of them, and fail where a test says so.
#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <vector>

#include "base/line_file.h"
#include "platform/mail_client.h"
#include "platform/word_processor.h"

namespace talvor {

class FakeMailClient : public MailClient {
 public:
  bool SignOn() override { return Step(u"SignOn"); }
  int SessionId() const override { return 7; }
  bool SelectMessage(int index) override { return Step(u"SelectMessage", NumberText(index)); }
  bool SetRecipient(TextView address) override { return Step(u"SetRecipient", address); }
  bool SetSubject(TextView subject) override { return Step(u"SetSubject", subject); }
  bool SetNoteText(TextView text) override { return Step(u"SetNoteText", text); }
  bool SelectAttachment(int index) override { return Step(u"SelectAttachment", NumberText(index)); }
  bool SetAttachmentPosition(int position) override {
    return Step(u"SetAttachmentPosition", NumberText(position));
  }
  bool SetAttachmentPath(TextView path) override { return Step(u"SetAttachmentPath", path); }
  bool SetAttachmentName(TextView name) override { return Step(u"SetAttachmentName", name); }
  bool SetAttachmentType(int type) override { return Step(u"SetAttachmentType", NumberText(type)); }
  bool SetSession(int id) override { return Step(u"SetSession", NumberText(id)); }
  bool Send(bool dialog) override {
    if (whileSending) whileSending();
    return Step(u"Send", dialog ? u"dialog" : u"");
  }
  Text LeftMessage() const override { return left; }

  std::set<Text> failing;  // the steps that do not work
  std::function<void()> whileSending;
  Text left;
  std::vector<Text> steps;

 private:
  bool Step(TextView name, TextView value = {}) {
    steps.push_back(Text{name} + (value.empty() ? u"" : u" ") + Text{value});
    return !failing.contains(Text{name});
  }
};

// Writes the bytes of the page and the name of the format, as a conversion of a kind.
class FakeWordProcessor : public WordProcessor {
 public:
  Result<> Export(const std::filesystem::path& page, const std::filesystem::path& target) override {
    stoodBefore = std::filesystem::exists(target);
    if (!fault.empty()) return Failure(fault);
    std::ofstream(target, std::ios::binary) << target.extension().string() << ' ' << *ReadBytes(page);
    return {};
  }
  bool HasOpen(const std::filesystem::path& file) const override { return open == file; }

  Text fault;
  std::filesystem::path open;
  bool stoodBefore = false;  // a document of that name was there when the last export began
};

}  // namespace talvor
