#include "desktop/browser/page_gesture.h"

#include <QChildEvent>
#include <QWidget>

namespace talvor {

void PageGesture::Watch(QWidget& view) {
  view.installEventFilter(this);
  for (QWidget* inner : view.findChildren<QWidget*>()) inner->installEventFilter(this);
}

bool PageGesture::Take() {
  constexpr qint64 LongestMilliseconds = 60'000;
  const bool allowed = since_.isValid() && !since_.hasExpired(LongestMilliseconds);
  Forget();
  return allowed;
}

bool PageGesture::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::TouchEnd:
      Note();
      break;
    case QEvent::ChildAdded:
      // The engine brings another widget for each process that draws the page.
      if (auto* child = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child())) Watch(*child);
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace talvor
