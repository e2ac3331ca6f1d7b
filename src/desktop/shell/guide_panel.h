#pragma once

#include <QFrame>

#include "desktop/widgets/theme.h"
#include "shell/guide.h"

class QGraphicsOpacityEffect;
class QLabel;

namespace talvor {

// The hint `Guide` over the main window. It takes no focus and lets clicks through.
class GuidePanel : public QFrame {
 public:
  GuidePanel(const Theme& theme, QWidget* parent);
  void Show(const Guide& guide);

 private:
  void Place(Guide::Place place);

  QLabel* text_;
  QGraphicsOpacityEffect* opacity_;
};

// The panel `Aide` with the frame `CadreAide`, which the editor of CVs fills.
class AidePanel : public QFrame {
 public:
  explicit AidePanel(QWidget* parent);
  [[nodiscard]] QLabel& Info() { return *info_; }

 private:
  QLabel* info_;
};

}  // namespace talvor
