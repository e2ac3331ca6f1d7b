#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

#include "desktop/letters/letter_sender_pane.h"
#include "desktop/letters/letter_sentences_pane.h"
#include "desktop/letters/letter_sheet_pane.h"
#include "desktop/widgets/field_binder.h"

class QSplitter;

namespace talvor {

// `FormLettre`: sender, sentence groups and the composed letter side by side.
class LetterWindow : public QWidget {
 public:
  // The model must outlive the window and must have been loaded.
  LetterWindow(FormLettre& form, const Theme& theme, QWidget* parent);

  // Called after anything the user has done here, and after each tick of the timer.
  std::function<void()> OnActed;

  // Runs an action of the model and shows what came of it. The window may be gone afterwards.
  void Do(const std::function<void()>& action);
  // A new letter; the emptied fields are shown before the first question.
  void NewLetter();
  // What the timer calls each 1000 ms.
  void Tick1000();
  void StopTimer() { saveTimer_.stop(); }

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Bind();
  void ConnectPanes();
  void ChainTabs();
  void TakeEdit(QWidget& field);
  void Refresh();

  FormLettre& form_;
  QSplitter* splitter_ = nullptr;
  LetterSenderPane* sender_ = nullptr;
  LetterSentencesPane* sentences_ = nullptr;
  LetterSheetPane* sheet_ = nullptr;
  FieldBinder binder_;
  QTimer saveTimer_;
  Text knownLetter_;  // `Text1` as composed, or as the user has left it
  bool edited_ = false;
  bool narrow_ = false;
};

}  // namespace talvor
