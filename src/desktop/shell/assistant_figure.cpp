#include "desktop/shell/assistant_figure.h"

#include <QPainter>

namespace talvor {
namespace {

constexpr int Side = 44;
constexpr QPoint Place{94, 226};  // at the beginning of the road

}  // namespace

AssistantFigure::AssistantFigure(Assistant& assistant, const Theme& theme, QWidget* road)
    : QWidget(road), theme_(theme) {
  setObjectName(QStringLiteral("Assistant"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setGeometry(QRect(Place, QSize(Side, Side)));
  constexpr int TickMilliseconds = 500;
  connect(&timer1_, &QTimer::timeout, this, [&assistant] { assistant.Timer1(); });
  timer1_.start(TickMilliseconds);
}

void AssistantFigure::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme_.Color(QStringLiteral("primary")));
  painter.drawEllipse(rect().adjusted(2, 2, -2, -2));
  constexpr int Picture = 22;
  painter.drawPixmap(
      (Side - Picture) / 2, (Side - Picture) / 2,
      theme_.Pixmap(QStringLiteral("user"), QStringLiteral("onprimary"), Picture, devicePixelRatioF()));
}

}  // namespace talvor
