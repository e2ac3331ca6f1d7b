#include "desktop/browser/web_browser.h"

#include <utility>
#include <vector>

#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QThreadPool>
#include <QUrl>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>
#include <QWebEngineScript>

#include "desktop/browser/page_scripts.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int AnswerMilliseconds = 5000;

// Why a page has not come, in the user's words.
QString FailureNotice(const QWebEngineLoadingInfo& info) {
  const QString host = info.url().host();
  switch (info.errorDomain()) {
    case QWebEngineLoadingInfo::DnsErrorDomain:
      return QObject::tr(
                 "Le site «\u00A0%1\u00A0» est introuvable. Vérifiez l’adresse et la connexion à Internet.")
          .arg(host);
    case QWebEngineLoadingInfo::CertificateErrorDomain:
      return QObject::
          tr("Le certificat de «\u00A0%1\u00A0» n’est pas valable\u00A0: la connexion ne serait pas sûre, "
             "la page n’a pas été ouverte.")
              .arg(host);
    case QWebEngineLoadingInfo::ConnectionErrorDomain:
      return QObject::tr("Le site «\u00A0%1\u00A0» ne répond pas.").arg(host);
    default:
      return QObject::tr("La page «\u00A0%1\u00A0» n’a pas pu être chargée.")
          .arg(info.url().toDisplayString());
  }
}

QString OfferText(const DownloadOffer& offer) {
  return offer.runs ? QObject::tr(
                          "«\u00A0%1\u00A0» est un programme\u00A0: une fois ouvert, il peut lire et "
                          "changer tous vos fichiers.")
                          .arg(offer.name)
                    : QObject::tr("Cette page propose d’enregistrer «\u00A0%1\u00A0».").arg(offer.name);
}

}  // namespace

WebBrowser::WebBrowser(Dialogs& dialogs) : dialogs_(dialogs) {
  constexpr int StoreMilliseconds = 2000;
  storeTimer_.setInterval(StoreMilliseconds);
  connect(&storeTimer_, &QTimer::timeout, this, &WebBrowser::WatchStore);
}

WebProfile& WebBrowser::Profile() {
  if (!profile_) {
    profile_ = std::make_unique<WebProfile>(dialogs_, SiteStore::Beginning::Kept);
    profile_->Store().DropFormer();
    Connect(*profile_);
  }
  return *profile_;
}

bool WebBrowser::EnsureView() {
  if (view_ || !makeView) return view_;
  view_ = makeView();
  gesture_.Watch(*view_);
  MakePage();
  storeTimer_.start();
  return true;
}

void WebBrowser::MakePage() {
  auto* page = new WebPage(&Profile(), dialogs_, view_);
  view_->setPage(page);
  Follow(*page);
}

void WebBrowser::Connect(WebProfile& profile) {
  profile.IsAskedByUser = [this](const QUrl& download) { return AskedByUser(download); };
  profile.OnOffer = [this](const DownloadOffer& offer) {
    offer_ = offer;
    state_.offer = OfferText(offer);
    Changed();
  };
}

// A gesture in the page allows a download, and so does the one that has led to an address from which a file
// comes instead of a page. What a page asks for once it is there needs a gesture of its own.
bool WebBrowser::AskedByUser(const QUrl& download) {
  const bool insteadOfPage =
      download == leadsTo_ && view_ && view_->history()->currentItem().url() != download;
  return insteadOfPage ? std::exchange(ledByUser_, false) : gesture_.Take();
}

void WebBrowser::TakeOffer() {
  const DownloadOffer offer = offer_;
  DismissOffer();
  if (view_) Profile().Fetch(*view_->page(), offer);
}

void WebBrowser::DismissOffer() {
  offer_ = {};
  state_.offer.clear();
  Changed();
}

void WebBrowser::AskToClearStore() {
  if (dialogs_.Confirm(
          u"Effacer ce que les sites ont gardé sur cet ordinateur\u00A0? Ceux qui demandent un compte vous "
          u"demanderont de nouveau votre mot de passe."))
    EmptyStore(Cookies::Forgotten, LocationURL());
}

void WebBrowser::EmptyStore(Cookies cookies, TextView address) {
  std::unique_ptr<WebProfile> former =
      std::exchange(profile_, std::make_unique<WebProfile>(dialogs_, SiteStore::Beginning::Fresh));
  if (cookies == Cookies::Kept) profile_->TakeCookies(*former);
  Connect(*profile_);
  if (view_) {
    const QPointer<QWebEnginePage> page(view_->page());
    MakePage();
    delete page.data();  // before its profile
  }
  former.reset();
  profile_->Store().DropFormer();
  if (view_) Navigate(address);
}

// In the background: a walk over the folder takes its time on a slow disk.
void WebBrowser::WatchStore() {
  if (!view_) return storeTimer_.stop();
  QThreadPool::globalInstance()->start(
      [self = QPointer<WebBrowser>(this), folder = Profile().Store().Folder()] {
        if (SiteStore::SizeOf(folder) <= SiteStore::Bound) return;
        QMetaObject::invokeMethod(qApp, [self, folder] {
          // Another store may have begun meanwhile.
          if (!self || !self->view_ || self->Profile().Store().Folder() != folder) return;
          self->EmptyStore(Cookies::Kept, BlankPage);
          self->ShowNotice(
              tr("Cette page remplissait le disque\u00A0: elle a été arrêtée, et ce que les sites avaient "
                 "gardé a été effacé. Vous restez connecté à vos sites."));
        });
      });
}

void WebBrowser::Follow(WebPage& page) {
  connect(&page, &QWebEnginePage::loadingChanged, this, &WebBrowser::LoadingChanged);
  connect(&page, &QWebEnginePage::loadProgress, this, [this](int percent) {
    state_.progress = percent;
    Changed();
  });
  connect(&page, &QWebEnginePage::renderProcessTerminated, this, [this] { Terminated(); });
  page.OnNavigation = [this](const QUrl& address, bool redirected) {
    leadsTo_ = address;
    if (!redirected) ledByUser_ = gesture_.Take();
    if (!state_.offer.isEmpty()) DismissOffer();
  };
  page.OnEndless = [this] { endless_ = true; };
}

void WebBrowser::LoadingChanged(const QWebEngineLoadingInfo& info) {
  using Info = QWebEngineLoadingInfo;
  state_.loading = info.status() == Info::LoadStartedStatus;
  deaf_ = false;
  if (state_.loading) {
    state_.progress = 0;
    state_.notice.clear();
    failed_.clear();
    return Changed();
  }
  // A site that answers with an error has a page to tell so.
  if (info.status() == Info::LoadFailedStatus && info.errorDomain() != Info::HttpStatusCodeDomain) {
    state_.notice = FailureNotice(info);
    failed_ = info.url();
  }
  Changed();
  // Outside the engine's own event, as what follows runs events for a while.
  QMetaObject::invokeMethod(
      this,
      [this] {
        const auto loaded = OnLoaded;  // the form may be gone before it returns
        if (loaded) loaded();
      },
      Qt::QueuedConnection);
}

void WebBrowser::Terminated() {
  if (next_ && view_) return std::exchange(next_, nullptr)(*view_);
  const bool endless = std::exchange(endless_, false);
  ShowNotice(endless ? tr("Cette page ouvrait des messages sans fin\u00A0: elle a été arrêtée.")
                     : tr("La page s’est arrêtée brutalement. La candidature en cours n’est pas touchée."));
}

void WebBrowser::ShowNotice(const QString& notice) {
  state_.loading = false;
  state_.notice = notice;
  Changed();
}

void WebBrowser::Changed() {
  if (view_) {
    state_.back = failed_.isEmpty() ? view_->history()->canGoBack() : view_->history()->count() > 0;
    state_.forward = view_->history()->canGoForward();
  }
  if (OnState) OnState(state_);
}

void WebBrowser::Navigate(TextView address) {
  if (address.empty()) return;
  location_ = address;
  if (!view_ && address == BlankPage) return;
  if (!EnsureView()) return;
  gesture_.Note();
  const QUrl url = QUrl::fromUserInput(ToQt(address));
  if (!WebPage::Shows(url)) return ShowNotice(tr("Le navigateur n’ouvre que des pages du Web."));
  // A place in the page on show is reached without a load.
  if (!url.hasFragment() || !url.matches(view_->url(), QUrl::RemoveFragment)) state_.loading = true;
  Leave([url](QWebEngineView& view) { view.load(url); });
}

void WebBrowser::Leave(const std::function<void(QWebEngineView&)>& go) {
  constexpr int PatienceMilliseconds = 1500;
  const bool runs = state_.notice.isEmpty();
  state_.notice.clear();
  failed_.clear();
  Changed();
  const bool answers = !runs || (!deaf_ && Run(QStringLiteral("1"), PatienceMilliseconds));
  if (!view_) return;
  next_ = answers ? nullptr : go;
  if (!answers && static_cast<WebPage*>(view_->page())->EndProcess()) return;
  next_ = nullptr;
  go(*view_);
}

Text WebBrowser::LocationURL() const {
  if (!failed_.isEmpty()) return FromQt(failed_.toString());
  if (!view_ || view_->url().isEmpty()) return location_;
  return FromQt(view_->url().toString());
}

void WebBrowser::GoBack() {
  if (!view_) return;
  // The engine still stands at the page before the one that has failed.
  if (!failed_.isEmpty() && view_->history()->count() > 0) {
    failed_.clear();
    return Reload();
  }
  if (view_->history()->canGoBack()) Leave([](QWebEngineView& view) { view.back(); });
}

void WebBrowser::GoForward() {
  if (view_ && view_->history()->canGoForward()) Leave([](QWebEngineView& view) { view.forward(); });
}

void WebBrowser::Stop() {
  if (view_) view_->stop();
  state_.loading = false;
  Changed();
}

void WebBrowser::Reload() {
  if (!view_) return;
  const QUrl failed = std::exchange(failed_, {});
  state_.notice.clear();
  // Without a page there is nothing to load, and no end of a load would come.
  const bool page = view_->history()->count() > 0;
  state_.loading = page || !failed.isEmpty();
  Changed();
  if (failed.isEmpty())
    view_->reload();
  else
    view_->load(failed);
}

QVariant WebBrowser::Ask(const QString& script) {
  if (!view_ || deaf_ || !state_.notice.isEmpty()) return {};
  const auto answer = Run(script, AnswerMilliseconds);
  if (!answer) deaf_ = view_;
  return answer.value_or(QVariant());
}

std::optional<QVariant> WebBrowser::Run(const QString& script, int milliseconds) {
  struct Answer {
    std::optional<QVariant> value;
    QPointer<QEventLoop> loop;
  };
  const auto answer = std::make_shared<Answer>();  // the page may answer when nobody waits any more
  const QPointer<WebBrowser> self(this);
  QEventLoop loop;
  answer->loop = &loop;
  QWebEnginePage* page = view_->page();
  connect(page, &QObject::destroyed, &loop, &QEventLoop::quit);
  connect(page, &QWebEnginePage::renderProcessTerminated, &loop, &QEventLoop::quit);
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  page->runJavaScript(script, QWebEngineScript::ApplicationWorld, [answer, self](const QVariant& value) {
    answer->value = value;
    if (answer->loop) return answer->loop->quit();
    if (self) self->deaf_ = false;
  });
  if (!answer->value) loop.exec();
  return answer->value;
}

Text WebBrowser::BodyText(std::size_t characters) {
  return FieldText(Ask(page_scripts::BodyText(characters)).toString()).substr(0, characters);
}

Text WebBrowser::BodyMarkup() { return FromQt(Ask(page_scripts::BodyMarkup()).toString()); }

void WebBrowser::CopySelection() {
  if (!view_ || !state_.notice.isEmpty()) return;
  if (view_->hasSelection()) QGuiApplication::clipboard()->setText(view_->selectedText());
}

std::vector<PageElement> WebBrowser::Elements(std::size_t count) {
  std::vector<PageElement> elements;
  for (const QVariant& row : Ask(page_scripts::Elements(count)).toList()) {
    const QVariantList pair = row.toList();
    elements.push_back({FromQt(pair.value(0).toString()), FromQt(pair.value(1).toString())});
  }
  return elements;
}

void WebBrowser::SetValues(const std::vector<ElementValue>& values) { Ask(page_scripts::SetValues(values)); }

void WebBrowser::SetNamedValue(TextView name, TextView value) {
  Ask(page_scripts::SetNamedValue(name, value));
}

void WebBrowser::Forget() {
  view_ = nullptr;
  state_ = {};
  failed_.clear();
  location_ = BlankPage;
}

}  // namespace talvor
