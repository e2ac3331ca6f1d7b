#include "shell/depart.h"

namespace talvor {
namespace {

constexpr TextView SmallScreen =
    u"La définition de votre écran est insuffisante pour exécuter correctement Talvor. Le minimum requis est "
    u"de 1024x768.";

}  // namespace

bool IsTooSmall(const ScreenSize& screen) {
  constexpr int MinWidth = 15000;  // twips
  constexpr int MinHeight = 11000;
  const bool roomForWindow =
      screen.width >= RoomForPrincipale.width && screen.height >= RoomForPrincipale.height;
  const double twips = TwipsPerPixel * (roomForWindow ? screen.zoom : 1);
  return screen.height * twips < MinHeight || screen.width * twips < MinWidth;
}

Depart::Depart(Dialogs& dialogs, Shell& shell) : dialogs_(dialogs), shell_(shell) {}

bool Depart::Charger(ScreenSize screen, const Steps& steps) {
  // The check only warns.
  if (IsTooSmall(screen)) dialogs_.Tell(SmallScreen);

  steps.prepareFolder();
  PlaySplash(steps);
  if (!steps.showPrincipale()) return false;

  constexpr int WideFrame = 22000;
  if (steps.principaleWidth() * TwipsPerPixel < WideFrame) steps.maximise();

  shell_.Load(HomeForm);
  shell_.PumpEvents();
  Wait(200);
  shell_.Load(AssistantForm);

  shell_.Unload(SplashShadowForm);
  shell_.Unload(SplashForm);
  return true;
}

void Depart::PlaySplash(const Steps& steps) {
  shell_.PumpEvents();
  for (int i = 1; i <= 255; i += 20) {
    shell_.PumpEvents();
    Wait(40);
    Opacity = i;
    shell_.Load(SplashShadowForm);
    if (i / 5 < 35) ShadowOpacity = i / 5;
    PictureOffset += 120;
    steps.onChange();
  }
  for (int i = 0; i < 100; ++i) {
    Wait(20);
    PictureOffset += 50;
    steps.onChange();
  }
}

void Depart::Wait(int milliseconds) {
  if (!shortened_) shell_.Wait(milliseconds);
}

}  // namespace talvor
