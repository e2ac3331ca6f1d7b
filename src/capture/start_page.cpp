#include "capture/start_page.h"

namespace talvor {
namespace {

constexpr TextView Head =
    uR"(<!DOCTYPE html>
<html lang='fr'><head><meta charset='utf-8'><title>Sites d’emploi</title><style>
body{font:15px/1.5 'Segoe UI',Inter,'Noto Sans',sans-serif;margin:32px;color:#16242a;background:#f2f5f6}
h1{font-size:24px;margin:0 0 8px} p{max-width:40em;color:#4a5c65}
ul{list-style:none;padding:0;columns:14em} li{margin:0 0 6px;break-inside:avoid}
a{color:#0b6470;text-decoration:none} a:hover,a:focus{text-decoration:underline}
.dark{background:#11191d;color:#e7eef0} .dark p{color:#aebdc4} .dark a{color:#5fc4cf}
</style></head>
)";
constexpr TextView Advice =
    u"<h1>Sites d’emploi</h1>\n<p>Choisissez un site, ouvrez une annonce, puis cliquez sur "
    u"«\u00A0Capturer l'annonce\u00A0»\u00A0: ses champs se remplissent d’eux-mêmes et la candidature "
    u"s’enregistre.</p>\n<ul>\n";
constexpr TextView Foot = u"</ul></body></html>";

Text Escaped(TextView text) {
  Text html = ReplaceAll(text, u"&", u"&amp;");
  html = ReplaceAll(html, u"<", u"&lt;");
  html = ReplaceAll(html, u">", u"&gt;");
  return ReplaceAll(html, u"'", u"&#39;");
}

}  // namespace

Text StartPageHtml(const SiteDirectory& directory, PagePalette palette) {
  Text page{Head};
  page.append(palette == PagePalette::Dark ? u"<body class='dark'>" : u"<body>").append(Advice);
  for (const Text& row : directory.Rows) {
    const Text address = SiteDirectory::AddressOf(row);
    if (address.empty()) continue;
    page.append(u"<li><a href='").append(Escaped(address)).append(u"'>");
    page.append(Escaped(SiteDirectory::NameOf(row))).append(u"</a></li>\n");
  }
  return page.append(Foot);
}

}  // namespace talvor
