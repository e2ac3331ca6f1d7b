// Waiting as the running program does, in an event loop. The waits of Qt's test library sleep between two
// rounds of events, and a page of the web engine takes many rounds.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

namespace talvor {

inline void Wait(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
  // What a click of the test has put off to the end of its event.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Until the predicate holds; false when it does not within the time.
template <class Predicate>
bool WaitFor(Predicate predicate, int milliseconds = 5000) {
  constexpr int Interval = 3;
  const QDeadlineTimer end(milliseconds);
  while (!predicate()) {
    if (end.hasExpired()) return false;
    Wait(Interval);
  }
  return true;
}

// Makes a window the active one, as the click of a user does.
inline void Activate(QWidget& window) {
  window.activateWindow();
  WaitFor([&] { return window.isActiveWindow(); });
}

}  // namespace talvor
