#include "shell/guide.h"

#include <algorithm>
#include <array>

namespace talvor {
namespace {

constexpr int FadeFrom = 1;
constexpr int FadeTo = 250;
constexpr int FadeStep = 20;
constexpr int FadeMilliseconds = 40;
constexpr int HoldRounds = 180;
constexpr int HoldMilliseconds = 30;

}  // namespace

Guide::Guide(const Principale& principale, Shell& shell) : principale_(principale), shell_(shell) {}

void Guide::Show(int opacity) {
  Opacity = opacity;
  if (OnChange) OnChange();
}

void Guide::Charger() {
  constexpr std::array<TextView, 3> SpokenOf{LetterForm, EditorForm, CandidatureForm};
  if (std::none_of(SpokenOf.begin(), SpokenOf.end(), [&](TextView f) { return shell_.FormeVisible(f); }))
    return;
  Hint = principale_.InfoGuide;
  place =
      Contains(Hint, u"lettre") || Contains(Hint, u"description") ? Place::BottomLeft : Place::UnderHeader;
  for (int i = FadeFrom; i <= FadeTo; i += FadeStep) {
    shell_.PumpEvents();
    shell_.Wait(FadeMilliseconds);
    Show(i);
  }
  for (int i = 0; i < HoldRounds && shell_.FormeVisible(MainForm); ++i) {
    shell_.Wait(HoldMilliseconds);
    shell_.PumpEvents();
  }
  for (int i = FadeTo; i >= FadeFrom; i -= FadeStep) {
    shell_.PumpEvents();
    shell_.Wait(FadeMilliseconds);
    Show(i);
  }
  Show(0);
}

}  // namespace talvor
