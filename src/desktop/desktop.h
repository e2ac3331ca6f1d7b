// The whole program over its windows: who owns what, and how the forms meet.
#pragma once

#include <QPointer>
#include <memory>
#include <optional>

#include "app/form_load_save.h"
#include "capture/form_cand_capture.h"
#include "desktop/browser/web_browser.h"
#include "desktop/candidatures/form_cand_window.h"
#include "desktop/cv/cv_desk.h"
#include "desktop/letters/letter_window.h"
#include "desktop/main_window.h"
#include "desktop/platform/print_preview.h"
#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/platform/qt_documents.h"
#include "desktop/sending/sending_desk.h"
#include "desktop/shell/home_window.h"
#include "desktop/shell/library_desk.h"
#include "desktop/shell/splash.h"
#include "platform/environment.h"
#include "reports/printed_reports.h"
#include "reports/statistics.h"
#include "shell/assistant.h"
#include "shell/guide.h"
#include "shell/home_panel.h"
#include "shell/mise_en_page.h"

namespace talvor {

class Desktop {
 public:
  // What the program runs on must outlive it. Files are picked with the dialogs of Qt unless others are
  // given.
  Desktop(const Theme& theme, const Environment& environment, const Clock& clock, Dialogs& dialogs,
          Pickers* pickers = nullptr);
  ~Desktop();

  // The start of the program, from the splash to the home panel. False when it is to end at once, the
  // reason told. Throws StoreError when the database fails.
  [[nodiscard]] bool Start();
  // The same without the splash and its waits.
  [[nodiscard]] bool StartAtOnce();
  // No timer ticks any more: a failure has been caught.
  void Stop();

  [[nodiscard]] MainWindow& Main() { return *main_; }
  [[nodiscard]] QtShell& Windows() { return shell_; }
  [[nodiscard]] Principale& Model() { return principale_; }
  [[nodiscard]] FormCand& Candidatures() { return *formCand_; }
  [[nodiscard]] FormLettre& Letter() { return formLettre_; }
  [[nodiscard]] QtPagePreview& Preview() { return preview_; }
  [[nodiscard]] FormCandWeb& Web();
  [[nodiscard]] WebBrowser& Pages() { return browser_; }
  [[nodiscard]] CvDesk& Cv() { return cv_; }
  [[nodiscard]] LibraryDesk& Library() { return library_; }
  [[nodiscard]] FormLoadSave& Backup() { return backup_; }
  [[nodiscard]] SendingDesk& Sending() { return *sending_; }
  // The window of the candidatures, or null.
  [[nodiscard]] FormCandWindow* CandidatureWindow() const { return formCandWindow_; }
  // The window of the letters, or null.
  [[nodiscard]] LetterWindow* LettersWindow() const { return letterWindow_; }

 private:
  void MakeFormCand();
  void RegisterForms();
  void RegisterHome();
  void RegisterCandidatures();
  void RegisterLetters();
  void RegisterLibrary();
  void RegisterCandidatureMenus();
  void RegisterBackup();
  void RegisterSmallForms();
  void KeepTyping();
  void CloseDocuments();
  void NewLetter();
  void OpenLetter(TextView file);
  void RegisterReports();
  void RegisterCv();
  void RegisterSending();
  void RegisterGuide();
  void RegisterSplash();
  void RefreshMain();
  bool LoadPrincipale();

  const Theme& theme_;
  const Environment& environment_;
  const Clock& clock_;
  Dialogs& dialogs_;

  QtShell shell_;
  WebBrowser browser_{dialogs_};
  Principale principale_{shell_};
  AssistantTexte assistantTexte_{principale_, shell_, dialogs_};
  Guide guide_{principale_, shell_};
  FormLettre formLettre_{principale_, clock_, dialogs_, shell_};
  QtDocuments documents_;
  FormStat formStat_{clock_};
  QtPagePreview preview_{theme_};
  PrintedReports reports_{principale_, clock_, environment_, dialogs_, shell_, preview_};
  Depart depart_;
  QtClipboard clipboard_;
  // Begun anew at each load of the form; the ones before live on while an action of theirs goes on.
  struct CandidatureModels;
  std::shared_ptr<CandidatureModels> candidatures_;
  FormCand* formCand_ = nullptr;
  QtPickers ownPickers_;
  Pickers& pickers_;
  CvDesk cv_;
  LibraryDesk library_;
  FormLoadSave backup_;
  Assistant assistant_{shell_};
  MiseEnPage miseEnPage_{shell_, dialogs_};
  std::optional<SendingDesk> sending_;

  std::unique_ptr<MainWindow> main_;
  bool placeKnown_ = false;  // from the last run
  QPointer<FormCandWindow> formCandWindow_;
  QPointer<HomeWindow> homeWindow_;
  QPointer<LetterWindow> letterWindow_;
};

}  // namespace talvor
