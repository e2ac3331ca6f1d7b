// shell: what the windows show and do apart from the engines: home panel, hint, splash, main menu.
#pragma once

#include "base/text.h"

namespace talvor {

enum class ButtonGlyph { None, Check, Cross, NewPage };

// The sign that a `BoutonTLV` draws beside its label, found by the label alone, case included.
[[nodiscard]] ButtonGlyph GlyphOf(TextView libelle);

// True for a label of one character that stands for a picture: all but N, S, <, >, + and -.
[[nodiscard]] bool IsPictureLabel(TextView libelle);

}  // namespace talvor
