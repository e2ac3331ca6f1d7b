// The preview of a printed report: the real part of `PagePreview`.
#pragma once

#include <QDialog>
#include <QPointer>
#include <QPrinter>
#include <memory>

#include "desktop/theme.h"
#include "platform/page_preview.h"

class QProgressBar;
class QWebEngineView;

namespace talvor {

class SealedPage;

// The window: the report as it prints, with print, page set-up, zoom and PDF.
class ReportWindow : public QDialog {
 public:
  ReportWindow(const Theme& theme, QWidget* parent);

  void LoadReport(const QUrl& file);
  [[nodiscard]] bool IsComplete() const { return complete_; }
  [[nodiscard]] QWebEngineView& View() { return *view_; }

  // Writes the report to a PDF file; `done` hears whether it stands.
  void SavePdf(const QString& file, const std::function<void(bool)>& done);

 private:
  QLayout* MakeTools(const Theme& theme);
  void Print();
  void SetUpPage();
  void AskForPdf();
  void Zoom(qreal factor);
  void Tell(const QString& text);

  QWebEngineView* view_;
  QProgressBar* progress_;
  QPrinter printer_;
  bool complete_ = false;
};

class QtPagePreview : public PagePreview {
 public:
  explicit QtPagePreview(const Theme& theme) : theme_(theme) {}
  void SetFrame(QWidget* frame) { frame_ = frame; }
  // The window of the last report, or null once it is closed.
  [[nodiscard]] ReportWindow* Window() const { return window_; }

  void Navigate(TextView address) override;
  [[nodiscard]] bool IsComplete() const override { return window_ && window_->IsComplete(); }
  void Preview() override;

 private:
  const Theme& theme_;
  QPointer<QWidget> frame_;
  QPointer<ReportWindow> window_;
};

}  // namespace talvor
