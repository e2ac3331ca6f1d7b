#include "ads/start_page.h"

namespace talvor {
namespace {

constexpr TextView Head =
    u"<!DOCTYPE html><html lang='fr'><head><meta charset='utf-8'><title>Sites d’emploi</title><style>"
    u"body{font:15px/1.5 'Segoe UI',Inter,'Noto "
    u"Sans',sans-serif;margin:32px;color:#16242a;background:#f2f5f6}"
    u"h1{font-size:24px;margin:0 0 8px}p{max-width:40em;color:#4a5c65}"
    u"ul{list-style:none;padding:0;columns:14em}li{margin:0 0 6px;break-inside:avoid}"
    u"a{color:#0b6470;text-decoration:none}a:hover,a:focus{text-decoration:underline}"
    u"@media(prefers-color-scheme:dark){body{background:#11191d;color:#e7eef0}p{color:#aebdc4}a{color:#"
    u"5fc4cf}}"
    u"</style></head><body><h1>Sites d’emploi</h1><p>Choisissez un site, ouvrez une annonce, puis cliquez "
    u"sur "
    u"«\u00A0Capturer l'annonce\u00A0»\u00A0: ses champs se remplissent d’eux-mêmes et la candidature "
    u"s’enregistre.</p><ul>";
constexpr TextView Foot = u"</ul></body></html>";

Text Escaped(TextView text) {
  Text html = ReplaceAll(text, u"&", u"&amp;");
  html = ReplaceAll(html, u"<", u"&lt;");
  html = ReplaceAll(html, u">", u"&gt;");
  return ReplaceAll(html, u"'", u"&#39;");
}

}  // namespace

Text StartPageHtml(const SiteDirectory& directory) {
  Text page{Head};
  for (const Text& row : directory.List1) {
    const Text address = SiteDirectory::AddressOf(row);
    if (address.empty()) continue;
    page.append(u"<li><a href='").append(Escaped(address)).append(u"'>");
    page.append(Escaped(SiteDirectory::NameOf(row))).append(u"</a></li>");
  }
  return page.append(Foot);
}

}  // namespace talvor
