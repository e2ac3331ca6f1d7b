#pragma once

#include <QElapsedTimer>
#include <QList>

namespace talvor {

// Rations the boxes that a page may open, so that it cannot lock the user out of the program.
class PageBoxes {
 public:
  // True if a box may be shown now: three in ten seconds at most.
  [[nodiscard]] bool Grant();
  // True once the page has gone on asking without end.
  [[nodiscard]] bool Endless() const { return refused_ >= RefusalsOfEndless; }
  void Forget() { refused_ = 0; }

 private:
  static constexpr int RefusalsOfEndless = 20;

  QList<QElapsedTimer> shown_;
  int refused_ = 0;  // in a row
};

}  // namespace talvor
