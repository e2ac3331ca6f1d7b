// desktop: the Qt windows over the view models, and the real parts of platform/. No rule stands here.
#pragma once

#include <QString>

#include "base/text.h"

namespace talvor {

// Texts cross into Qt as they are.
[[nodiscard]] inline QString ToQt(TextView text) { return QStringView(text).toString(); }
[[nodiscard]] inline Text FromQt(const QString& text) {
  const QStringView view(text);
  return Text(view.utf16(), static_cast<std::size_t>(view.size()));
}

// A field as a widget of several lines shows it, with LF for CR LF, and back.
[[nodiscard]] inline QString ShownText(TextView field) { return ToQt(ReplaceAll(field, LineEnd, u"\n")); }
[[nodiscard]] inline Text FieldText(const QString& shown) { return WithCrLf(FromQt(shown)); }

// A tooltip that shows the text as it stands, whatever marks it holds.
[[nodiscard]] inline QString ToolTipText(TextView text) {
  return text.empty() ? QString() : QStringLiteral("<span>%1</span>").arg(ToQt(text).toHtmlEscaped());
}

}  // namespace talvor
