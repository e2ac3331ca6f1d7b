#include "ads/outside_window.h"

#include <algorithm>

namespace talvor {

Text FenetreHttp(const Documents& documents) {
  const auto titles = documents.WindowTitles();
  const auto found =
      std::find_if(titles.begin(), titles.end(), [](const Text& title) { return Contains(title, u"http"); });
  return found == titles.end() ? Text{} : *found;
}

}  // namespace talvor
