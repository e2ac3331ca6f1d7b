// The candidatures in the program: the form `FormCand` with its capture and its browser, and what the
// menus do to them.
#pragma once

#include <QPointer>
#include <functional>
#include <memory>

#include "app/candidature_menus.h"
#include "desktop/browser/web_browser.h"
#include "desktop/candidatures/form_cand_window.h"
#include "desktop/desks/desk.h"
#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_documents.h"
#include "desktop/platform/qt_menus.h"

namespace talvor {

class CandidatureDesk : public Desk {
 public:
  explicit CandidatureDesk(const DeskSurroundings& around);

  void Leave() override;
  void Close() override;
  void CloseDocuments() override;
  void Stop() override;

  [[nodiscard]] FormCand& Form();
  [[nodiscard]] FormCandWeb& Web();
  [[nodiscard]] WebBrowser& Pages() { return browser_; }
  // The window, or null.
  [[nodiscard]] FormCandWindow* Window() const { return window_; }

 private:
  // The form with its two other sides.
  struct Models;

  void MakeModels();
  QWidget* MakeWindow(QWidget* parent);
  void Loaded();
  void OpenItemMenu(QPoint place);
  void OfferWays();
  void ConnectMenus();
  void InWindow(const std::function<void()>& action);

  DeskSurroundings around_;
  WebBrowser browser_;
  QtClipboard clipboard_;
  QtDocuments documents_;
  QtMenus popup_;
  CandidatureMenus menus_;
  // Begun anew at each load of the form; the ones before live on while an action of theirs goes on.
  std::shared_ptr<Models> models_;
  QPointer<FormCandWindow> window_;
};

}  // namespace talvor
