#include "desktop/desktop.h"

#include <QCoreApplication>
#include <array>

#include "app/start_up.h"
#include "desktop/desks/backup_desk.h"
#include "desktop/desks/candidature_desk.h"
#include "desktop/desks/cv_desk.h"
#include "desktop/desks/help_desk.h"
#include "desktop/desks/home_desk.h"
#include "desktop/desks/letter_desk.h"
#include "desktop/desks/library_desk.h"
#include "desktop/desks/report_desk.h"
#include "desktop/desks/sending_desk.h"
#include "desktop/desks/splash_desk.h"
#include "desktop/platform/printing.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/shell/main_window.h"

namespace talvor {

struct Desktop::Parts {
  // What the desks stand on.
  QtShell shell;
  Principale principale{shell};
  QtPickers ownPickers;
  DeskWays ways;
  std::unique_ptr<MainWindow> main;
  DeskSurroundings around;

  // The desks, in any order.
  BackupDesk backup{around};
  CandidatureDesk candidatures{around};
  CvDesk cv{around};
  HelpDesk help{around};
  HomeDesk home{around};
  LetterDesk letters{around};
  LibraryDesk library{around};
  ReportDesk reports{around};
  SendingDesk sending{around};
  SplashDesk splash{around};
  std::array<Desk*, 10> desks{&backup,  &candidatures, &cv,      &help,    &home,
                              &letters, &library,      &reports, &sending, &splash};

  Parts(const Theme& theme, const Environment& environment, const Clock& clock, Dialogs& dialogs,
        Pickers* pickers)
      : main(std::make_unique<MainWindow>(principale, shell, theme)),
        around{shell,       principale, *main,   theme,
               environment, clock,      dialogs, pickers == nullptr ? ownPickers : *pickers,
               ways} {}
  // The windows look at the models of the desks: they go first.
  ~Parts() { main.reset(); }

  void OfAll(void (Desk::*action)()) {
    for (Desk* desk : desks) (desk->*action)();
  }
  void AfterTyping(void (Desk::*action)()) {
    OfAll(&Desk::KeepTyping);
    OfAll(action);
  }
};

Desktop::Desktop(const Theme& theme, const Environment& environment, const Clock& clock, Dialogs& dialogs,
                 Pickers* pickers)
    : environment_(environment),
      clock_(clock),
      dialogs_(dialogs),
      parts_(std::make_unique<Parts>(theme, environment, clock, dialogs, pickers)) {
  OfferWays();
  ConnectMain();
}

Desktop::~Desktop() = default;

void Desktop::OfferWays() {
  Parts& parts = *parts_;
  parts.ways.refresh = [&parts] {
    if (parts.main) parts.main->Refresh();
  };
  parts.ways.keepTyping = [&parts] { parts.OfAll(&Desk::KeepTyping); };
  parts.ways.closeDocuments = [&parts] { parts.AfterTyping(&Desk::CloseDocuments); };
  parts.ownPickers.SetFrame(parts.main.get());
  parts.ownPickers.askCurrentColour = [&parts] { return QColor(ToQt(parts.cv.Form().Couleur)); };
}

void Desktop::ConnectMain() {
  Parts& parts = *parts_;
  parts.shell.Over(MainForm, [&parts](QWidget*) { return parts.main.get(); });
  parts.main->BeforeMenu = [&parts] { parts.AfterTyping(&Desk::Leave); };
  parts.main->OnClosed = [&parts] {
    parts.AfterTyping(&Desk::Close);
    FinishPrinting();
    QCoreApplication::quit();
  };
  parts.main->Header().askOpenFile = [&parts](TextView page) {
    return (page == LetterForm ? parts.letters.Form().NomLettre : parts.cv.Form().NomCV) + u".dat";
  };
}

bool Desktop::LoadPrincipale() {
  if (ChargerPrincipale(Model(), environment_, clock_, dialogs_) != StartOutcome::Ready) return false;
  Main().Refresh();
  placeKnown_ = Main().RestorePlace();
  Windows().Show(MainForm);
  Windows().PumpEvents();
  return true;
}

bool Desktop::Start() {
  return parts_->splash.Play([this] { return LoadPrincipale(); },
                             [this] {
                               if (!placeKnown_) Main().showMaximized();
                             });
}

bool Desktop::StartAtOnce() {
  PreparerDossier(environment_);
  if (!LoadPrincipale()) return false;
  Windows().Load(HomeForm);
  Windows().Load(AssistantForm);
  return true;
}

void Desktop::Stop() {
  parts_->OfAll(&Desk::Stop);
  Main().setEnabled(false);
}

MainWindow& Desktop::Main() { return *parts_->main; }
QtShell& Desktop::Windows() { return parts_->shell; }
Principale& Desktop::Model() { return parts_->principale; }
CandidatureDesk& Desktop::Candidatures() { return parts_->candidatures; }
LetterDesk& Desktop::Letters() { return parts_->letters; }
CvDesk& Desktop::Cv() { return parts_->cv; }
SendingDesk& Desktop::Sending() { return parts_->sending; }
LibraryDesk& Desktop::Library() { return parts_->library; }
ReportDesk& Desktop::Reports() { return parts_->reports; }
BackupDesk& Desktop::Backup() { return parts_->backup; }

}  // namespace talvor
