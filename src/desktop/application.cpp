#include "desktop/application.h"

#include <QLibraryInfo>
#include <QLocale>
#include <exception>

namespace talvor {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Talvor"));
  setApplicationDisplayName(QStringLiteral("Talvor"));
  const QLocale locale(QLocale::French, QLocale::France);
  QLocale::setDefault(locale);
  if (french_.load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    installTranslator(&french_);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& failure) {
    if (!OnFailure) throw;
    OnFailure(failure.what());
  }
  return false;
}

}  // namespace talvor
