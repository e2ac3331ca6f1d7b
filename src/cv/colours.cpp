#include "cv/colours.h"

#include <cmath>
#include <cstdint>

namespace talvor {

Text ColourText(Colour colour) {
  static constexpr TextView Digits = u"0123456789ABCDEF";
  Text text = u"#";
  for (const unsigned part : {colour.red, colour.green, colour.blue}) {
    text += Digits[part / 16];
    text += Digits[part % 16];
  }
  return text;
}

Colour PaleColour(Colour colour) {
  const auto pale = [](std::uint8_t c) {
    return static_cast<std::uint8_t>(std::lround((255 - c) / 1.15 + c));
  };
  return {pale(colour.red), pale(colour.green), pale(colour.blue)};
}

}  // namespace talvor
