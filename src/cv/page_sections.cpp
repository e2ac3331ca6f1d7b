#include "cv/page_sections.h"

#include <array>
#include <utility>

namespace talvor {
namespace {

constexpr std::array<TextView, 7> Marks{u"P01", u"P02", u"P03", u"P04", u"P05", u"P06", u"P07"};

struct Section {
  Text CvDocument::* field;
  TextView from;
  TextView to;
};

// In the order in which they are looked at.
constexpr std::array<Section, 6> Sections{{
    {&CvDocument::Formations, u"P02", u"P03"},
    {&CvDocument::Langues, u"P05", u"P06"},
    {&CvDocument::Divers, u"P06", u"P07"},
    {&CvDocument::Competences, u"P04", u"P05"},
    {&CvDocument::Experiences, u"P03", u"P04"},
    {&CvDocument::Etudes, u"P01", u"P02"},
}};

bool IsEmpty(const CvDocument& cv, const Section& section) {
  const Text& text = cv.*(section.field);
  // A list of languages can be line breaks alone; in the other fields they count as text.
  if (section.field == &CvDocument::Langues) return TrimBlanks(ReplaceAll(text, LineEnd, u"")).empty();
  return TrimBlanks(text).empty();
}

}  // namespace

void RemoveEmptySections(Text& page, const CvDocument& cv) {
  if (!Contains(page, u"P03") || !Contains(page, u"P07")) return;
  for (const auto& section : Sections) {
    if (!IsEmpty(cv, section)) continue;
    const auto from = Find(page, section.from);
    const auto to = Find(page, section.to);
    if (from == TextView::npos || to == TextView::npos || to < from) continue;
    const auto start = from + section.from.size();
    page.erase(start, to - start);
  }
}

void PutExperienceFirst(Text& page) {
  const auto studies = Find(page, u"P01");
  const auto experience = Find(page, u"P03");
  const auto languages = Find(page, u"P05");
  if (languages == TextView::npos || !(studies < experience && experience < languages)) return;
  const TextView old = page;
  Text swapped{old.substr(0, studies)};
  swapped.append(old.substr(experience, languages - experience));
  swapped.append(old.substr(studies, experience - studies));
  swapped.append(old.substr(languages));
  page = std::move(swapped);
}

void RemoveSectionMarks(Text& page) {
  for (const TextView mark : Marks)
    if (Contains(page, mark)) page = ReplaceAll(page, mark, u"");
}

}  // namespace talvor
