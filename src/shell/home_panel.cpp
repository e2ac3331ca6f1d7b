#include "shell/home_panel.h"

#include <array>
#include <utility>

#include "app/hints.h"

namespace talvor {
namespace {

constexpr TextView Extension = u".dat";
constexpr TextView BackTitle = u"Retour au menu principal";
constexpr TextView BackCommand = u"Retour";

// This panel says more than the menu of the slots does.
constexpr TextView BetterWriteOne =
    u"INFORMATION : Pour profiter pleinement de toutes les fonctionnalités de Talvor, génération automatique "
    u"des courriers, prégénération des courriers d'accompagnement et préremplissage automatique des "
    u"formulaires, il est préférable de rédiger un nouveau CV à l'aide de l'assistant, éventuellement en "
    u"effectuant des Copier/Coller du CV que vous possédez déjà.";

// The last match stands.
Text KindOfModel(TextView name) {
  constexpr std::array<std::array<TextView, 2>, 4> Kinds{{
      {u"(IS)", u"Modèle à imprimer, candidature spontanée"},
      {u"(IR)", u"Modèle à imprimer, réponse à une annonce"},
      {u"(ES)", u"Modèle mail, candidature spontanée"},
      {u"(ER)", u"Modèle mail, réponse à une annonce"},
  }};
  Text found;
  for (const auto& [mark, kind] : Kinds)
    if (Contains(name, mark)) found = kind;
  return found;
}

void Run(const std::function<void()>& command) {
  if (command) command();
}

}  // namespace

AssistantTexte::AssistantTexte(Principale& principale, Shell& shell, Dialogs& dialogs)
    : principale_(principale), shell_(shell), dialogs_(dialogs) {}

// The last visible slot is the entry for a new CV, which is why one is taken off.
int AssistantTexte::CountCvs() const {
  std::size_t slot = 0;
  while (slot < 6 && principale_.ImageMenu[slot].visible) ++slot;
  return static_cast<int>(slot) - 1;
}

void AssistantTexte::Show(Level shown, std::vector<HomeRow> rows) {
  level = shown;
  Rows = std::move(rows);
  RowOffset = FarthestRowOffset;
}

bool AssistantTexte::Slide() {
  // A part of what is left at each tick, and a jump at the end.
  constexpr int Jump = 2;
  RowOffset = RowOffset <= Jump ? 0 : RowOffset * 5 / 8;
  return RowOffset > 0;
}

void AssistantTexte::Charger() {
  Show(Level::Home,
       {{u"Rédiger un Curriculum Vitae", u"Rédiger, modifier ou rattacher un CV"},
        {u"Rédiger un modèle de lettre", u"Rédiger ou modifier un modèle générique"},
        {u"Gérer les candidatures", u"Postuler aux offres et suivre les réponses"},
        {u"Statistiques, calendrier et alertes", u"Dates d'entretiens, statistiques sur les réponses"}});
  Compteurs = u"Nombre de CV : " + NumberText(CountCvs()) + Text{LineEnd} + u"Nombre de lettres : " +
              NumberText(static_cast<long long>(principale_.ListedFiles.Count())) + Text{LineEnd} +
              u"Nombre de candidatures : " + principale_.NbCand;
}

// The name of a slot without ".dat", when it holds a ".dat" name.
Text AssistantTexte::NameInSlot(std::size_t slot) const {
  const Text& name = principale_.ImageMenu[slot].toolTip;
  return Contains(name, Extension) ? ReplaceAll(name, Extension, u"") : Text{};
}

HomeRow AssistantTexte::LetterRow(std::size_t slot) const {
  const Text name = NameInSlot(slot);
  return {name, name.empty() ? Text{} : KindOfModel(name)};
}

void AssistantTexte::ChoixCV() {
  const Text first = NameInSlot(0);
  Show(Level::CV, {{u"Réaliser un nouveau CV", u"Rédiger un CV à l'aide de l'assistant Talvor"},
                   {u"Rattacher un CV existant", u"Qui a été réalisé par ailleurs"},
                   {first, first.empty() ? u"" : u"Consulter / Modifier"},
                   {Text{BackTitle}, Text{BackCommand}}});
}

void AssistantTexte::ChoixLettre() {
  Show(Level::Letters, {{u"Réaliser un nouveau modèle de lettre", u"A l'aide de suggestions de textes"},
                        LetterRow(Principale::FirstLetterSlot),
                        LetterRow(Principale::FirstLetterSlot + 1),
                        {Text{BackTitle}, Text{BackCommand}}});
}

void AssistantTexte::ChoixCand() {
  Show(Level::Candidatures, {{u"Gestion manuelle des candidatures", u"Et des contacts sociétés"},
                             {u"Recherche des offres sur Internet", u"Sur les sites spécialisés"},
                             {u"Justificatif de recherche d'emploi", u"A l'attention des services sociaux"},
                             {Text{BackTitle}, Text{BackCommand}}});
}

void AssistantTexte::Choose(TextView title) {
  if (title == u"Rédiger un Curriculum Vitae") return ChoixCV();
  if (title == u"Rédiger un modèle de lettre") return ChoixLettre();
  if (title == u"Gérer les candidatures") return ChoixCand();
  if (title == u"Statistiques, calendrier et alertes") return shell_.Show(StatisticsForm);
  if (title == u"Réaliser un nouveau CV") {
    shell_.Unload(HomeForm);
    return shell_.Show(EditorForm);
  }
  if (title == u"Rattacher un CV existant") return RattacherCV();
  if (title == u"Réaliser un nouveau modèle de lettre") {
    shell_.Show(LetterForm);
    return Run(commands.nouvelleLettre);
  }
  if (title == u"Gestion manuelle des candidatures") return GererCandidatures();
  if (title == u"Recherche des offres sur Internet") return RechercherOffres();
  if (title == u"Justificatif de recherche d'emploi") return Run(commands.justificatif);
  // The row of the way back says so in its title, and its explanation is the command.
  if (title == BackTitle || title == BackCommand) return principale_.RetourMenu();
  ChooseFile(title);
}

void AssistantTexte::ChooseFile(TextView title) {
  const Text file = Text{title} + Text{Extension};
  if (file == principale_.ImageMenu[0].toolTip) {
    if (commands.ouvrirCv) commands.ouvrirCv(file);
    return;
  }
  for (const std::size_t slot : {Principale::FirstLetterSlot, Principale::FirstLetterSlot + 1})
    if (file == principale_.ImageMenu[slot].toolTip) {
      if (commands.ouvrirLettre) commands.ouvrirLettre(file);
      return;
    }
}

void AssistantTexte::RattacherCV() {
  if (principale_.ImageMenu[0].picture == SlotPicture::ImageNew) dialogs_.Tell(BetterWriteOne);
  Run(commands.rattacherCv);
}

void AssistantTexte::GererCandidatures() {
  shell_.Show(CandidatureForm);
  if (principale_.ImageMenu[Principale::CandidatureSlot].picture != SlotPicture::ImageNew) return;
  shell_.Wait(500);
  principale_.AfficherGuide(hints::NewCandidature);
}

void AssistantTexte::RechercherOffres() {
  shell_.Show(CandidatureForm);
  Run(commands.rechercherOffres);
  if (principale_.ImageMenu[Principale::CandidatureSlot].picture == SlotPicture::ImageNew)
    principale_.AfficherGuide(hints::Capture);
  Run(commands.naviguerAccueil);
}

}  // namespace talvor
