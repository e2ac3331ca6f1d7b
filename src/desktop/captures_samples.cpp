#include "desktop/captures_samples.h"

#include <QImage>
#include <QPainter>

#include <array>
#include <fstream>
#include <string>
#include <utility>

#include "base/code_page.h"
#include "cv/cv_file.h"
#include "tracking/status_lists.h"
#include "tracking/store.h"

namespace talvor {
namespace {

struct Sample {
  TextView date, title, company, status;
};

constexpr std::array<Sample, 18> Samples{{
    {u"14/01/2026", u"Chargée De Projet", u"Mairie de Brenac", ListeStatuts[3]},
    {u"20/01/2026", u"Rédactrice Web", u"Studio Calque", ListeStatuts[3]},
    {u"02/02/2026", u"Animatrice De Réseaux", u"Pixelia", ListeStatuts[3]},
    {u"22/01/2026", u"Chargée De Communication", u"Office de tourisme", ListeStatuts[4]},
    {u"28/01/2026", u"Attachée De Presse", u"Agence Sillage", ListeStatuts[4]},
    {u"09/03/2026", u"Chargée De Communication Interne", u"VALMONT ENERGIE", ListeStatuts[0]},
    {u"10/03/2026", u"Assistante Marketing", u"Lumora", ListeStatuts[0]},
    {u"11/03/2026", u"Responsable Éditoriale", u"Éditions du Pont", ListeStatuts[0]},
    {u"11/03/2026", u"Webmestre", u"Terres de Saône", ListeStatuts[0]},
    {u"12/02/2026", u"Assistante De Direction", u"Bellecour Conseil", ListeStatuts[6]},
    {u"16/02/2026", u"Chargée De Communication", u"Atelier Vercors", ListeStatuts[5]},
    {u"23/02/2026", u"Cheffe De Projet", u"Nordalis Conseil", ListeStatuts[5]},
    {u"08/01/2026", u"Rédactrice", u"Groupe Marelle", ListeStatuts[2]},
    {u"12/01/2026", u"Assistante Éditoriale", u"Plume et Papier", ListeStatuts[2]},
    {u"19/01/2026", u"Chargée De Contenu", u"Hestia", ListeStatuts[2]},
    {u"26/01/2026", u"Attachée De Presse", u"Théâtre des Quais", ListeStatuts[2]},
    {u"05/01/2026", u"Assistante Communication", u"Fondation Rivage", SansReponseApresEntretien},
    {u"04/03/2026", u"Chargée De Mission", u"Métropole", ListeStatuts[1]},
}};
// A pasted CV of a whole page, with a photo.
CvDocument SampleCv() {
  CvDocument cv;
  cv.Nom = u"MARCHAND";
  cv.Prenom = u"Julie";
  cv.NomCV = u"Marchand Julie";
  cv.Adresse1 = u"7 Rue Des Lilas";
  cv.Adresse2 = u"Bâtiment C";
  cv.CP = u"69003";
  cv.Ville = u"Lyon";
  cv.Pays = u"Française";
  cv.Tel = u"04 72 00 00 41";
  cv.Mob = u"06 00 00 12 34";
  cv.Email = u"julie.marchand@mail.example";
  cv.Situation = u"Marié(e)";
  cv.DateNaissance = u"14/06/1993";
  cv.LieuNaissance = u"Annecy";
  cv.Age = u"32";
  cv.NbEnfants = u"1";
  cv.Fonction = u"Chargée de communication";
  cv.Etudes =
      u"2015 : Master communication des organisations\r\nUniversité de Lyon\r\n"
      u"2012 : Licence de lettres modernes";
  cv.Formations = u"2022 : Conduite de projet éditorial\r\n2019 : Droit de l'image";
  cv.Experiences =
      u"2021 - 2025 : Chargée de projet, Orvane\r\n- Intranet et lettre interne\r\n"
      u"- Relations avec 14 agences\r\n2018 - 2021 : Rédactrice, Studio Calque\r\n- Dossiers et brochures";
  cv.Competences =
      u"Rédaction : articles, discours, dossiers\r\nOutils : PAO, montage vidéo, publication web\r\n"
      u"Gestion : budget de 60 000 euros";
  cv.Objectifs = u"Rejoindre une équipe de communication interne";
  cv.Divers = u"Chorale, randonnée, atelier d'écriture";
  cv.LanguesPlus = u"Un semestre à Dublin (2014)";
  cv.LangueCourant[0] = cv.LangueScolaire[1] = cv.LangueProf[2] = true;
  cv.CheckDisposition = {false, true};
  cv.Couleur = u"#0369A1";
  cv.CouleurClaire = u"#DEEBF3";
  return cv;
}

QImage SamplePhoto() {
  QImage photo(184, 224, QImage::Format_RGB32);
  photo.fill(QColor(0xDB, 0xE5, 0xEA));
  QPainter painter(&photo);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (const auto& [colour, shape] :
       {std::pair{0x6B4433, QRectF(52, 22, 80, 116)}, std::pair{0x3F6F8C, QRectF(12, 146, 160, 160)},
        std::pair{0xE8BFA0, QRectF(60, 44, 64, 82)}}) {
    painter.setBrush(QColor::fromRgb(static_cast<QRgb>(colour)));
    painter.drawEllipse(shape);
  }
  return photo;
}

void FillCv(const std::filesystem::path& folder) {
  const std::string text = ToCodePage(CvFileText(SampleCv()));
  std::ofstream(folder / "CV" / "Marchand Julie.dat", std::ios::binary) << text;
  SamplePhoto().save(QString::fromStdString((folder / "Modeles" / "Marchand Julie.jpg").string()), "PNG");
}

}  // namespace

void FillDatabase(const Clock& clock) {
  Database database = Database::Open(clock);
  for (const Sample& sample : Samples) {
    Candidature row;
    row.DateDiffusion = sample.date;
    row.Intitule = sample.title;
    row.Societe = sample.company;
    row.Statut = sample.status;
    if (sample.status == ListeStatuts[5]) row.DateRDV = u"17/03/2026";
    if (sample.status == ListeStatuts[6]) row.DateRDV = u"02/04/2026";
    const PendingRow pending = database.BeginRow();
    if (pending.num == DetailedSample) {
      row.Nature = u"CDI,CONTRAT A DUREE INDETERMINEE";
      row.Lieu = u"Lyon";
      row.Duree = u"Indéterminée";
      row.Salaire = u"32000 Euros";
      row.Description =
          u"Au sein de la direction de la communication, vous animez le dispositif de communication interne "
          u": "
          u"intranet, lettre mensuelle, évènements. Vous rédigez les supports et mesurez les résultats.";
      row.NomContact = u"Claire Hauteville";
      row.Telephone = u"04 72 00 00 14";
      row.Email = u"recrutement@valmont-energie.example";
      row.Adresse = u"18 quai des Tanneurs";
      row.CP = u"69002";
      row.Ville = u"LYON";
      row.Reference = u"CI-2026-114";
      row.Origine = u"EMPLOI-EN-LIGNE";
      row.www = u"http://www.emploi-en-ligne.example/offres/4821";
      row.DateLimite = u"31/03/2026";
      row.Remarques = u"Offre vue après le salon de Lyon. Appeler avant envoi.";
    }
    database.Save(pending, row);
  }
}

void FillFiles(const std::filesystem::path& folder) {
  for (const char* name : {"CV/Assistante Com.dat", "CV/Julie Anglais.dat", "CV/Marchand Julie.dat",
                           "CV/Marchand Julie.docx", "CV/Portfolio.pdf", "Lettres/Julie Marchand (ER).dat",
                           "Lettres/Julie Marchand (ES).dat", "Lettres/Julie Marchand (IR).dat"})
    std::ofstream(folder / name) << "Nom=Marchand\r\n";
  FillCv(folder);
}

}  // namespace talvor
