#include "desktop/platform/qt_clipboard.h"

#include <optional>
#include <string>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "desktop/widgets/text_edge.h"

namespace talvor {

std::optional<std::string> QtClipboard::Image() {
  const QImage image = QGuiApplication::clipboard()->image();
  QBuffer bytes;
  if (image.isNull() || !bytes.open(QIODevice::WriteOnly) || !image.save(&bytes, "PNG")) return std::nullopt;
  return bytes.data().toStdString();
}

Text QtClipboard::ReadText() const { return FieldText(QGuiApplication::clipboard()->text()); }
void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

}  // namespace talvor
