#pragma once

#include <QColor>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

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

// Where a file is looked for when nothing is known of it: on what is plugged in below `mountFolders`, the
// folder of all where it is several, and else in the user's home.
[[nodiscard]] QString UsersFolder(const QStringList& mountFolders);

// File and colour dialogs of Qt over the main window.
class QtPickers : public Pickers {
 public:
  void SetFrame(QWidget* frame) { frame_ = frame; }
  std::optional<std::filesystem::path> OpenFile(const FileQuestion& question) override;
  std::optional<std::filesystem::path> SaveFile(const FileQuestion& question) override;
  std::optional<Colour> PickColour() override;

  // Where the colour dialog starts; an invalid colour is white.
  std::function<QColor()> askCurrentColour;

 private:
  QPointer<QWidget> frame_;
};

}  // namespace talvor
