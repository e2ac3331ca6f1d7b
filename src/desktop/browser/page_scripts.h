// What is run inside a page to read and to fill it. The scripts run in a world of their own: they see
// the elements as the page has made them, and nothing that its scripts have put on them.
#pragma once

#include <QString>

#include <vector>

#include "platform/browser.h"

namespace talvor::page_scripts {

// Answers the first characters of the body's text, with LF.
[[nodiscard]] QString BodyText(std::size_t characters);
// Answers the markup inside the body.
[[nodiscard]] QString BodyMarkup();
// Answers a list of pairs, name and id, and keeps the elements for SetValues.
[[nodiscard]] QString Elements(std::size_t count);
[[nodiscard]] QString SetValues(const std::vector<ElementValue>& values);
[[nodiscard]] QString SetNamedValue(TextView name, TextView value);

}  // namespace talvor::page_scripts
