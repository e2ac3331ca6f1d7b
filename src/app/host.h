// app: the start of the program, its shared pieces and the installation of the data folder.
//
// The parts of the platform that need nothing but the standard library.
#pragma once

#include "platform/clock.h"
#include "platform/environment.h"

namespace talvor {

// The date of the machine, in its time zone.
class SystemClock : public Clock {
 public:
  [[nodiscard]] Day Today() const override;
};

// The environment of the process. `AppData` falls back to the folder for application data (XDG),
// `userprofile` and `homepath` to the home folder, `temp` to the folder for temporary files;
// `ALLUSERSPROFILE` tells of the newer folder layout.
class SystemEnvironment : public Environment {
 public:
  [[nodiscard]] Text Variable(TextView name) const override;
};

}  // namespace talvor
