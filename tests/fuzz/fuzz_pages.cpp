// The text of any page, rated and read as a directory of job sites: the gauge stays within its scale, and
// what becomes of a page in the file of the sites comes back as rows with their names and addresses.

#include <cstdint>

#include "ads/page_rating.h"
#include "base/code_page.h"
#include "base/line_file.h"
#include "capture/site_directory.h"

namespace {

using namespace talvor;

void CheckRating(TextView page, TextView address) {
  constexpr double Widest = 1300;
  const PageRating rating = RatePage(page, address);
  if (!(rating.Niveau >= 1 && rating.Niveau <= Widest)) __builtin_trap();
  if (!rating.stripOpens && rating.Niveau > 1) __builtin_trap();
}

void CheckDirectory(TextView page) {
  const auto lines = SplitLines(FromCodePage(ToCodePage(SiteDirectory::FileTextOf(page))));
  for (const Text& row : SiteDirectory::RowsOf(lines)) {
    const Text address = SiteDirectory::AddressOf(row);
    if (!address.empty() && !address.starts_with(u"http")) __builtin_trap();
    if (SiteDirectory::NameOf(row).size() + address.size() > row.size()) __builtin_trap();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text page = FromCodePage({reinterpret_cast<const char*>(data), size});
  CheckRating(page, page.substr(0, 40));
  CheckDirectory(page);
  return 0;
}
