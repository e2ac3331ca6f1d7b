// The directory of job sites, kept in the file Listesites.txt of the data folder.
#pragma once

#include <system_error>
#include <vector>

#include "base/text.h"

namespace talvor {

class SiteDirectory {
 public:
  // A site's name, blanks, and its address, which begins with "http".
  std::vector<Text> List1;

  // Writes the delivered rows when the file is missing, then reads it: each line that holds a "/" is a
  // site. An empty file gives an empty list. A file that cannot be written or read leaves the
  // delivered rows.
  void Charger();

  // The address of a row from its first "http" on; empty without one.
  [[nodiscard]] static Text AddressOf(TextView row);
  // The name of a row, blanks inside kept.
  [[nodiscard]] static Text NameOf(TextView row);

  // Replaces the file by what the text of a directory page gives: a run of names and addresses, each
  // address ended by "/" and a blank. The error, if the file could not be written.
  [[nodiscard]] static std::error_code MajListeSites(TextView pageText);
};

}  // namespace talvor
