#include "desktop/shell/splash.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

namespace talvor {
namespace {

constexpr QSize SplashSize{460, 260};
constexpr Qt::WindowFlags Bare = Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;

}  // namespace

SplashWindow::SplashWindow(const Depart& depart, const Theme& theme, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Bare), depart_(depart), theme_(theme) {
  setObjectName(QStringLiteral("Depart"));
  setWindowTitle(QStringLiteral("Talvor"));
  resize(SplashSize);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    QRect place(QPoint(), SplashSize);
    place.moveCenter(screen->availableGeometry().center());
    setGeometry(place);
  }
}

void SplashWindow::Refresh() {
  setWindowOpacity(depart_.Opacity / 255.0);
  raise();
  update();
}

void SplashWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), theme_.Color(QStringLiteral("surface")));
  painter.setPen(theme_.Color(QStringLiteral("line")));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));

  // The landscape slides to the left behind the name.
  constexpr int Period = 460;
  const int slid = (depart_.PictureOffset / TwipsPerPixel) % Period;
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme_.Color(QStringLiteral("psoft")));
  for (int x = -slid; x < width(); x += Period) {
    painter.drawEllipse(QRect(x - 40, 190, 300, 190));
    painter.drawEllipse(QRect(x + 190, 170, 330, 230));
  }

  constexpr int Side = 72;
  QSvgRenderer(QStringLiteral(":/icons/logo.svg"))
      .render(&painter, QRectF((width() - Side) / 2.0, 44, Side, Side));
  QFont name = font();
  name.setPixelSize(TextPixels(28));
  name.setWeight(QFont::DemiBold);
  painter.setFont(name);
  painter.setPen(theme_.Color(QStringLiteral("text")));
  painter.drawText(QRect(0, 126, width(), 40), Qt::AlignCenter, QStringLiteral("Talvor"));
}

void SplashWindow::keyPressEvent(QKeyEvent*) {
  if (OnShorten) OnShorten();
}

void SplashWindow::mousePressEvent(QMouseEvent*) {
  if (OnShorten) OnShorten();
}

ShadowWindow::ShadowWindow(const QRect& around, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Bare | Qt::WindowDoesNotAcceptFocus) {
  constexpr int Rim = 30 / TwipsPerPixel;
  setObjectName(QStringLiteral("Ombre"));
  setGeometry(around.adjusted(-Rim, -Rim, Rim, Rim));
  setWindowOpacity(1 / 255.0);
}

void ShadowWindow::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), Qt::black); }

}  // namespace talvor
