#pragma once

#include "base/text.h"
#include "platform/forms.h"

namespace talvor {

// The windows of the program, named by their forms (platform/forms.h), and the event loop that carries them.
class Shell {
 public:
  virtual ~Shell() = default;
  // Loads the form when needed and makes it visible, in front of the others.
  virtual void Show(TextView form) = 0;
  // Loads the form without showing it.
  virtual void Load(TextView form) = 0;
  // Closes the form; nothing happens when it is not loaded.
  virtual void Unload(TextView form) = 0;
  // True if a form of exactly that name is loaded and visible; never loads one.
  [[nodiscard]] virtual bool FormeVisible(TextView form) const = 0;
  // Puts the keyboard focus on the field of a loaded form.
  virtual void Focus(TextView form, TextView field) = 0;
  // Lets pending events run; timers and clicks can fall inside.
  virtual void PumpEvents() = 0;
  virtual void Wait(int milliseconds) = 0;
};

}  // namespace talvor
