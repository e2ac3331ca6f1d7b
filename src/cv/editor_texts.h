// What the editor says to the user, and the rows of its lists. The texts stand as they are, spelling
// included.
#pragma once

#include <array>

#include "base/text.h"

namespace talvor::editor_texts {

inline constexpr TextView Welcome =
    u"Veuillez saisir les informations voulues dans la partie de gauche, le CV se constituera au fur et à "
    u"mesure sur la partie de droite.";

inline constexpr TextView ZonesLabel = u"Zones d'informations";

inline constexpr TextView PhotoTitle = u"Sélection d'une photographie";
inline constexpr TextView PhotoFilter = u"Fichiers Images (*.jpg,*.gif,*.png)|*.jpg;*.gif;*.png";

inline constexpr std::array<TextView, 5> Situations{u"Célibataire", u"Marié(e)", u"Divorcé(e)", u"Veuf(ve)",
                                                    u"Union libre"};

inline constexpr std::array<TextView, 6> Fonts{u"Arial",         u"Times New Roman", u"Verdana",
                                               u"MS Sans Serif", u"Impact",          u"Lucida Handwriting"};

// The labels of the zones, under the names of their fields.
struct ZoneLabel {
  TextView field;
  TextView label;
};

inline constexpr std::array<ZoneLabel, 26> ZoneLabels{{
    {u"Identite", u"Informations identitaires (Nom, Prénom, Adresse, Téléphone, Email, etc...)"},
    {u"Nom", u"Nom"},
    {u"Prénom", u"Prénom"},
    {u"Adresse1", u"Adresse 1"},
    {u"Adresse2", u"Adresse 2"},
    {u"CP", u"CP / Ville"},
    {u"Ville", u"CP / Ville"},
    {u"Pays", u"Pays/Nationalité"},
    {u"Tel", u"Tel fixe"},
    {u"Mob", u"Mob"},
    {u"Email", u"Courriel"},
    {u"DateNaissance", u"Né(e) le"},
    {u"LieuNaissance", u"Né(e) le"},
    {u"Age", u"Age"},
    {u"NbEnfants", u"enfant(s)"},
    {u"Situation", u"Situation"},
    {u"Fonction", u"Fonction"},
    {u"Etudes", u"Etudes diplômes"},
    {u"Formations", u"Formations compémentaires"},
    {u"Experiences", u"Parcours professionnel"},
    {u"Competences", u"Compétences techniques ou Domaines de compétences"},
    {u"Objectifs", u"Souhaits et Objectifs ou Complément de la fonction"},
    {u"Divers", u"Divers loisirs publications"},
    {u"LanguesPlus", u"Autres précisions sur les compétences linguistiques"},
    {u"Photo", u"Photographie"},
    {u"CopierPhoto", u"Parcourir..."},
}};

inline constexpr TextView DetailButton = u"Préférer une saisie détaillée";
inline constexpr std::array<TextView, 2> DispositionLabels{u"Débutant", u"Sénior"};
inline constexpr std::array<TextView, 4> ParagraphLabels{
    u"Mise en gras des entêtes", u"Souligner les entêtes", u"Indentation des détails de paragraphes",
    u"Saut de ligne avant la période"};

// Stands in front of the help of the three paragraphs that are laid out by their lines.
inline constexpr TextView ParagraphNote =
    u"La mise en forme de ce paragraphe sera réalisée par la présence des sauts de ligne et des dates en "
    u"début ou fin de phrase";

struct ZoneHelp {
  int icon;  // the index of the icon `Image6`
  bool paragraph;
  TextView text;
};

inline constexpr std::array<ZoneHelp, 6> Help{{
    {12, true,
     u"Les diplômes peuvent être complétés de formations professionnelles. Les préciser également afin de "
     u"rendre ce paragraphe consistant. Ne pas oublier que les diplômes peuvent être vérifiés par le "
     u"recruteur sur certains sites spécialisés dans ce domaine."},
    {14, true,
     u"L'expérience professionnelle doit faire apparaître un parcours homogène. Les périodes d'inactivité "
     u"pourront être présentées en tant que projets personnels. Détailler plus précisément pour chaque "
     u"période les informations qui pourraient être utiles au poste."},
    {15, false,
     u"Attention à ne pas surévaluer votre maîtrise en langues. Une partie de l'entretien pourrait être "
     u"faite en langue étrangère. Si vous avez effectué un voyage linguistique, le préciser dans l'encart "
     u"ci-contre."},
    {16, false,
     u"Compléter ici la fonction principale du CV, Préciser éventuellement les domaines d'expertise"},
    {17, false,
     u"On fera apparaître ici les activités qui permettent de déduire d'un état d'esprit, d'un engagement "
     u"ou d'une qualité particulière. Il s'agit plus de permettre au recruteur de cerner la personnalités "
     u"du candidat que de déduire d'une quelconque expérience supplémentaire."},
    {20, true,
     u"Les compétences permettent à l'employeur d'effectuer une sélection plus rapide. Elles sont le résumé "
     u"du CV. Ce paragraphe doit être adapté au poste recherché. Mettre en évidence les compétences que "
     u"vous voulez faire ressortir du CV. Ne pas hésiter à mettre aussi bien les compétences techniques, "
     u"fonctionnelle qu'humaines (Perfectionniste, pugnace, passionné, curieux etc.)"},
}};

}  // namespace talvor::editor_texts
