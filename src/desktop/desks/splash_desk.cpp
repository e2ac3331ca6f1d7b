#include "desktop/desks/splash_desk.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/start_up.h"
#include "desktop/shell/main_window.h"
#include "desktop/shell/splash.h"

namespace talvor {

SplashDesk::SplashDesk(const DeskSurroundings& around)
    : around_(around), depart_(around.dialogs, around.shell) {
  around_.shell.Over(SplashForm, [this](QWidget*) { return MakeSplash(); });
  around_.shell.Over(SplashShadowForm, [this](QWidget*) { return MakeShadow(); }).onLoad =
      QtShell::OnLoad::Shown;
}

QWidget* SplashDesk::MakeSplash() {
  auto* splash = new SplashWindow(depart_, around_.theme, nullptr);
  splash->OnShorten = [this] { depart_.Shorten(); };
  return splash;
}

QWidget* SplashDesk::MakeShadow() const {
  const QWidget* splash = around_.shell.WindowOf(SplashForm);
  return new ShadowWindow(splash ? splash->geometry() : QRect(), nullptr);
}

void SplashDesk::Refresh() {
  if (auto* splash = static_cast<SplashWindow*>(around_.shell.WindowOf(SplashForm))) splash->Refresh();
  if (QWidget* shadow = around_.shell.WindowOf(SplashShadowForm))
    shadow->setWindowOpacity(depart_.ShadowOpacity / 255.0);
}

bool SplashDesk::Play(const std::function<bool()>& showMain, const std::function<void()>& maximise) {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  around_.shell.Show(SplashForm);
  return depart_.Charger({screen.size().width(), screen.size().height(), screen.devicePixelRatio()},
                         {.prepareFolder = [this] { PreparerDossier(around_.environment); },
                          .showPrincipale = showMain,
                          .principaleWidth = [this] { return around_.main.width(); },
                          .maximise = maximise,
                          .onChange = [this] { Refresh(); }});
}

}  // namespace talvor
