#include "letters/merge.h"

#include "ads/contracts.h"
#include "base/fonctionnel.h"
#include "base/line_file.h"
#include "tracking/form_cand.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

constexpr TextView NoModelMessage =
    u"Aucun modèle de lettre n'a été créé. Vous devrez rédiger le courrier d'accompagnement.";

struct Sender {
  Text Nom, Prenom;
};

// Lines are told by their first characters alone; the "=" keeps `NomLettre` out of the third.
void ReadLine(TextView line, MergedLetter& letter, Sender& sender) {
  const auto equals = line.find(u'=');
  if (equals == TextView::npos) return;
  const TextView value = line.substr(equals + 1);
  if (line.starts_with(u"Text1")) letter.Texte = ReplaceAll(value, u"<N>", LineEnd);
  if (line.starts_with(u"Email")) letter.Email = value;
  if (line.starts_with(u"Nom=")) sender.Nom = value;
  if (line.starts_with(u"Préno")) sender.Prenom = value;
  if (line.starts_with(u"Objet") && !TrimBlanks(value).empty()) letter.Objet = value;
}

void StripLeadingLineEnds(Text& text) {
  constexpr int Times = 3;
  for (int i = 0; i < Times; ++i)
    if (text.starts_with(LineEnd)) text.erase(0, LineEnd.size());
}

Text ProperName(TextView name) { return NomPropre(Normaliser(name)); }

void Replace(Text& text, TextView what, TextView by) { text = ReplaceAll(text, what, by); }

// "de " before a word that begins with a plain capital vowel becomes `elided`.
void Elide(Text& text, const Text& word, TextView elided) {
  if (word.empty() || !Contains(u"AEIOU", TextView{word}.substr(0, 1))) return;
  Replace(text, u"de " + word, Text{elided} + word);
}

// A mark in the advertisement can only turn the contact into a woman, never into a man.
bool ContactIsWoman(const CandidatureTexts& candidature) {
  const auto blank = candidature.NomContact.find(u' ');
  bool woman = false;
  if (blank != Text::npos) woman = EstPrenomFeminin(TextView{candidature.NomContact}.substr(0, blank));
  for (const TextView mark : {u" Mme ", u" Mlle ", u" Mle "})
    if (Contains(candidature.Description, mark)) woman = true;
  return woman;
}

void PutTitle(Text& text, const CandidatureTexts& candidature) {
  constexpr TextView Titre = u"#Titre#";
  const bool woman = ContactIsWoman(candidature);
  if (candidature.NomContact.empty()) Replace(text, Titre, u"Madame, Monsieur");
  Replace(text, Titre, woman ? u"Madame" : u"Monsieur");
}

}  // namespace

CandidatureTexts TextsOf(const FormCand& form) {
  CandidatureTexts texts;
  static_cast<Candidature&>(texts) = form;
  texts.AdresseWeb = form.AdresseWeb;
  texts.TermFin = form.TermFin;
  if (const auto row = form.StatusList.selected) texts.ListeStatuts = ListeStatuts[*row];
  if (const auto row = form.ContractList.selected) texts.ListeContrats = ListeContrats[*row];
  return texts;
}

bool FusionnerLettre(const std::filesystem::path& chemin, const CandidatureTexts& candidature, Day today,
                     MergedLetter& letter, Dialogs& dialogs, Shell& shell) {
  const auto lines = ReadLines(chemin);
  if (!lines) {
    dialogs.Tell(NoModelMessage);
    return false;
  }

  // What the merge needs of the model.
  Sender sender;
  for (const TextView line : *lines) ReadLine(line, letter, sender);

  // The empty lines with which a mail begins.
  Text& texte = letter.Texte;
  StripLeadingLineEnds(texte);

  shell.Show(ApplyForm);

  // The sender; no blank stands before the address.
  letter.Email = ProperName(sender.Prenom) + u" " + ProperName(sender.Nom) + u"<" + letter.Email + u">";

  // Every field of the form for the tag of its name.
  for (const auto& field : CandidatureTags)
    Replace(texte, u"#" + Text{field.name} + u"#", candidature.*(field.text));

  // The elisions, on the text with its values in place: a title takes "d'", a source "de l'".
  Elide(texte, candidature.Intitule, u"d'");
  Elide(texte, candidature.Origine, u"de l'");

  // The reference; the subject has no other tag.
  Replace(texte, u"#Reference#", candidature.Reference);
  Replace(letter.Objet, u"#Reference#", candidature.Reference);

  Replace(texte, u"#Date#", DateText(today));

  // What no field has filled is cleared.
  Replace(texte, u"#FonctionContact#", {});
  Replace(texte, u"#Adresse#", {});

  PutTitle(texte, candidature);

  Replace(texte, u"#CP# #Ville#", {});
  return true;
}

}  // namespace talvor
