#include "desktop/browser/page_boxes.h"

#include <algorithm>

namespace talvor {

bool PageBoxes::Grant() {
  constexpr qint64 PeriodMilliseconds = 10'000;
  constexpr qsizetype BoxesInAPeriod = 3;
  shown_.removeIf([](const QElapsedTimer& since) { return since.hasExpired(PeriodMilliseconds); });
  if (shown_.size() >= BoxesInAPeriod) {
    refused_ = std::min(refused_ + 1, RefusalsOfEndless);
    return false;
  }
  refused_ = 0;
  QElapsedTimer now;
  now.start();
  shown_.append(now);
  return true;
}

}  // namespace talvor
