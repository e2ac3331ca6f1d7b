#include "desktop/platform/window_place.h"

#include <QSettings>
#include <QStandardPaths>
#include <QWidget>

namespace talvor {
namespace {

QString File() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/talvor/fenetres.ini");
}

}  // namespace

bool RestorePlace(QWidget& window) {
  const QSettings kept(File(), QSettings::IniFormat);
  return window.restoreGeometry(kept.value(window.objectName()).toByteArray());
}

void KeepPlace(const QWidget& window) {
  QSettings kept(File(), QSettings::IniFormat);
  kept.setValue(window.objectName(), window.saveGeometry());
}

}  // namespace talvor
