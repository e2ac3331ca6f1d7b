#include "desktop/widgets/field_binder.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <stdexcept>
#include <utility>

namespace talvor {

QString ExactText(const QPlainTextEdit& edit) {
  QString text = edit.document()->toRawText();
  for (QChar& c : text)
    if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator) c = QChar::LineFeed;
  return text;
}

QWidget& WidgetNamed(const QWidget& root, TextView name) {
  auto* found = root.findChild<QWidget*>(ToQt(name));
  if (found == nullptr)
    throw std::logic_error(ToUtf8(FromQt(root.objectName()) + u" has no widget " + Text{name}));
  return *found;
}

void FieldBinder::Bind(QWidget& widget, Text& field) {
  bindings_.push_back({&widget, &field});
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    connect(line, &QLineEdit::textChanged, this, [this, line, &field](const QString& text) {
      if (refreshing_) return;
      field = FromQt(text);
      Took(*line);
    });
  } else if (auto* edit = qobject_cast<QPlainTextEdit*>(&widget)) {
    connect(edit, &QPlainTextEdit::textChanged, this, [this, edit, &field] {
      if (refreshing_) return;
      field = FieldText(ExactText(*edit));
      Took(*edit);
    });
  }
  const bool outer = std::exchange(refreshing_, true);
  Show(widget, field);
  refreshing_ = outer;
}

void FieldBinder::Took(QWidget& widget) {
  if (OnEdited) OnEdited(widget);
}

void FieldBinder::Show(QWidget& widget, TextView field) {
  const QString shown = ShownText(field);
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    if (line->text() == ToQt(field)) return;
    line->setText(ToQt(field));
    line->setCursorPosition(0);  // a long text shows its beginning
  } else if (auto* edit = qobject_cast<QPlainTextEdit*>(&widget)) {
    if (ExactText(*edit) != shown) edit->setPlainText(shown);
  } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
    if (label->text() != shown) label->setText(shown);
  }
}

void FieldBinder::Refresh() {
  const bool outer = std::exchange(refreshing_, true);
  for (const Binding& binding : bindings_)
    if (binding.widget) Show(*binding.widget, *binding.field);
  refreshing_ = outer;
}

}  // namespace talvor
