#include "desktop/cv/page_fonts.h"

#include <QFontDatabase>
#include <array>

namespace talvor {
namespace {

// Free families made to the widths of others, as their makers declare them.
struct Twin {
  const char* name;
  const char* family;
};
constexpr std::array<Twin, 8> Twins{{
    {"Arial", "Liberation Sans"},
    {"Arial", "Arimo"},
    {"Times New Roman", "Liberation Serif"},
    {"Times New Roman", "Tinos"},
    {"Courier New", "Liberation Mono"},
    {"Courier New", "Cousine"},
    {"Calibri", "Carlito"},
    {"Cambria", "Caladea"},
}};

}  // namespace

PageFont FindPageFont(const QString& name) {
  if (QFontDatabase::hasFamily(name)) return {PageFont::Presence::Installed, name};
  for (const Twin& twin : Twins)
    if (const QString family = QString::fromLatin1(twin.family);
        name == QLatin1String(twin.name) && QFontDatabase::hasFamily(family))
      return {PageFont::Presence::SameWidths, family};
  return {};
}

}  // namespace talvor
