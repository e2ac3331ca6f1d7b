// Binds widgets to the text fields of a view model by name, both ways.
#pragma once

#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <initializer_list>
#include <vector>

#include "base/fields.h"
#include "desktop/widgets/text_edge.h"

class QPlainTextEdit;

namespace talvor {

// The descendant of `root` of that object name. Names bind widgets to fields: one that no widget bears is a
// fault of the window, std::logic_error.
[[nodiscard]] QWidget& WidgetNamed(const QWidget& root, TextView name);

// What the user types goes into the field at once; what the view model writes shows at the next
// Refresh. A field must outlive the binder. Widgets of several lines turn LF and CR LF at this edge.
class FieldBinder : public QObject {
 public:
  // Called after a field has taken what the user typed.
  std::function<void(QWidget&)> OnEdited;

  // Binds the descendants of `root` that bear the names of the fields: QLineEdit, QPlainTextEdit (to type
  // in) or QLabel (shown only). The fields named in `unseen` have no widget.
  template <class Record, std::size_t N, class Form>
  void BindByName(QWidget& root, const FieldTable<Record, N>& table, Form& form,
                  std::initializer_list<TextView> unseen = {}) {
    for (const auto& field : table)
      if (std::find(unseen.begin(), unseen.end(), field.name) == unseen.end())
        Bind(WidgetNamed(root, field.name), form.*(field.text));
  }
  void Bind(QWidget& widget, Text& field);

  // Shows the fields. A widget that shows its field already is not touched: its caret, selection and
  // history stay.
  void Refresh();

 private:
  struct Binding {
    QPointer<QWidget> widget;
    Text* field;
  };
  static void Show(QWidget& widget, TextView field);
  void Took(QWidget& widget);

  std::vector<Binding> bindings_;
  bool refreshing_ = false;
};

// The text of a widget of several lines with LF; unlike the widget's own answer it keeps no-break
// spaces.
[[nodiscard]] QString ExactText(const QPlainTextEdit& edit);

}  // namespace talvor
