#include "desktop/widgets/pane.h"

#include <QFrame>
#include <QPainter>
#include <QStyle>

namespace talvor {
namespace {

// Where it has too little room for its words, the end of them is an ellipsis.
class FieldLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (wordWrap() || contentsRect().width() >= sizeHint().width()) return QLabel::paintEvent(event);
    QPainter painter(this);
    const int mnemonic = buddy() != nullptr ? Qt::TextShowMnemonic : 0;
    const int place = static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | mnemonic;
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width(), mnemonic);
    style()->drawItemText(&painter, contentsRect(), place, palette(), isEnabled(), shown, foregroundRole());
  }
};

}  // namespace

QWidget* MakePlane(const QString& plane, QWidget* parent) {
  auto* widget = new QWidget(parent);
  widget->setProperty("plane", plane);
  widget->setAttribute(Qt::WA_StyledBackground);
  return widget;
}

QLabel* MakeLabel(const QString& text, QWidget* field, QWidget* parent) {
  auto* label = new FieldLabel(text, parent);
  label->setProperty("role", QStringLiteral("label"));
  label->setBuddy(field);
  field->setAccessibleName(QString(text).remove(QLatin1Char('&')));
  return label;
}

QLabel* MakeElidedLabel(QWidget* parent) {
  auto* label = new FieldLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return label;
}

int FieldWidth(const QWidget& field, const QString& text) {
  constexpr int Edges = 18;
  return field.fontMetrics().horizontalAdvance(text) + Edges;
}

QPushButton* MakeLink(const Theme& theme, const QString& icon, const QString& text, const QString& name,
                      QWidget* parent) {
  auto* link = new QPushButton(text, parent);
  link->setObjectName(name);
  link->setProperty("role", QStringLiteral("link"));
  link->setAccessibleName(
      QString(text).remove(QLatin1Char('&')).replace(QLatin1Char('\n'), QLatin1Char(' ')));
  link->setCursor(Qt::PointingHandCursor);
  TintIcon(theme, *link, icon, QStringLiteral("primary"));
  return link;
}

QFrame* MakeLine(const Theme& theme, QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFixedHeight(1);
  line->setAutoFillBackground(true);
  const auto take = [line, &theme] {
    QPalette palette = line->palette();
    palette.setColor(QPalette::Window, theme.Color(QStringLiteral("line")));
    line->setPalette(palette);
  };
  QObject::connect(&theme, &Theme::Changed, line, take);
  take();
  return line;
}

void TintIcon(const Theme& theme, QAbstractButton& button, const QString& icon, const QString& token,
              int size) {
  const int gap = button.text().isEmpty() ? 0 : TextGap;
  button.setIconSize({size + gap, size});
  const auto take = [&button, &theme, icon, token, size, gap] {
    button.setIcon(theme.Icon(icon, token, size, gap));
  };
  QObject::connect(&theme, &Theme::Changed, &button, take);
  take();
}

}  // namespace talvor
