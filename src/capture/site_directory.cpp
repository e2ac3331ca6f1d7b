#include "capture/site_directory.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "ads/delivered_sites.h"
#include "base/code_page.h"
#include "base/line_file.h"

namespace talvor {
namespace {

// Named without a folder: the file is looked up in the current directory, which is the data folder.
constexpr const char* FileName = "Listesites.txt";

std::vector<Text> DeliveredRows() {
  constexpr std::size_t NameWidth = 30;
  std::vector<Text> rows;
  for (const JobSite& site : DeliveredSites) {
    Text row{site.name};
    row.append(std::max<std::size_t>(2, NameWidth - std::min(NameWidth, row.size())), u' ');
    rows.push_back(row.append(site.address));
  }
  return rows;
}

Result<> WriteRows(const std::vector<Text>& rows) {
  Text lines;
  for (const Text& row : rows) lines.append(row).append(LineEnd);
  return WriteBytes(FileName, ToCodePage(lines));
}

}  // namespace

void SiteDirectory::Charger() {
  Rows = DeliveredRows();
  std::error_code error;
  if (!std::filesystem::exists(FileName, error) && WriteRows(Rows).Failed()) return;
  const auto lines = ReadLines(FileName);
  if (lines) Rows = RowsOf(*lines);
}

std::vector<Text> SiteDirectory::RowsOf(const std::vector<Text>& lines) {
  std::vector<Text> rows;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(rows),
               [](const Text& line) { return Contains(line, u"/"); });
  return rows;
}

Text SiteDirectory::AddressOf(TextView row) {
  const auto at = row.find(u"http");
  return at == TextView::npos ? Text{} : Text{row.substr(at)};
}

Text SiteDirectory::NameOf(TextView row) {
  // A rebuilt file parts name and address with a tab as well.
  return Text{TrimBlanks(ReplaceAll(row.substr(0, row.find(u"http")), u"\t", u" "))};
}

Text SiteDirectory::FileTextOf(TextView pageText) {
  return ReplaceAll(ReplaceAll(pageText, u"/ ", u"/\r\n"), u" ", u"   \t");
}

Result<> SiteDirectory::MajListeSites(TextView pageText) {
  return WriteBytes(FileName, ToCodePage(FileTextOf(pageText)));
}

}  // namespace talvor
