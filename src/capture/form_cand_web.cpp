#include "capture/form_cand_web.h"

#include <vector>

#include "capture/prefill.h"

namespace talvor {

FormCandWeb::FormCandWeb(FormCand& form, FormCandCapture& capture, const Surroundings& around)
    : form_(form),
      capture_(capture),
      principale_(around.principale),
      dialogs_(around.dialogs),
      shell_(around.shell),
      browser_(around.browser),
      clipboard_(around.clipboard),
      documents_(around.documents) {}

void FormCandWeb::Charger() { Sites.Charger(); }

void FormCandWeb::Close() { closed_ = true; }

void FormCandWeb::Changed() const {
  if (OnChange) OnChange();
}

void FormCandWeb::FollowAddress() { form_.FollowAddress(); }

void FormCandWeb::CloseSiteList() { SiteListVisible = false; }

void FormCandWeb::GoForward() { browser_.GoForward(); }

void FormCandWeb::GoBack() { browser_.GoBack(); }

void FormCandWeb::GoToStartPage() { form_.GoTo(principale_.AdresseWeb); }

void FormCandWeb::OpenStrip() { MoveStrip(StripOpen); }

void FormCandWeb::ToggleSiteList() {
  SiteListVisible = !SiteListVisible;
  shell_.Focus(CandidatureForm, u"AdresseWeb");
}

void FormCandWeb::OpenSite(std::size_t row) {
  if (row < Sites.Rows.size()) {
    // A row with a "/" and no "http" leaves the address that stands.
    const Text address = SiteDirectory::AddressOf(Sites.Rows[row]);
    if (!address.empty()) form_.ShowAddress(address);
    SiteListVisible = false;
  }
  form_.FollowAddress();
}

void FormCandWeb::OpenAdvertisement() {
  form_.ShowWebPane();
  form_.GoTo(form_.www);
}

void FormCandWeb::ConsulterOrigine() {
  form_.ShowWebPane();
  const auto host = form_.www.find(u"//");
  const auto path = form_.www.find(u'/', host == Text::npos ? 0 : host + 2);
  form_.GoTo(TextView{form_.www}.substr(0, path));
}

void FormCandWeb::StopLoading() {
  stopped_ = true;
  browser_.Stop();
}

Result<> FormCandWeb::MajListeSites() {
  shell_.PumpEvents();
  browser_.Navigate(principale_.AdresseWeb + u"listesites.htm");
  if (!AttendrePage()) return {};
  const Text sites = browser_.BodyText(DocumentBrowser::Whole);
  // A page that could not be loaded leaves the sites that are known.
  return sites.empty() ? Result<>{} : SiteDirectory::MajListeSites(sites);
}

ApplyTexts FormCandWeb::Postuler() const {
  const bool shown = shell_.FormeVisible(ApplyForm);
  return shown && askApplyForm ? askApplyForm() : ApplyTexts{};
}

void FormCandWeb::PrefillForm() {
  const PrefillValues values = PrefillValuesOf(principale_, Postuler().Texte);
  // The list begins with the root of the page at 0; the walk begins behind it.
  const std::vector<PageElement> elements = browser_.Elements(PrefillElements + 1);
  std::vector<ElementValue> orders;
  for (std::size_t i = 1; i < elements.size(); ++i)
    if (const Text* value = PrefillValue(values, elements[i].name, elements[i].id))
      orders.push_back({i, *value});
  browser_.SetValues(orders);
}

void FormCandWeb::PreremplirFormulaireConnu() {
  if (!shell_.FormeVisible(ApplyForm)) return;
  const ApplyTexts texts = Postuler();
  browser_.SetNamedValue(u"EmailCV", texts.Email);
  browser_.SetNamedValue(u"expediteur", texts.Email);
  browser_.SetNamedValue(u"message", texts.Texte);
}

}  // namespace talvor
