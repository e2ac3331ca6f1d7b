// Small makers of the fields of the editor of CVs.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "base/text.h"

class QHBoxLayout;

namespace talvor {

// The width below which no field of the identity falls.
inline constexpr int LeastField = 24;

// The label of a zone by its field, as the model gives it, with its mnemonic on the first `key` in it;
// without one for a null key.
[[nodiscard]] QString ZoneCaption(TextView field, QChar key = {});

// A line to type in, named after its field and read out by its label.
QLineEdit* MakeLineField(TextView field, QWidget* parent);
// A text of several lines of at least that height; the Tab key leaves it.
QPlainTextEdit* MakeTextField(TextView field, int height, QWidget* parent);
// The label of a zone, with the field as its buddy.
QLabel* MakeZoneLabel(TextView field, QChar key, QWidget* buddy, QWidget* parent);

}  // namespace talvor
