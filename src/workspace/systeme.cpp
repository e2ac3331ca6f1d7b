#include "workspace/systeme.h"

#include <filesystem>
#include <system_error>

#include "base/line_file.h"

namespace talvor {
namespace {

// A title is looked at up to that length.
constexpr std::size_t TitleLength = 255;

template <class Predicate>
Text FirstTitle(const Documents& documents, Predicate&& fits) {
  for (const Text& title : documents.WindowTitles()) {
    const TextView read = TextView{title}.substr(0, TitleLength);
    if (fits(read)) return Text{read};
  }
  return {};
}

bool IsAddress(TextView target) { return UpperCase(target.substr(0, 4)) == u"HTTP"; }

}  // namespace

void OuvrirDocument(TextView target, Documents& documents, Dialogs& dialogs) {
  std::error_code unreadable;
  if (!IsAddress(target) && !std::filesystem::exists(PathOf(target), unreadable))
    return dialogs.Tell(u"Le fichier " + Quoted(target) + u" n’existe pas.");
  if (!documents.Open(target)) TellNotOpened(target, dialogs);
}

void TellNotOpened(TextView target, Dialogs& dialogs) {
  const Text place = IsAddress(target) ? u"" : u" Le fichier se trouve bien à cet endroit.";
  dialogs.Tell(u"Aucun programme n’a pu ouvrir " + Quoted(target) + u"." + place);
}

Text FenetreHttp(const Documents& documents) {
  return FirstTitle(documents, [](TextView title) { return Contains(title, u"http"); });
}

bool TraitementTexteOuvert(const Documents& documents) {
  return !FirstTitle(documents, [](TextView title) {
            return Contains(title, u"OpenOffice") || Contains(title, u"WINWORD");
          }).empty();
}

}  // namespace talvor
