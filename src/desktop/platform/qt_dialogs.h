#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/dialogs.h"
#include "platform/pickers.h"

namespace talvor {

// Message boxes of Qt over the main window.
class QtDialogs : public Dialogs {
 public:
  void SetFrame(QWidget* frame) { frame_ = frame; }
  void Tell(TextView message) override;
  bool Confirm(TextView question) override;

 private:
  QPointer<QWidget> frame_;
};

// File and colour dialogs of Qt over the main window.
class QtPickers : public Pickers {
 public:
  void SetFrame(QWidget* frame) { frame_ = frame; }
  std::optional<std::filesystem::path> OpenFile(const FileQuestion& question) override;
  std::optional<std::filesystem::path> SaveFile(const FileQuestion& question) override;
  std::optional<Colour> PickColour() override;

 private:
  QPointer<QWidget> frame_;
};

}  // namespace talvor
