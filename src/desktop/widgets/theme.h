// The look: the tokens of both palettes, the style sheet, tinted icons.
#pragma once

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QObject>
#include <QPixmap>

namespace talvor {

// The room between a button's icon and its text, beside the style's own.
inline constexpr int TextGap = 3;

// A length that text stands in, told in pixels for text of the usual size: it grows with the text.
[[nodiscard]] int TextPixels(int usual);

class Theme : public QObject {
  Q_OBJECT

 public:
  enum class Palette { Light, Dark };

  explicit Theme(QObject* parent = nullptr);

  // Takes the palette that the user's desktop prefers and follows its changes.
  void FollowDesktop();
  // Gives the application that palette, its style sheet and its font.
  void Apply(Palette palette);
  // How large text is, 1 being usual; from the next Apply on, and for windows made after it.
  void SetTextScale(double scale) { textScale_ = scale; }
  // How large the user's desktop wants text. A zoom of the whole screen is no part of it: that scales every
  // pixel by itself.
  [[nodiscard]] static double DesktopTextScale();

  [[nodiscard]] Palette Current() const { return palette_; }
  // The colour of a token; black for a name that is no token.
  [[nodiscard]] QColor Color(const QString& token) const;
  // One of our line icons in the colour of a token, `size` in pixels of the layout.
  [[nodiscard]] QPixmap Pixmap(const QString& icon, const QString& token, int size, qreal ratio = 2) const;
  // The same as an icon; disabled it takes the colour of inactive text.
  // With a gap it is wider by that many pixels on its right, for a text beside it.
  [[nodiscard]] QIcon Icon(const QString& icon, const QString& token, int size = 16, int gap = 0) const;

 Q_SIGNALS:
  // After Apply: pictures that were tinted are to be taken anew.
  void Changed();

 private:
  [[nodiscard]] QString StyleSheet() const;
  [[nodiscard]] static Palette Preferred();

  QHash<QString, QString> tokens_[2];
  Palette palette_ = Palette::Light;
  double textScale_ = 1;
  mutable QHash<QString, QPixmap> cache_;
};

}  // namespace talvor
