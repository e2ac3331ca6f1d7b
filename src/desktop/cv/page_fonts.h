// The fonts that pages name, as this machine can show them.
#pragma once

#include <QString>

namespace talvor {

struct PageFont {
  enum class Presence {
    Installed,
    SameWidths,  // another family takes its place, and every line breaks where it would
    Missing      // the page shows in whatever the engine falls back to
  };
  Presence presence = Presence::Missing;
  QString family;  // the one that is drawn; empty when it is missing
};

[[nodiscard]] PageFont FindPageFont(const QString& name);

}  // namespace talvor
