#include "cv/identity_on_page.h"

#include "base/fonctionnel.h"

namespace talvor {
namespace {

Text BirthDate(const CvDocument& cv, TextView value) {
  Text text{EstPrenomFeminin(cv.Prenom) ? u"Née le " : u"Né le "};
  return text.append(value);
}

// The two situations that agree with the first name; the others print as they stand.
Text Situation(const CvDocument& cv, TextView value) {
  const bool feminine = EstPrenomFeminin(cv.Prenom);
  if (value == u"Marié(e)") return feminine ? u"Mariée" : u"Marié";
  if (value == u"Divorcé(e)") return feminine ? u"Divorcée" : u"Divorcé";
  return Text{value};
}

Text Children(TextView value) {
  Text text{value};
  if (ValeurNumerique(text) > 0) text += u" enfant";
  if (ValeurNumerique(text) > 1) text += u"s";
  return text;
}

Text WithWords(const CvDocument& cv, TextView name, TextView value) {
  if (value.empty()) return {};
  if (name == u"DateNaissance") return BirthDate(cv, value);
  if (name == u"Situation") return Situation(cv, value);
  if (name == u"LieuNaissance") return Text{u"à "}.append(value);
  if (name == u"Tel") return Text{u"Téléphone : "}.append(value);
  if (name == u"Mob") return Text{u"Mobile : "}.append(value);
  if (name == u"Age") return Text{u"("}.append(value).append(u" ans)");
  if (name == u"NbEnfants") return Children(value);
  return Text{value};
}

}  // namespace

Text IdentityOnPage(const CvDocument& cv, TextView name, TextView value) {
  return ReplaceAll(WithWords(cv, name, value), LineEnd, u"<br>");
}

}  // namespace talvor
