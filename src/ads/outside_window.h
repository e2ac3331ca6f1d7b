#pragma once

#include "platform/documents.h"

namespace talvor {

// The title of the first window of any program that holds "http", empty when there is none.
[[nodiscard]] Text FenetreHttp(const Documents& documents);

}  // namespace talvor
