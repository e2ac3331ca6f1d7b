// `Assistant`, the small figure beside the home panel.
#pragma once

#include "platform/shell.h"

namespace talvor {

class Assistant {
 public:
  explicit Assistant(Shell& shell) : shell_(shell) {}

  // While it stands: it closes once the editor of CVs is there, over which it must not stand.
  void CloseIfEditorOpen() {
    if (shell_.FormeVisible(EditorForm)) shell_.Unload(AssistantForm);
  }

 private:
  Shell& shell_;
};

}  // namespace talvor
