#include "desktop/browser/web_page.h"

#include <signal.h>

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>
#include <QWebEngineCertificateError>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineSettings>
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include <QWebEnginePermission>
#endif

#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

// What no page may do.
void BuildWalls(QWebEnginePage& page) {
  using Attribute = QWebEngineSettings::WebAttribute;
  QWebEngineSettings* rules = page.settings();
  for (const Attribute off :
       {Attribute::JavascriptCanOpenWindows, Attribute::JavascriptCanAccessClipboard,
        Attribute::JavascriptCanPaste, Attribute::LocalContentCanAccessFileUrls,
        Attribute::LocalContentCanAccessRemoteUrls, Attribute::PluginsEnabled,
        Attribute::FullScreenSupportEnabled, Attribute::ScreenCaptureEnabled,
        Attribute::HyperlinkAuditingEnabled, Attribute::AutoLoadIconsForPage,
        Attribute::NavigateOnDropEnabled, Attribute::FocusOnNavigationEnabled, Attribute::ErrorPageEnabled})
    rules->setAttribute(off, false);
  for (const Attribute on : {Attribute::PlaybackRequiresUserGesture, Attribute::WebRTCPublicInterfacesOnly})
    rules->setAttribute(on, true);
}

void DenyPermissions(QWebEnginePage& page) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QObject::connect(&page, &QWebEnginePage::permissionRequested, &page,
                   [](QWebEnginePermission permission) { permission.deny(); });
#else
  QObject::connect(&page, &QWebEnginePage::featurePermissionRequested, &page,
                   [&page](const QUrl& origin, QWebEnginePage::Feature feature) {
                     page.setFeaturePermission(origin, feature, QWebEnginePage::PermissionDeniedByUser);
                   });
#endif
}

// What a page may open elsewhere than in its own place: the engine keeps it from data: and blob: there.
bool IsOfTheWeb(const QUrl& address) {
  return address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
}

// A page opened in a window of its own often gets its address only afterwards, from the script that
// has opened it: this one waits for it, hands it on and goes.
class AddressCatcher : public QWebEnginePage {
 public:
  AddressCatcher(QWebEngineProfile* profile, WebPage* target) : QWebEnginePage(profile, target) {
    BuildWalls(*this);
    DenyPermissions(*this);
    constexpr int LongestMilliseconds = 10000;
    QTimer::singleShot(LongestMilliseconds, this, &QObject::deleteLater);
  }

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType, bool isMainFrame) override {
    if (!isMainFrame || address.scheme() == QStringLiteral("about")) return true;
    if (IsOfTheWeb(address)) static_cast<WebPage*>(parent())->load(address);
    deleteLater();
    return false;
  }
};

Text BoxText(const QUrl& origin, const QString& text) {
  constexpr qsizetype Longest = 600;
  const Text host = FromQt(origin.host());
  return u"La page de «\u00A0" + host + u"\u00A0» affiche\u00A0:\r\n\r\n" + FromQt(text.left(Longest));
}

}  // namespace

WebPage::WebPage(QWebEngineProfile* profile, Dialogs& dialogs, QObject* parent)
    : QWebEnginePage(profile, parent), dialogs_(dialogs) {
  BuildWalls(*this);
  DenyPermissions(*this);
  connect(this, &QWebEnginePage::certificateError, this,
          [](QWebEngineCertificateError error) { error.rejectCertificate(); });
  connect(this, &QWebEnginePage::newWindowRequested, this, [this](QWebEngineNewWindowRequest& request) {
    const QUrl address = request.requestedUrl();
    if (address.isEmpty() || address.scheme() == QStringLiteral("about"))
      request.openIn(new AddressCatcher(this->profile(), this));
    else if (IsOfTheWeb(address))
      load(address);
  });
}

bool WebPage::Shows(const QUrl& address) {
  static const QStringList Schemes{QStringLiteral("http"),  QStringLiteral("https"), QStringLiteral("talvor"),
                                   QStringLiteral("about"), QStringLiteral("data"),  QStringLiteral("blob")};
  return Schemes.contains(address.scheme());
}

bool WebPage::acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) {
  // A link to write a mail goes to the user's own program.
  const bool mail = address.scheme() == QStringLiteral("mailto");
  if (!Shows(address)) return mail && type == NavigationTypeLinkClicked;
  if (isMainFrame && OnNavigation) OnNavigation(address, type == NavigationTypeRedirect);
  return true;
}

bool WebPage::EndProcess() {
  const qint64 process = renderProcessPid();
  return process > 0 && ::kill(static_cast<pid_t>(process), SIGKILL) == 0;
}

bool WebPage::GrantBox() {
  if (boxes_.Grant()) return true;
  if (boxes_.Endless()) {
    boxes_.Forget();
    if (OnEndless) OnEndless();
    EndProcess();
  }
  return false;
}

void WebPage::javaScriptAlert(const QUrl& origin, const QString& text) {
  if (GrantBox()) dialogs_.Tell(BoxText(origin, text));
}

bool WebPage::javaScriptConfirm(const QUrl& origin, const QString& text) {
  // The engine's own question whether the page may be left: it always may.
  static const QString Leave = QCoreApplication::translate(
      "QWebEnginePage", "Are you sure you want to leave this page? Changes that you made may not be saved.");
  if (text == Leave) return true;
  return GrantBox() && dialogs_.Confirm(BoxText(origin, text));
}

bool WebPage::javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) { return false; }

}  // namespace talvor
