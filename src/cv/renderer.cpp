#include "cv/renderer.h"

#include "base/fonctionnel.h"
#include "cv/identity_on_page.h"
#include "cv/page_sections.h"
#include "cv/paragraph.h"
#include "cv/vocabulary.h"

namespace talvor {
namespace {

constexpr TextView PhotoMarkup =
    u"<IMG STYLE='border: 1.00pt solid #FF6600; padding: 0.05cm' SRC='Photo.jpg' WIDTH=100>";

std::size_t CountOf(TextView text, TextView what) {
  std::size_t count = 0;
  for (auto at = Find(text, what); at != TextView::npos; at = Find(text, what, at + what.size())) ++count;
  return count;
}

// Replaces every occurrence, unless the page would grow too long.
void ReplaceWithinBound(Text& page, TextView what, TextView by) {
  const std::size_t count = CountOf(page, what);
  if (count == 0) return;
  const std::size_t left = page.size() - count * what.size();
  if (!by.empty() && (left > LargestPage || count > (LargestPage - left) / by.size())) return;
  page = ReplaceAll(page, what, by);
}

bool IsOne(TextView text) { return ValeurNumerique(text) == 1; }

ParagraphStyle StyleOf(const CvDocument& cv) {
  return {IsOne(cv.Gras), IsOne(cv.Souligne), IsOne(cv.Indentation), IsOne(cv.Saut)};
}

bool IsLongParagraph(TextView name) {
  return name == u"Experiences" || name == u"Etudes" || name == u"Competences";
}

void FillFields(Text& page, const CvDocument& cv) {
  for (const auto& field : CvFields) {
    const Text mark = Text{u"#"}.append(ReplaceAll(field.name, u"é", u"e")).append(u"#");
    if (!Contains(page, mark)) continue;
    const Text& value = cv.*(field.text);
    if (!IsLongParagraph(field.name))
      ReplaceWithinBound(page, mark, IdentityOnPage(cv, field.name, value));
    else if (const auto paragraph = FormatParagraph(value, StyleOf(cv), LargestPage))
      ReplaceWithinBound(page, mark, *paragraph);
  }
}

}  // namespace

Text LanguageSummary(const CvDocument& cv) {
  Text list;
  const auto add = [&](bool ticked, std::size_t i, TextView level) {
    if (ticked) list.append(LanguageNames[i]).append(level).append(LineEnd);
  };
  for (std::size_t i = 0; i < LanguageCount; ++i) {
    add(cv.LangueScolaire[i], i, u" scolaire");
    add(cv.LangueProf[i], i, u" professionnel");
    add(cv.LangueCourant[i], i, u" courant");
    add(cv.LangueBilingue[i], i, u" bilingue");
  }
  if (TrimBlanks(cv.LanguesPlus).empty()) return list;
  return list.append(LineEnd).append(cv.LanguesPlus);
}

Text FillTemplate(const CvDocument& cv, Text page, PhotoOnPage photo) {
  if (!cv.Police.empty() && cv.Police != u"Arial") ReplaceWithinBound(page, u"Arial", cv.Police);

  RemoveEmptySections(page, cv);
  FillFields(page, cv);
  // From here on a boundary mark written in a field counts like one of the template.
  if (cv.CheckDisposition[1]) PutExperienceFirst(page);

  // The photo comes before the colours, so that its frame takes the main one.
  ReplaceWithinBound(page, u"#Photographie#", photo == PhotoOnPage::Picture ? PhotoMarkup : TextView{});
  ReplaceWithinBound(page, u"#Prénom#", cv.Prenom);
  ReplaceWithinBound(page, u"#FF6600", cv.Couleur);
  ReplaceWithinBound(page, u"#808080", cv.Couleur);
  ReplaceWithinBound(page, u"#c0c0c0", cv.CouleurClaire);
  ReplaceWithinBound(page, u"#FFE6D5", cv.CouleurClaire);

  if (IsOne(cv.LangueCV)) page = TraduireCV(page);
  RemoveSectionMarks(page);
  return page;
}

}  // namespace talvor
