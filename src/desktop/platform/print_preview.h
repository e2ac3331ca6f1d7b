// A page before it goes to the printer: the preview of the reports and of the CV.
#pragma once

#include <QPointer>
#include <QPrinter>
#include <QUrl>
#include <functional>
#include <memory>

#include "desktop/platform/sealed_page.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/theme.h"
#include "platform/page_preview.h"

class QProgressBar;
class QWebEngineView;

namespace talvor {

// What is printed, and how it lies on the sheet until the user says otherwise.
struct PrintedPage {
  QString file;  // its path
  Reach reach = Reach::File;
  QPageLayout layout;
  QString pdf;  // proposed when the page is kept as PDF: the path of a file
};

// The window: the page as it prints, with print, page set-up, zoom and PDF.
class PrintPreviewWindow : public ScrollingDialog {
 public:
  PrintPreviewWindow(const Theme& theme, PrintedPage page, QWidget* parent);
  ~PrintPreviewWindow() override;

  [[nodiscard]] bool IsComplete() const { return complete_; }
  [[nodiscard]] QWebEngineView& View() { return *view_; }

  // Writes the page to a PDF file; `done` hears whether it stands.
  void SavePdf(const QString& file, const std::function<void(bool)>& done);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLayout* MakeTools(const Theme& theme);
  void Print();
  void SetUpPage();
  void LayOnDesk();
  void AskForPdf();
  [[nodiscard]] QString PickPdf();
  [[nodiscard]] bool MayReplace(const QString& file);
  void Zoom(qreal factor);
  void Tell(const QString& text);

  const Theme& theme_;
  PrintedPage printed_;
  QWebEngineView* view_;
  QProgressBar* progress_;
  std::shared_ptr<QPrinter> printer_;
  bool complete_ = false;
};

// The preview of the reports: the real part of `PagePreview`.
class QtPagePreview : public PagePreview {
 public:
  explicit QtPagePreview(const Theme& theme) : theme_(theme) {}
  void SetFrame(QWidget* frame) { frame_ = frame; }
  // The window of the last report, or null once it is closed.
  [[nodiscard]] PrintPreviewWindow* Window() const { return window_; }

  void Navigate(TextView address) override;
  [[nodiscard]] bool IsComplete() const override { return window_ && window_->IsComplete(); }
  void Preview() override;

 private:
  const Theme& theme_;
  QPointer<QWidget> frame_;
  QPointer<PrintPreviewWindow> window_;
};

}  // namespace talvor
