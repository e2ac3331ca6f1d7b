// What sends and converts, over its windows: the forms `FormPostuler` and `FormConvert`.
#pragma once

#include <QPointer>
#include <functional>
#include <optional>

#include "app/libre_office.h"
#include "desktop/desks/desk.h"
#include "desktop/platform/page_pdf.h"
#include "desktop/platform/qt_documents.h"
#include "desktop/platform/xdg_mail_client.h"
#include "desktop/sending/apply_window.h"
#include "desktop/sending/convert_window.h"

namespace talvor {

class SendingDesk : public Desk {
 public:
  explicit SendingDesk(const DeskSurroundings& around);

  void CloseDocuments() override;
  void Stop() override;

  // The ways into the apply form that review a candidature: its picture on `FormCand`, and
  // `MenuPostuler`.
  void OpenFromFormCand(const ApplyRequest& request);
  void OpenFromMenu();

  // The apply form, or null while it is not loaded.
  [[nodiscard]] FormPostuler* Apply();

 private:
  void OfferWays();
  void RegisterForms();
  void MakeApply();
  void Review(const std::function<void()>& wayIn);
  QWidget* MakeApplyWindow(QWidget* parent);
  QWidget* MakeConvertWindow(QWidget* parent);

  DeskSurroundings around_;
  XdgMailClient mail_;
  QtDocuments documents_;
  LibreOffice wordProcessor_;
  PagePdf printer_;
  // Begun anew at each load of the form, in its place.
  std::optional<FormPostuler> apply_;
  std::optional<FormConvert> convert_;
  QPointer<ApplyWindow> applyWindow_;
};

}  // namespace talvor
