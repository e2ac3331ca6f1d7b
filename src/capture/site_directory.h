// The directory of job sites, kept in the file Listesites.txt of the data folder.
#pragma once

#include <vector>

#include "base/result.h"

namespace talvor {

class SiteDirectory {
 public:
  // A site's name, blanks, and its address, which begins with "http".
  std::vector<Text> Rows;

  // Writes the delivered rows when the file is missing, then reads it. An empty file gives an empty
  // list; one that cannot be written or read leaves the delivered rows.
  void Charger();

  // The lines of the file that are sites: those that hold a "/".
  [[nodiscard]] static std::vector<Text> RowsOf(const std::vector<Text>& lines);
  // The address of a row from its first "http" on; empty without one.
  [[nodiscard]] static Text AddressOf(TextView row);
  // The name of a row, blanks inside kept.
  [[nodiscard]] static Text NameOf(TextView row);

  // What the text of a directory page gives for the file: a run of names and addresses, each address
  // ended by "/" and a blank, becomes a line a site.
  [[nodiscard]] static Text FileTextOf(TextView pageText);
  // Replaces the file by that.
  [[nodiscard]] static Result<> MajListeSites(TextView pageText);
};

}  // namespace talvor
