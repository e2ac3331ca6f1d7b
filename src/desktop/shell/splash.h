// The windows of the splash: `Depart` and its shadow `Ombre`.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/widgets/theme.h"
#include "shell/depart.h"

namespace talvor {

class SplashWindow : public QWidget {
 public:
  SplashWindow(const Depart& depart, const Theme& theme, QWidget* parent);

  std::function<void()> OnShorten;  // a key or a click
  void Refresh();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  const Depart& depart_;
  const Theme& theme_;
};

class ShadowWindow : public QWidget {
 public:
  // 30 twips to the left of and above `around`, 60 twips wider and higher.
  ShadowWindow(const QRect& around, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace talvor
