// What sends and converts, over its windows: the forms `FormPostuler` and `FormConvert`.
#pragma once

#include <QPointer>
#include <functional>
#include <optional>

#include "app/libre_office.h"
#include "desktop/cv/cv_desk.h"
#include "desktop/platform/page_pdf.h"
#include "desktop/platform/qt_documents.h"
#include "desktop/platform/qt_shell.h"
#include "desktop/platform/xdg_mail_client.h"
#include "desktop/sending/apply_window.h"
#include "desktop/sending/convert_window.h"

namespace talvor {

class SendingDesk {
 public:
  // All of them must outlive it.
  struct Program {
    Principale& principale;
    std::function<FormCand&()> formCand;
    std::function<CandidatureTexts()> tags;  // the texts of its fields
    CvDesk& cv;
    QtShell& shell;
    const Theme& theme;
    const Environment& environment;
    const Clock& clock;
    Dialogs& dialogs;
  };
  explicit SendingDesk(Program program);

  // Called after each action of the apply form.
  std::function<void()> OnActed;

  // Registers `FormPostuler` and `FormConvert`.
  void Register();
  // The ways into the apply form that review a candidature: its picture on `FormCand`, and
  // `MenuPostuler`.
  void OpenFromFormCand(const ApplyRequest& request);
  void OpenFromMenu();
  void StopTimer();

  // The apply form, or null while it is not loaded.
  [[nodiscard]] FormPostuler* Apply();

 private:
  void MakeApply();
  void Review(const std::function<void()>& wayIn);
  QWidget* MakeApplyWindow(QWidget* parent);
  QWidget* MakeConvertWindow(QWidget* parent);

  Program program_;
  XdgMailClient mail_;
  QtDocuments documents_;
  LibreOffice wordProcessor_;
  PagePdf printer_;
  // Begun anew at each load of the form, in its place.
  std::optional<FormPostuler> apply_;
  Text openedFor_;  // the number of its candidature, as it was at the load
  std::optional<FormConvert> convert_;
  QPointer<ApplyWindow> applyWindow_;
};

}  // namespace talvor
