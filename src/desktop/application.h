// The Qt application: French, and the one place that catches what an event has thrown.
#pragma once

#include <QApplication>
#include <QTranslator>
#include <functional>
#include <string>

#include "desktop/french_texts.h"

namespace talvor {

class Application : public QApplication {
 public:
  Application(int& argc, char** argv);

  // Called with the French report of a failure that no form handles, in UTF-8: the file and its cause.
  // The program must not go on after it.
  std::function<void(const std::string& report)> OnFailure;

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  QTranslator french_;
  FrenchTexts leftOut_;
};

}  // namespace talvor
