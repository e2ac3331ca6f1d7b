// `Assistant`, the small figure beside the home panel.
#pragma once

#include "shell/home_panel.h"

namespace talvor {

class Assistant {
 public:
  Assistant(AssistantTexte& panel, Shell& shell) : panel_(panel), shell_(shell) {}

  // A command of the home panel, by its title.
  void Clic(TextView title) { panel_.Clic(title); }

  // While it stands: it closes once the editor of CVs is there, over which it must not stand.
  void Timer1() {
    if (shell_.FormeVisible(EditorForm)) shell_.Unload(AssistantForm);
  }

 private:
  AssistantTexte& panel_;
  Shell& shell_;
};

}  // namespace talvor
