#include "desktop/cv/cv_zone_fields.h"

#include "cv/editor_texts.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {

QString ZoneCaption(TextView field, QChar key) {
  QString caption;
  for (const auto& zone : editor_texts::ZoneLabels)
    if (zone.field == field) caption = ToQt(zone.label);
  if (const auto at = key.isNull() ? -1 : caption.indexOf(key); at >= 0) caption.insert(at, QLatin1Char('&'));
  return caption;
}

QLineEdit* MakeLineField(TextView field, QWidget* parent) {
  auto* line = new QLineEdit(parent);
  line->setObjectName(ToQt(field));
  line->setAccessibleName(ZoneCaption(field));
  line->setMinimumWidth(LeastField);
  return line;
}

QPlainTextEdit* MakeTextField(TextView field, int height, QWidget* parent) {
  auto* text = new QPlainTextEdit(parent);
  text->setObjectName(ToQt(field));
  text->setAccessibleName(ZoneCaption(field));
  text->setTabChangesFocus(true);
  text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // the lines are broken
  constexpr int Least = 170;
  text->setMinimumSize(TextPixels(Least), TextPixels(height));
  text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  return text;
}

QLabel* MakeZoneLabel(TextView field, QChar key, QWidget* buddy, QWidget* parent) {
  return MakeLabel(ZoneCaption(field, key), buddy, parent);
}

}  // namespace talvor
