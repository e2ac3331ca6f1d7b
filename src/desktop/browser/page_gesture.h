// What the user has last done in a page: a key or a button of the mouse, never the move of a script.
#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

namespace talvor {

// One gesture allows one thing that a page asks for, within a minute: a slow site has its time.
class PageGesture : public QObject {
 public:
  // Follows the events of a view and of the widgets that the engine puts into it.
  void Watch(QWidget& view);
  // The user has asked for a page by its address.
  void Note() { since_.start(); }
  void Forget() { since_.invalidate(); }
  // True once for each gesture.
  [[nodiscard]] bool Take();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QElapsedTimer since_;
};

}  // namespace talvor
