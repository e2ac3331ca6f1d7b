// The editor of CVs in the program: its view model with all that stands around it, and how other
// windows open it.
#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <optional>

#include "cv/editor.h"
#include "desktop/cv/cv_page_view.h"
#include "desktop/cv/cv_window.h"
#include "desktop/platform/print_preview.h"
#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/platform/qt_documents.h"
#include "desktop/platform/qt_shell.h"
#include "desktop/shell/menus.h"

namespace talvor {

class CvDesk {
 public:
  // All of them must outlive it.
  struct Program {
    Principale& principale;
    QtShell& shell;
    const Theme& theme;
    const Environment& environment;
    const Clock& clock;
    Dialogs& dialogs;
    Pickers& pickers;
  };
  explicit CvDesk(Program program);

  // Called after each action of the window.
  std::function<void()> OnActed;

  // The printer that takes the page without a question, null when there is none.
  std::function<std::shared_ptr<QPrinter>()> makePrinter;

  // Registers `FormRédigerCV` and its help `Aide`.
  void Register();
  // Opens the CV of that file name.
  void OpenFile(TextView name);
  // What was typed in the editor reaches its file.
  void KeepTyping();
  // The editor is closed and opened empty.
  void OpenNew();
  // The page of the editor, in a print preview or straight to the printer; told when it cannot be.
  void Preview();
  void Print();

  [[nodiscard]] FormRédigerCV& Form() { return *form_; }
  // The window, or null.
  [[nodiscard]] CvWindow* Window() const { return window_; }
  // The print preview last opened, or null once it is closed.
  [[nodiscard]] PrintPreviewWindow* PreviewWindow() const { return printPreview_; }

 private:
  void MakeForm();
  QWidget* MakeWindow(QWidget* parent);
  void Chosen(TextView item);
  void ShowHelp(TextView text);
  void PlaceHelp(QWidget& panel);
  void OpenLastWordVersion();

  Program program_;
  CvPreview preview_;
  QtMenus menus_;
  QtClipboard clipboard_;
  QtDocuments documents_;
  // Begun anew at each load of the form, in its place.
  std::optional<FormRédigerCV> form_;
  QPointer<CvWindow> window_;
  QPointer<PrintPreviewWindow> printPreview_;
};

}  // namespace talvor
