// The letters in the program: the form `FormLettre`, its window, and how other windows open it.
#pragma once

#include <QPointer>

#include "desktop/desks/desk.h"
#include "desktop/letters/letter_window.h"
#include "desktop/platform/qt_documents.h"

namespace talvor {

class LetterDesk : public Desk {
 public:
  explicit LetterDesk(const DeskSurroundings& around);

  void KeepTyping() override;
  void CloseDocuments() override;
  void Stop() override;

  // A new letter; the one before keeps what was typed.
  void OpenNew();
  // The letter model of that file name.
  void OpenFile(TextView name);

  [[nodiscard]] FormLettre& Form() { return form_; }
  // The window, or null.
  [[nodiscard]] LetterWindow* Window() const { return window_; }

 private:
  QWidget* MakeWindow(QWidget* parent);
  void Unloaded();

  DeskSurroundings around_;
  FormLettre form_;
  QtDocuments documents_;
  QPointer<LetterWindow> window_;
};

}  // namespace talvor
