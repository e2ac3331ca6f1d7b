// Size, place and state of the main window from one start to the next. They belong to the screens of this
// machine, not to the data folder, which may travel on a key.
#pragma once

class QWidget;

namespace talvor {

// Gives a window that has not been shown the place that it last had, on a screen that is there today. False
// when it had none yet.
[[nodiscard]] bool RestorePlace(QWidget& window);
// A failure is passed over: the window then opens as at the first start.
void KeepPlace(const QWidget& window);

}  // namespace talvor
