// The words of the page in French and in English, in the order in which they are replaced. The
// spellings stand as they are, "Maried" and the blank in front of "Other" included.
#pragma once

#include <array>

#include "base/text.h"

namespace talvor {

struct Translation {
  TextView french;
  TextView english;
};

inline constexpr std::array<Translation, 28> Vocabulary{{
    {u"Objectifs", u"Job objectives"},
    {u"Domaines de comp&eacute;tences", u"Skills"},
    {u"Exp&eacute;rience professionnelle", u"Professional experience"},
    {u"Langues", u"Languages knowledge"},
    {u"Divers", u" Other"},
    {u"Autres formations", u"Vocational training"},
    {u"Etudes et dipl&ocirc;mes", u"Degrees"},
    {u"DIPLOMES", u"Degrees"},
    {u"professionnel", u"professional"},
    {u"scolaire", u"basic"},
    {u"courant", u"fluent"},
    {u"Anglais", u"English"},
    {u"Français", u"French"},
    {u"Allemand", u"German"},
    {u"Espagnol", u"Spanish"},
    {u"Possède un véhicule", u"Have a vehicle"},
    {u"Permis de conduire", u"Driving licence"},
    {u"Née le", u"Born in"},
    {u"Né le", u"Born in"},
    {u"Née en", u"Born in"},
    {u"Né en", u"Born in"},
    {u" ans", u" "},
    {u"enfants", u"children"},
    {u"enfant", u"child"},
    {u"Célibataire", u"Single"},
    {u"Marié", u"Maried"},
    {u"Téléphone ", u"Phone "},
    {u"à ", u"to "},
}};

}  // namespace talvor
