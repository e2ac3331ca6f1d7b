#include "tracking/candidature.h"

#include "base/couper_texte.h"

namespace talvor {
namespace {

Text Shortened(const Text& text, Cut cut) {
  switch (cut) {
    case Cut::None:
      break;
    case Cut::CouperTexte:
      return CouperTexte(text);
    case Cut::First50:
      return text.substr(0, 50);
    case Cut::First250:
      return text.substr(0, 250);
  }
  return text;
}

}  // namespace

Candidature AsSaved(const Candidature& candidature) {
  Candidature saved;
  for (const auto& field : CandidatureFields)
    saved.*(field.text) = Shortened(candidature.*(field.text), field.cut);
  return saved;
}

Text Signature(const Candidature& candidature) {
  Text signature;
  for (const auto& field : CandidatureControls)
    if (field.isSigned == Signed::Yes) signature += candidature.*(field.text);
  return signature;
}

}  // namespace talvor
