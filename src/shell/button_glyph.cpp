#include "shell/button_glyph.h"

namespace talvor {

ButtonGlyph GlyphOf(TextView libelle) {
  if (libelle == u"Ok" || libelle == u"Synchroniser" || libelle == u"Valider" || libelle == u"Appliquer")
    return ButtonGlyph::Check;
  if (libelle == u"Annuler" || libelle == u"Supprimer") return ButtonGlyph::Cross;
  if (Contains(libelle, u"Nouve")) return ButtonGlyph::NewPage;
  return ButtonGlyph::None;
}

bool IsPictureLabel(TextView libelle) {
  return libelle.size() == 1 && TextView{u"NS<>+-"}.find(libelle.front()) == TextView::npos;
}

}  // namespace talvor
