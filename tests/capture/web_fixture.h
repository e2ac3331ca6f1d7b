// The browsing side of the form over fakes.
#pragma once

#include <utility>
#include <vector>

#include "capture/form_cand_web.h"
#include "tests/tracking/tracking_fixture.h"

namespace talvor {

inline const Text AdvertisementPage =
    u"Maçon ou Caissier de nuit\r\nSociété : Acme\r\nRéférence : 4321\r\nContact : Mme Durand\r\nfin de "
    u"l'annonce\r\n";

class WebTest : public TrackingTest {
 protected:
  WebTest() {
    form.WebPaneVisible = true;
    web.OnSignal = [this](TextView key) { signalled.emplace_back(key); };
    web.OnChange = [this] { tops.push_back(web.StripPlace); };
  }

  // The browser stands on a page.
  void Show(TextView address, FakePage page) {
    browser.pages[Text{address}] = std::move(page);
    browser.location = address;
    form.AdresseWeb = address;
  }

  FakeClipboard clipboard;
  FakeDocuments documents;
  FormCandCapture capture{form, clock, browser};
  FormCandWeb web{form, capture, {principale, dialogs, shell, browser, clipboard, documents}};
  std::vector<Text> signalled;
  std::vector<int> tops;
};

}  // namespace talvor
