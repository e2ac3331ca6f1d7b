#include "desktop/application.h"

#include <QLibraryInfo>
#include <QLocale>
#include <exception>

#include "base/failure_cause.h"
#include "desktop/browser/start_page.h"
#include "desktop/platform/sealed_scheme.h"

namespace talvor {

namespace {

// Schemes are made known before the application is.
int& WithSchemes(int& argc) {
  RegisterStartPageScheme();
  RegisterSealedScheme();
  return argc;
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(WithSchemes(argc), argv) {
  setApplicationName(QStringLiteral("Talvor"));
  setApplicationDisplayName(QStringLiteral("Talvor"));
  const QLocale locale(QLocale::French, QLocale::France);
  QLocale::setDefault(locale);
  if (french_.load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    installTranslator(&french_);
  installTranslator(&leftOut_);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& failure) {
    if (!OnFailure) throw;
    OnFailure(ToUtf8(ReportOf(failure)));
  }
  return false;
}

}  // namespace talvor
