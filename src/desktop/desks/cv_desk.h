// The editor of CVs in the program: the form `FormRédigerCV` with its help `Aide` and the advice on
// printing, and how other windows open it.
#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <optional>

#include "cv/editor.h"
#include "desktop/cv/cv_page_view.h"
#include "desktop/cv/cv_window.h"
#include "desktop/desks/desk.h"
#include "desktop/platform/print_preview.h"
#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_documents.h"
#include "desktop/platform/qt_menus.h"
#include "shell/mise_en_page.h"

namespace talvor {

class CvDesk : public Desk {
 public:
  explicit CvDesk(const DeskSurroundings& around);

  // The printer that takes the page without a question, null when there is none.
  std::function<std::shared_ptr<QPrinter>()> makePrinter;

  void KeepTyping() override;
  void CloseDocuments() override;

  // Opens the CV of that file name.
  void OpenFile(TextView name);
  // The editor is closed and opened empty.
  void OpenNew();
  // The page of the editor, in a print preview or straight to the printer; told when it cannot be.
  void Preview();
  void Print();

  [[nodiscard]] FormRedigerCV& Form() { return *form_; }
  // The window, or null.
  [[nodiscard]] CvWindow* Window() const { return window_; }
  // The print preview last opened, or null once it is closed.
  [[nodiscard]] PrintPreviewWindow* PreviewWindow() const { return printPreview_; }

 private:
  void MakeForm();
  QWidget* MakeWindow(QWidget* parent);
  void RegisterForms();
  void Loaded();
  void Unloaded();
  void ShowHelp(TextView text);
  void PlaceHelp(QWidget& panel);

  DeskSurroundings around_;
  CvPreview preview_;
  QtMenus menus_;
  QtClipboard clipboard_;
  QtDocuments documents_;
  MiseEnPage printAdvice_;
  // Begun anew at each load of the form, in its place.
  std::optional<FormRedigerCV> form_;
  QPointer<CvWindow> window_;
  QPointer<PrintPreviewWindow> printPreview_;
};

}  // namespace talvor
