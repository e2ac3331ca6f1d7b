#include "desktop/shell/assistant_figure.h"

#include <QPainter>
#include <QPointer>

#include "desktop/shell/road_picture.h"

namespace talvor {
namespace {

constexpr int Side = 44;

}  // namespace

AssistantFigure::AssistantFigure(Assistant& assistant, const Theme& theme, QWidget* parent)
    : QWidget(parent), theme_(theme) {
  setObjectName(QStringLiteral("Assistant"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  resize(Side, Side);
  if (auto* road = dynamic_cast<RoadPicture*>(parent)) {
    const auto place = [this, road] { move(road->BeginningOfRoad()); };
    place();
    road->OnResized = [self = QPointer<AssistantFigure>(this), place] {
      if (self) place();
    };
  }
  constexpr int TickMilliseconds = 500;
  connect(&watchTimer_, &QTimer::timeout, this, [&assistant] { assistant.CloseIfEditorOpen(); });
  watchTimer_.start(TickMilliseconds);
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
