// French whatever the machine speaks: the words of Qt's own dialogs.
#pragma once

#include <QTranslator>

namespace talvor {

// The words of Qt's dialogs that its own French translation leaves out.
class FrenchTexts : public QTranslator {
 public:
  using QTranslator::QTranslator;
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* source, const char* disambiguation,
                                  int n) const override;
};

}  // namespace talvor
