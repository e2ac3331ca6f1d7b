#include "desktop/widgets/theme.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleHints>
#include <QSvgRenderer>
#include <QToolTip>
#include <algorithm>
#include <array>

static void InitResources() { Q_INIT_RESOURCE(resources); }

namespace talvor {
namespace {

QByteArray ReadResource(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

constexpr int UsualFont = 13;  // pixels

// The sheet is written for text of the usual size: its letters, and the least heights around them, grow.
QString WithTextSizes(const QString& sheet) {
  static const QRegularExpression length(QStringLiteral("(font-size|min-height|max-height): (\\d+)px"));
  QString sized;
  qsizetype behind = 0;
  for (auto found = length.globalMatch(sheet); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    sized += sheet.mid(behind, match.capturedStart(2) - behind) +
             QString::number(TextPixels(match.captured(2).toInt()));
    behind = match.capturedEnd(2);
  }
  return sized + sheet.mid(behind);
}

// The picture with an empty strip on its right.
QPixmap Widened(const QPixmap& picture, int gap) {
  if (gap == 0) return picture;
  const qreal ratio = picture.devicePixelRatio();
  QPixmap wide(picture.width() + qRound(gap * ratio), picture.height());
  wide.setDevicePixelRatio(ratio);
  wide.fill(Qt::transparent);
  QPainter(&wide).drawPixmap(0, 0, picture);
  return wide;
}

struct Role {
  QPalette::ColorRole role;
  const char16_t* token;
};

constexpr std::array<Role, 13> Roles{{
    {QPalette::Window, u"window"},
    {QPalette::WindowText, u"text"},
    {QPalette::Base, u"surface"},
    {QPalette::AlternateBase, u"window"},
    {QPalette::Text, u"text"},
    {QPalette::Button, u"surface"},
    {QPalette::ButtonText, u"text"},
    {QPalette::Highlight, u"primary"},
    {QPalette::HighlightedText, u"onprimary"},
    {QPalette::ToolTipBase, u"tip"},
    {QPalette::ToolTipText, u"ontip"},
    {QPalette::PlaceholderText, u"text3"},
    {QPalette::Link, u"primary"},
}};

}  // namespace

// The font of the application is the measure: every widget has it at hand.
int TextPixels(int usual) {
  return (usual * std::max(UsualFont, QApplication::font().pixelSize()) + UsualFont / 2) / UsualFont;
}

Theme::Theme(QObject* parent) : QObject(parent) {
  InitResources();
  const QJsonObject palettes =
      QJsonDocument::fromJson(ReadResource(QStringLiteral(":/tokens.json"))).object();
  const std::array names{QStringLiteral("light"), QStringLiteral("dark")};
  for (std::size_t i = 0; i < names.size(); ++i) {
    const QJsonObject tokens = palettes.value(names[i]).toObject();
    for (auto token = tokens.begin(); token != tokens.end(); ++token)
      tokens_[i].insert(token.key(), token.value().toString());
  }
}

Theme::Palette Theme::Preferred() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  switch (QGuiApplication::styleHints()->colorScheme()) {
    case Qt::ColorScheme::Dark:
      return Palette::Dark;
    case Qt::ColorScheme::Light:
      return Palette::Light;
    case Qt::ColorScheme::Unknown:
      break;
  }
#endif
  // The lightness of the desktop's own window plane, whatever we have made of the application's.
  constexpr int Half = 128;
  return QApplication::style()->standardPalette().color(QPalette::Window).lightness() < Half ||
                 QGuiApplication::palette().color(QPalette::Window).lightness() < Half
             ? Palette::Dark
             : Palette::Light;
}

// Desktops enlarge text in two ways: by more dots to the inch, or by a font of more points. What they start
// with lies between 9 and 11 points. Qt usually takes the dots for a zoom and leaves 96 of them; only where
// its scaling is switched off do they come here.
double Theme::DesktopTextScale() {
  constexpr double UsualDots = 96;
  constexpr double UsualPoints = 10;
  constexpr double MostUsualPoints = 11;
  constexpr double PointsOfPixel = 72 / UsualDots;
  constexpr double Largest = 3;
  const QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double dots =
      font.pixelSize() > 0 || screen == nullptr ? 1 : screen->logicalDotsPerInch() / UsualDots;
  const double points = font.pixelSize() > 0 ? font.pixelSize() * PointsOfPixel : font.pointSizeF();
  return std::clamp(dots * (points > MostUsualPoints ? points / UsualPoints : 1), 1.0, Largest);
}

void Theme::FollowDesktop() {
  SetTextScale(DesktopTextScale());
  Apply(Preferred());
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
          [this] { Apply(Preferred()); });
#endif
}

void Theme::Apply(Palette palette) {
  palette_ = palette;
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QPalette colours;
  for (const auto& [role, token] : Roles) colours.setColor(role, Color(QString::fromUtf16(token)));
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    colours.setColor(QPalette::Disabled, role, Color(QStringLiteral("edge")));
  QApplication::setPalette(colours);
  QToolTip::setPalette(colours);

  QFont font = QApplication::font();
  font.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Inter"), QStringLiteral("Noto Sans")});
  font.setPixelSize(qRound(UsualFont * textScale_));
  QApplication::setFont(font);
  qApp->setStyleSheet(StyleSheet());
  Q_EMIT Changed();
}

QColor Theme::Color(const QString& token) const {
  return QColor(tokens_[palette_ == Palette::Light ? 0 : 1].value(token, QStringLiteral("#000000")));
}

// The sheet with its tokens replaced, longest names first: one name may begin another.
QString Theme::StyleSheet() const {
  QString sheet = QString::fromUtf8(ReadResource(QStringLiteral(":/talvor.qss")));
  const bool light = palette_ == Palette::Light;
  sheet.replace(QStringLiteral("@icons"),
                light ? QStringLiteral(":/icons/light") : QStringLiteral(":/icons/dark"));
  const auto& tokens = tokens_[light ? 0 : 1];
  QStringList names = tokens.keys();
  std::sort(names.begin(), names.end(),
            [](const QString& a, const QString& b) { return a.size() > b.size(); });
  for (const QString& name : names) sheet.replace(QLatin1Char('@') + name, tokens.value(name));
  return WithTextSizes(sheet);
}

QPixmap Theme::Pixmap(const QString& icon, const QString& token, int size, qreal ratio) const {
  const QColor colour = Color(token);
  const QString key = icon + QLatin1Char('|') + colour.name() + QLatin1Char('|') + QString::number(size) +
                      QLatin1Char('|') + QString::number(ratio);
  const auto cached = cache_.constFind(key);
  if (cached != cache_.constEnd()) return *cached;

  const int pixels = qRound(size * ratio);
  QPixmap pixmap(pixels, pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  QSvgRenderer(QStringLiteral(":/icons/%1.svg").arg(icon)).render(&painter);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(pixmap.rect(), colour);
  painter.end();
  pixmap.setDevicePixelRatio(ratio);
  cache_.insert(key, pixmap);
  return pixmap;
}

QIcon Theme::Icon(const QString& icon, const QString& token, int size, int gap) const {
  QIcon result;
  for (const qreal ratio : {1.0, 2.0}) {
    result.addPixmap(Widened(Pixmap(icon, token, size, ratio), gap));
    result.addPixmap(Widened(Pixmap(icon, QStringLiteral("edge"), size, ratio), gap), QIcon::Disabled);
  }
  return result;
}

}  // namespace talvor
