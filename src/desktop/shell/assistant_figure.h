// The figure of `Assistant` on the road of the home panel.
#pragma once

#include <QTimer>
#include <QWidget>

#include "desktop/widgets/theme.h"
#include "shell/assistant.h"

namespace talvor {

class AssistantFigure : public QWidget {
 public:
  // The view model must outlive the figure.
  AssistantFigure(Assistant& assistant, const Theme& theme, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Theme& theme_;
  QTimer watchTimer_;
};

}  // namespace talvor
