// A button that looks like a card: a tile with a picture, texts beside it.
#pragma once

#include <QAbstractButton>

#include "desktop/widgets/theme.h"

namespace talvor {

class CardButton : public QAbstractButton {
 public:
  CardButton(const Theme& theme, QWidget* parent);

 protected:
  // Under the pointer, focused or pressed.
  [[nodiscard]] bool Lit() const;
  // The plane and its ring, the border at rest in the colour of a token.
  void PaintCard(QPainter& painter, const QString& border) const;
  // The tile with its picture of that size.
  void PaintTile(QPainter& painter, const QRect& tile, const QString& icon, int picture) const;
  [[nodiscard]] QColor Ink(const QString& token) const;
  [[nodiscard]] const Theme& Look() const { return theme_; }

  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  const Theme& theme_;
};

}  // namespace talvor
