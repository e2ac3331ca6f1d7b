// The words of `APropos`.
#pragma once

#include "base/text.h"

namespace talvor::a_propos {

inline constexpr TextView Version = u"version 4.2.2 du 06/11/2009";
inline constexpr TextView FirstDate = u"Date de première réalisation : Juin 2004";

}  // namespace talvor::a_propos
