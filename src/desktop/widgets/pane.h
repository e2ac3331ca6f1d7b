// Small helpers that the panes of the forms are made with.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <functional>

#include "desktop/widgets/theme.h"

namespace talvor {

// A widget with the plane of a token behind it; `pane` makes it a stop of F6.
QWidget* MakePlane(const QString& plane, QWidget* parent);

// A label in the tone of labels; the field takes its text as accessible name and its mnemonic.
QLabel* MakeLabel(const QString& text, QWidget* field, QWidget* parent);

// A label for a text of the user, whose end is an ellipsis where it has no room; the tooltip tells it whole.
QLabel* MakeElidedLabel(QWidget* parent);

// The width in which a field of one line shows that text whole.
[[nodiscard]] int FieldWidth(const QWidget& field, const QString& text);

// A link: a button that looks like one, with an icon.
QPushButton* MakeLink(const Theme& theme, const QString& icon, const QString& text, const QString& name,
                      QWidget* parent);

// A hairline.
QFrame* MakeLine(const Theme& theme, QWidget* parent);

// Gives a button its tinted icon, and again at each change of the theme.
void TintIcon(const Theme& theme, QAbstractButton& button, const QString& icon, const QString& token,
              int size = 16);

}  // namespace talvor
