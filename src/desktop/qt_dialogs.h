#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/dialogs.h"

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

}  // namespace talvor
