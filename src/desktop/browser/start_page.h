// The start page of the embedded browser under its own scheme, "talvor:".
#pragma once

#include <QWebEngineProfile>
#include <QWebEngineUrlSchemeHandler>

namespace talvor {

// Makes the scheme known; once, before the application is.
void RegisterStartPageScheme();

// Answers with the page of sites under its name, and every other address with the start page.
class StartPageHandler : public QWebEngineUrlSchemeHandler {
 public:
  using QWebEngineUrlSchemeHandler::QWebEngineUrlSchemeHandler;
  void requestStarted(QWebEngineUrlRequestJob* job) override;
};

// Lets the pages of a profile reach the start page, for as long as the profile lives.
void InstallStartPage(QWebEngineProfile& profile);

}  // namespace talvor
