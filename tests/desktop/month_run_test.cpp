// A month of a job search through the real windows: twenty advertisements, two CVs, three letters, ten
// applications, five weeks of a moved clock with the program started anew each week, and every number
// counted at the end, in this data folder and in the one that its backup restores.

#include <QClipboard>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QUrlQuery>
#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "base/line_file.h"
#include "desktop/desks/cv_desk.h"
#include "desktop/desks/letter_desk.h"
#include "desktop/desks/library_desk.h"
#include "desktop/desks/report_desk.h"
#include "tests/desktop/browser_fixture.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

// How an advertisement comes: from a page in tables, in paragraphs, one that fills itself late, one of
// the pages that stand in the folder of the sites, or out of the clipboard.
enum class Way { Table, Paragraphs, Late, Standing, Paste };

struct Advertisement {
  int day;  // of the run on which it is captured
  Way way;
  const char16_t* title;  // as the site writes it, or the page in the folder
  const char16_t* company;
  const char16_t* reference;
  const char16_t* contract;
  const char16_t* town;
  const char16_t* mail;
  const char16_t* Intitule;  // as they stand in the row
  const char16_t* Reference;
  const char16_t* Nature;
};

constexpr const char16_t* Cdi = u"CDI,CONTRAT A DUREE INDETERMINEE";
constexpr const char16_t* Cdd = u"CDD,CONTRAT A DUREE DETERMINEE";

// The row of the table `Num` is the place in this list, from 1 on.
constexpr std::array<Advertisement, 20> Advertisements{{
    {0, Way::Table, u"Caissier de nuit", u"Acme Distribution", u"CN-101", u"CDI", u"Nantes",
     u"rh@acme.example", u"Caissier De Nuit", u"CN 101", Cdi},
    {0, Way::Paragraphs, u"Assistante de direction", u"Bellecour Conseil", u"AD-102", u"CDD", u"Lyon", u"",
     u"Assistante De Direction", u"AD 102", Cdd},
    {0, Way::Late, u"Comptable fournisseurs", u"Orvane", u"CF-103", u"CDI", u"Annecy",
     u"recrutement@orvane.example", u"Comptable Fournisseurs", u"CF 103", Cdi},
    {0, Way::Paste, u"Cuisinier", u"Auberge du Lac", u"CU-104", u"CDD", u"Biarritz", u"", u"Cuisinier",
     u"CU 104", Cdd},
    {0, Way::Standing, u"tableau.htm", u"", u"", u"", u"", u"", u"Caissier De Nuit", u"CN 4321", Cdi},
    {0, Way::Table, u"Vendeur", u"Maison Calque", u"VE-106", u"CDI", u"Bordeaux", u"", u"Vendeur", u"VE 106",
     Cdi},
    {0, Way::Standing, u"moderne.htm", u"", u"", u"", u"", u"", u"Infirmier De Bloc", u"IB 77", Cdd},
    {0, Way::Paste, u"Opticien", u"Optique des Dunes", u"OP-108", u"CDI", u"Dunkerque", u"", u"Opticien",
     u"OP 108", Cdi},
    {7, Way::Late, u"Architecte", u"Atelier Vercors", u"AR-109", u"CDI", u"Montpellier",
     u"atelier@vercors.example", u"Architecte", u"AR 109", Cdi},
    {7, Way::Paste, u"Conducteur de travaux", u"Travaux de Loire", u"CT-110", u"CDI", u"Orléans", u"",
     u"Conducteur De Travaux", u"CT 110", Cdi},
    {7, Way::Standing, u"apec.fr/offres/12.htm", u"", u"", u"", u"", u"", u"Caissier De Nuit", u"CAD 12",
     Cdi},
    {7, Way::Paste, u"Cariste", u"Quais du Sud", u"CA-112", u"CDI", u"Cavaillon", u"", u"Cariste", u"CA 112",
     Cdi},
    {7, Way::Paragraphs, u"Formateur bureautique", u"Nordalis", u"FB-113", u"CDI", u"Lille",
     u"emploi@nordalis.example", u"Formateur Bureautique", u"FB 113", Cdi},
    {14, Way::Paste, u"Secrétaire médicale", u"Clinique du Parc", u"SM-114", u"CDD", u"Caen", u"",
     u"Secretaire Medicale", u"SM 114", Cdd},
    {14, Way::Paste, u"Magasinier", u"Terres de Saône", u"MA-115", u"CDD", u"Mâcon", u"", u"Magasinier",
     u"MA 115", Cdd},
    {14, Way::Paste, u"Chef de chantier", u"Pierres Vives", u"CC-116", u"CDI", u"Quimper", u"",
     u"Chef De Chantier", u"CC 116", Cdi},
    {14, Way::Table, u"Technicien de maintenance", u"Valmont", u"TM-117", u"CDI", u"Grenoble",
     u"cv@valmont.example", u"Technicien De Maintenance", u"TM 117", Cdi},
    {21, Way::Paste, u"Jardinier", u"Ville Haute", u"JA-118", u"CDD", u"Angers", u"", u"Jardinier", u"JA 118",
     Cdd},
    {21, Way::Paste, u"Électricien", u"Lumora", u"EL-119", u"CDI", u"Brest", u"", u"Electricien", u"EL 119",
     Cdi},
    {28, Way::Table, u"Serveur", u"Hôtel des Quais", u"SE-120", u"CDI", u"Le Havre", u"", u"Serveur",
     u"SE 120", Cdi},
}};

struct Application {
  int day;
  std::int16_t row;
  bool mail;  // sent by the mail client, or marked as sent
};

constexpr std::array<Application, 10> Applications{{{0, 2, false},
                                                    {0, 3, true},
                                                    {0, 4, false},
                                                    {4, 1, true},
                                                    {5, 5, false},
                                                    {7, 6, false},
                                                    {7, 9, true},
                                                    {14, 12, false},
                                                    {14, 13, true},
                                                    {21, 17, true}}};

// A status that is chosen in the list, and the day of an interview that is typed after it.
struct Answer {
  int day;
  std::int16_t row;
  int status;  // index in ListeStatuts
  const char* interview;
};

constexpr std::array<Answer, 7> Answers{{{0, 4, 5, "03/03/2026"},
                                         {7, 2, 3, ""},
                                         {7, 3, 5, "10/03/2026"},
                                         {14, 6, 4, ""},
                                         {21, 12, 5, "06/04/2026"},
                                         {28, 13, 10, ""},
                                         {28, 17, 8, "17/04/2026"}}};

// What has become of a row by the end. The days of the two stamps in its remarks are empty without one.
struct Outcome {
  std::int32_t row;
  const char16_t *Statut, *DateEnvoi, *DateRDV;
  const char16_t *answered, *invited;
};

constexpr std::array<Outcome, 11> Outcomes{{
    // Thirty-one days after the sending, and thirty.
    {1, u"EMISE - SANS REPONSE", u"06/03/2026", u"", u"", u""},
    {5, u"EMISE - EN ATTENTE DE REPONSE", u"07/03/2026", u"", u"", u""},
    {2, u"REPONSE - REFUS NET", u"02/03/2026", u"", u"09/03/2026", u""},
    {3, u"ENTRETIEN EFFECTUE - ATTENTE REPONSE", u"02/03/2026", u"10/03/2026", u"09/03/2026", u"09/03/2026"},
    {4, u"SANS REPONSE APRES ENTRETIEN", u"02/03/2026", u"03/03/2026", u"02/03/2026", u"02/03/2026"},
    {6, u"REPONSE - REFUS MAIS CONSERVEE", u"09/03/2026", u"", u"16/03/2026", u""},
    {9, u"EMISE - EN ATTENTE DE REPONSE", u"09/03/2026", u"", u"", u""},
    {12, u"ENTRETIEN A EFFECTUER", u"16/03/2026", u"06/04/2026", u"23/03/2026", u"23/03/2026"},
    {13, u"EMBAUCHE", u"16/03/2026", u"30/03/2026", u"30/03/2026", u"30/03/2026"},
    {17, u"ENTRETIEN EFFECTUE - SECOND ENTRETIEN", u"23/03/2026", u"17/04/2026", u"30/03/2026",
     u"30/03/2026"},
    {8, u"NON EMISE", u"", u"", u"", u""},
}};

Text RemarksOf(const Outcome& outcome) {
  Text remarks;
  if (*outcome.answered != 0) remarks = u"Réponse le " + Text{outcome.answered} + u"\r\n";
  if (*outcome.invited != 0) remarks += u"\r\nPrise de rendez-vous le " + Text{outcome.invited} + u"\r\n";
  return remarks;
}

constexpr int LastDay = 35;

QString Field(const char* label, const char16_t* value, const QString& shape) {
  return *value == 0 ? QString() : shape.arg(QString::fromUtf8(label), QString::fromUtf16(value));
}

// The advertisement as its site writes it.
QString Written(const Advertisement& ad) {
  const QString title = QString::fromUtf16(ad.title);
  const auto fields = [&](const QString& shape) {
    return Field("Société", ad.company, shape) + Field("Référence", ad.reference, shape) +
           Field("Contrat", ad.contract, shape) + Field("Lieu", ad.town, shape) +
           Field("Courriel", ad.mail, shape) +
           Field("Profil", u"vous aimez le travail en équipe et le contact", shape);
  };
  switch (ad.way) {
    case Way::Table:
      return QStringLiteral("<table><tr><td colspan=2><b>%1</b></td></tr>%2</table>")
          .arg(title, fields(QStringLiteral("<tr><td>%1 :</td><td>%2</td></tr>")));
    case Way::Paragraphs:
      return QStringLiteral("<h1>%1</h1>%2").arg(title, fields(QStringLiteral("<p>%1 : %2</p>")));
    case Way::Late:
      return QStringLiteral(
                 "<p>Chargement</p><script>setTimeout(() => { document.body.innerHTML = '<h1>%1</h1>%2'; "
                 "document.title = 'Offre affichée'; }, 100)</script>")
          .arg(title, fields(QStringLiteral("<div>%1 : %2</div>")));
    case Way::Standing:
    case Way::Paste:
      break;
  }
  return title + QStringLiteral("\n\n") + fields(QStringLiteral("%1 : %2\n"));
}

class MonthRunTest : public BrowserTest {
 protected:
  MonthRunTest() {
    SetFolders(scratch.Path());
    environment.values[u"ALLUSERSPROFILE"] = u"C:\\ProgramData";
    fs::create_directory(scratch.Path() / "Documents");
    fs::create_directory(scratch.Path() / "bin");
    // The mail client keeps each message; nothing else of the machine is opened.
    Program("courrier", "printf '%s\\n' \"$1\" >> '" + (scratch.Path() / "envois").string() + "'");
    Program("xdg-open", "exit 0");
    qputenv("PATH", QByteArray::fromStdString((scratch.Path() / "bin").string()) + ":" + path_);
    qputenv("MAILER", "courrier");
    InstallerDossier(fs::current_path(), TALVOR_DATA_FOLDER);
  }
  ~MonthRunTest() override {
    qputenv("PATH", path_);
    qunsetenv("MAILER");
  }

  void SetFolders(const fs::path& home) {
    environment.values[u"userprofile"] = environment.values[u"temp"] = *TextOf(home);
  }
  void Program(const char* name, const std::string& command) {
    const fs::path file = scratch.Path() / "bin" / name;
    std::ofstream(file) << "#!/bin/sh\n" << command << '\n';
    fs::permissions(file, fs::perms::owner_all);
  }
  static Day DayOfRun(int day) { return Day{DayOf({2026, 3, 2})->serial + day}; }

  template <class Widget = QWidget>
  Widget* Over(TextView form, const char* name) {
    auto* found = desktop->Windows().WindowOf(form)->findChild<Widget*>(QString::fromUtf8(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  void Press(TextView form, const char* name) { QTest::mouseClick(Over(form, name), Qt::LeftButton); }
  void ClickRow(QListWidget* list, int row) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
  }
  void OpenRow(std::int16_t row) { ClickLeaf(u"s" + NumberText(row)); }

  // A CV of the one seeker: the second of the name becomes a copy by its name.
  void WriteCv(const char* trade) {
    desktop->Windows().Unload(u"FormCand");
    desktop->Windows().Unload(EditorForm);
    Wait(1);  // the windows are gone with the events that are left
    Activate(desktop->Main());
    desktop->Cv().OpenNew();
    Click("SaiseDetaillee");
    Type("Nom", QStringLiteral("Marchand"));
    Type("Prénom", QStringLiteral("Julie"));
    Type("Email", QStringLiteral("julie@mail.example"));
    Type("Fonction", QString::fromUtf8(trade));
    Type("Etudes", QStringLiteral("2015 : Master"));
    Find("Divers")->setFocus();
  }
  // The first CV as a file that can be attached.
  void ConvertCv() {
    desktop->Windows().Show(ConvertForm);
    Press(ConvertForm, "ConvertirPDF");
  }
  void WriteLetter(std::size_t slot, const char* form, const char* nature) {
    desktop->Main().Header().OnSlotOpen(slot);
    Click(form);
    Click(nature);
    for (int group = 0; group < 5; ++group) Click(("BoutonTLV2_" + std::to_string(group)).c_str());
    desktop->Letters().Window()->Tick1000();
    desktop->Windows().Unload(LetterForm);
  }

  void Capture(std::size_t index) {
    const Advertisement& ad = Advertisements[index];
    if (ad.way == Way::Paste) {
      Click("Action0");
      ASSERT_TRUE(WaitFor([&] { return Pages().LocationURL() == BlankPage; }, Patience));
      QGuiApplication::clipboard()->setText(Written(ad));
      Find<QPlainTextEdit>("Description")->paste();
      Window().Tick500();
      return Click("Action3");
    }
    const bool standing = ad.way == Way::Standing;
    const QString page = standing ? QString::fromUtf16(ad.title) : QStringLiteral("offre%1.htm").arg(index);
    if (!standing)
      site.pages[page] = "<!doctype html><meta charset=utf-8><title>Offre</title>" + Written(ad).toUtf8();
    Browse(page);
    ASSERT_TRUE(Settled());
    if (ad.way == Way::Late || page == QStringLiteral("moderne.htm")) {
      ASSERT_TRUE(
          WaitFor([&] { return Pages().View()->title() == QStringLiteral("Offre affichée"); }, Patience));
    }
    ClickLink("CaptureSel");
    ASSERT_TRUE(WaitFor([&] { return !Web().Busy(); }, Patience));
  }
  void Apply(const Application& application) {
    OpenRow(application.row);
    Click("PicturePostuler");
    Press(ApplyForm, "Modele0");
    Press(ApplyForm, "Parcourir");
    ClickRow(Over<QListWidget>(ApplyForm, "File2"), 0);
    Press(ApplyForm, application.mail ? "Messagerie1" : "Messagerie0");
    Press(ApplyForm, "BoutonTLV1");
    desktop->Windows().Unload(ApplyForm);
  }
  void Take(const Answer& answer) {
    OpenRow(answer.row);
    Find<QAction>("Image2")->trigger();
    ClickRow(Find<QListWidget>("ListeStatuts"), answer.status);
    if (*answer.interview == 0) return;
    Find<QLineEdit>("DateRDV")->clear();
    Type("DateRDV", QString::fromUtf8(answer.interview));
    Window().Tick3000();
  }

  // One day of the run; the program is started anew on the first of each week.
  void Live(int day) {
    clock.today = DayOfRun(day);
    if (day % 7 == 0 && day > 0) Restart();
    OpenPane();
    for (std::size_t i = 0; i < Advertisements.size(); ++i)
      if (Advertisements[i].day == day) {
        SCOPED_TRACE(i + 1);
        Capture(i);
      }
    for (const Application& application : Applications)
      if (application.day == day) Apply(application);
    for (const Answer& answer : Answers)
      if (answer.day == day) Take(answer);
  }

  void ExpectMonth();
  void ExpectRows();
  void ExpectTree();
  void ExpectMessages();
  void ExpectStatistics();
  void ExpectReports();
  void ExpectFiles();

  QString ReportText(const std::function<void()>& print) {
    print();
    QString text;
    bool come = false;
    desktop->Reports().Preview().Window()->View().page()->toPlainText([&](const QString& answer) {
      text = answer;
      come = true;
    });
    EXPECT_TRUE(WaitFor([&] { return come; }, Patience));
    desktop->Reports().Preview().Window()->close();
    return text;
  }

 private:
  QByteArray path_ = qgetenv("PATH");
};

void MonthRunTest::ExpectRows() {
  ASSERT_EQ(Count(), 20);
  int notSent = 0;
  for (std::size_t i = 0; i < Advertisements.size(); ++i) {
    const auto num = static_cast<std::int32_t>(i + 1);
    SCOPED_TRACE(num);
    const Advertisement& ad = Advertisements[i];
    const Candidature row = Read(num);
    EXPECT_EQ(ToUtf8(row.Intitule), ToUtf8(ad.Intitule));
    EXPECT_EQ(ToUtf8(row.Reference), ToUtf8(ad.Reference));
    EXPECT_EQ(ToUtf8(row.Nature), ToUtf8(ad.Nature));
    EXPECT_EQ(ToUtf8(row.Email), ToUtf8(ad.mail));
    EXPECT_EQ(ToUtf8(row.DateDiffusion), ToUtf8(DateText(DayOfRun(ad.day))));
    EXPECT_EQ(row.www.empty(), ad.way == Way::Paste);
    if (row.Statut == NonEmise) ++notSent;
  }
  EXPECT_EQ(notSent, 10);
  for (const Outcome& outcome : Outcomes) {
    SCOPED_TRACE(outcome.row);
    const Candidature row = Read(outcome.row);
    EXPECT_EQ(ToUtf8(row.Statut), ToUtf8(outcome.Statut));
    EXPECT_EQ(ToUtf8(row.DateEnvoi), ToUtf8(outcome.DateEnvoi));
    EXPECT_EQ(ToUtf8(row.DateRDV), ToUtf8(outcome.DateRDV));
    EXPECT_EQ(ToUtf8(row.Remarques), ToUtf8(RemarksOf(outcome)));
    EXPECT_EQ(row.CV.empty(), row.DateEnvoi.empty());
    EXPECT_EQ(Contains(row.Lettre, row.Intitule), !row.DateEnvoi.empty()) << ToUtf8(row.Lettre);
  }
}

// The groups of the statuses, the last of the alphabet first, with the number of their rows.
void MonthRunTest::ExpectTree() {
  const QStringList groups{QStringLiteral("sans reponse apres entretien 1"),
                           QStringLiteral("reponse - refus net 1"),
                           QStringLiteral("reponse - refus mais conservee 1"),
                           QStringLiteral("non émises 10"),
                           QStringLiteral("entretien effectue - second entretien 1"),
                           QStringLiteral("entretien effectue - attente reponse 1"),
                           QStringLiteral("entretien a effectuer 1"),
                           QStringLiteral("émises - sans reponse 1"),
                           QStringLiteral("émises - en attente de reponse 2"),
                           QStringLiteral("embauche 1")};
  QStringList shown;
  int leaves = 0;
  const QStringList rows = Rows();
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
    if (row->startsWith(QLatin1Char(' '))) {
      ++leaves;
      continue;
    }
    EXPECT_TRUE(row->startsWith(QStringLiteral("Candidatures ")));
    shown.prepend(row->mid(13) + QStringLiteral(" %1").arg(leaves));
    leaves = 0;
  }
  EXPECT_EQ(shown, groups) << shown.join(QLatin1Char('\n')).toStdString();
  EXPECT_EQ(desktop->Model().NbCand, u"20");
}

void MonthRunTest::ExpectMessages() {
  const QStringList sent = QString::fromStdString(ReadBytes(scratch.Path() / "envois").value_or(""))
                               .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  std::vector<std::int16_t> rows;
  for (const Application& application : Applications)
    if (application.mail) rows.push_back(application.row);
  ASSERT_EQ(sent.size(), static_cast<qsizetype>(rows.size()));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(rows[i]);
    const Advertisement& ad = Advertisements[static_cast<std::size_t>(rows[i] - 1)];
    const QUrl message(sent[static_cast<qsizetype>(i)]);
    const QUrlQuery parts(message);
    const auto part = [&](const char* name) {
      return parts.queryItemValue(QString::fromLatin1(name), QUrl::FullyDecoded);
    };
    EXPECT_EQ(message.path(), QString::fromUtf16(ad.mail));
    EXPECT_EQ(
        part("subject"),
        QStringLiteral("En réponse à votre annonce référence %1").arg(QString::fromUtf16(ad.Reference)));
    EXPECT_TRUE(part("body").contains(QString::fromUtf16(ad.Intitule))) << part("body").toStdString();
    EXPECT_FALSE(part("body").contains(QLatin1Char('#'))) << part("body").toStdString();
    EXPECT_TRUE(part("attach").endsWith(QStringLiteral("/Documents/Marchand Julie.pdf")));
  }
  EXPECT_EQ(std::count(dialogs.told.begin(), dialogs.told.end(), u"Candidature envoyée"), 5);
  EXPECT_EQ(std::count_if(dialogs.told.begin(), dialogs.told.end(),
                          [](const Text& told) {
                            return told.starts_with(u"La candidature a été marquée comme envoyée");
                          }),
            5);
}

void MonthRunTest::ExpectStatistics() {
  desktop->Windows().Show(u"FormStat");
  const std::array<const char*, 10> counts{"10", "2", "1", "1", "0", "0", "0", "0", "0", "1"};
  for (std::size_t i = 0; i < counts.size(); ++i)
    EXPECT_EQ(Over<QLabel>(u"FormStat", ("Nb" + std::to_string(i)).c_str())->text(),
              QString::fromLatin1(counts[i]))
        << ToUtf8(ListeStatutsComptes[i]);
  EXPECT_EQ(Over<QLabel>(u"FormStat", "DateJour")->text(), QStringLiteral("Nous sommes le 06/04/2026"));
  QStringList interviews = Over<QLabel>(u"FormStat", "RDV")->text().split(QLatin1Char('\n'));
  ASSERT_EQ(interviews.size(), 2);
  EXPECT_TRUE(interviews[0].trimmed().endsWith(QStringLiteral(" le 06/04/2026"))) << "that of today";
  EXPECT_EQ(interviews[1].trimmed(), QStringLiteral("Entretien avec la société VALMONT le 17/04/2026"));
  Press(u"FormStat", "BoutonTLV1");

  FormStat months(clock);
  months.Charger();
  EXPECT_EQ(months.MoisCal1, u"AVR 2026 ");
  EXPECT_EQ(months.MoisCal2, u"MAI 2026 ");
  // The first of April is a Wednesday, the first of May a Friday.
  for (std::size_t cell = 0; cell < months.Jour.size(); ++cell) {
    EXPECT_EQ(months.Jour[cell].today, cell == 7) << cell;
    EXPECT_EQ(months.Jour[cell].interview, cell == 7 || cell == 18) << cell;
  }
  EXPECT_EQ(months.Jour[2].text, u"1");
  EXPECT_EQ(months.Jour[31].text, u"30");
  EXPECT_EQ(months.Jour[42 + 4].text, u"1");
  EXPECT_EQ(months.Jour[42 + 34].text, u"31");
}

void MonthRunTest::ExpectReports() {
  const QString list = ReportText([&] { Click("Image7"); });
  EXPECT_TRUE(list.contains(QStringLiteral("Liste des candidatures"))) << list.toStdString();
  EXPECT_TRUE(list.contains(QStringLiteral("en date du 06/04/2026")));
  EXPECT_EQ(list.count(QStringLiteral("NON EMISE")), 10);
  EXPECT_EQ(list.count(QStringLiteral("EMISE - EN ATTENTE DE REPONSE")), 2);
  EXPECT_EQ(list.count(QStringLiteral("02/03/2026")), 8);
  const QString proof = ReportText([&] {
    QMenu* menu = desktop->Library().Menus().Menu(u"MenuCandidature");
    menu->findChild<QAction*>(QStringLiteral("MenuJustificatif"))->trigger();
  });
  EXPECT_TRUE(proof.contains(QStringLiteral("Activité de recherche d'emploi - Julie MARCHAND")))
      << proof.toStdString();
  EXPECT_EQ(proof.count(QStringLiteral("Envoi de la candidature")), 20);
  EXPECT_EQ(proof.count(QStringLiteral("Entretien\t-\t-")), 5) << proof.toStdString();
  EXPECT_EQ(proof.count(QStringLiteral("Réponse le ")), 7);
  EXPECT_EQ(proof.count(QStringLiteral("Début de l'annonce : ")), 20);
  for (const Advertisement& ad : Advertisements) {
    const QString reference = QString::fromUtf16(ad.Reference);
    EXPECT_EQ(list.count(reference), 1) << reference.toStdString();
    EXPECT_TRUE(proof.contains(reference)) << reference.toStdString();
  }
}

QStringList NamesIn(const fs::path& folder) {
  return QDir(QString::fromStdString(folder.string())).entryList(QDir::Files, QDir::Name);
}

void MonthRunTest::ExpectFiles() {
  const QStringList cvs{QStringLiteral("Copie De Marchand Julie.dat"), QStringLiteral("Marchand Julie.dat")};
  const QStringList letters{QStringLiteral("Julie Marchand (ER).dat"),
                            QStringLiteral("Julie Marchand (ES).dat"),
                            QStringLiteral("Julie Marchand (IR).dat")};
  EXPECT_EQ(NamesIn("CV"), cvs);
  EXPECT_EQ(NamesIn("Lettres"), letters);
  HeaderBar& header = desktop->Main().Header();
  const QString free = QStringLiteral("Créer nouveau");
  const QStringList slots = cvs + QStringList{free} + letters + QStringList{free};
  qsizetype at = 0;
  for (const std::size_t slot : {0U, 1U, 2U, 5U, 6U, 7U, 8U})
    EXPECT_EQ(header.Slot(slot).accessibleName(), slots[at++]);
  EXPECT_FALSE(header.Slot(3).isVisible());
  EXPECT_FALSE(header.Slot(9).isVisible());
  EXPECT_EQ(header.Slot(Principale::CandidatureSlot).Shown().icon, QStringLiteral("case"));
  // A copy of the database for each day of a start.
  QStringList copies;
  for (const char* day : {"03-01", "03-09", "03-16", "03-23", "03-30", "04-06"})
    copies.append(QStringLiteral("Talvor-2026-%1.mdb").arg(QString::fromLatin1(day)));
  EXPECT_EQ(NamesIn("Sauvegardes"), copies);
}

void MonthRunTest::ExpectMonth() {
  ExpectRows();
  ExpectTree();
  ExpectStatistics();
  ExpectReports();
  ExpectFiles();
}

// The files of `folder` that `copy` does not hold byte for byte. The database has gone through its engine,
// which leaves traces of its own: its rows are counted where they arrive.
QStringList MissingFrom(const fs::path& copy, const fs::path& folder) {
  QStringList missing;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file() || entry.path().filename() == "Talvor.mdb") continue;
    const fs::path name = entry.path().lexically_relative(folder);
    const auto copied = ReadBytes(copy / name);
    if (!copied || copied != ReadBytes(entry.path())) missing.append(QString::fromStdString(name.string()));
  }
  return missing;
}

TEST_F(MonthRunTest, EveryNumberStandsAtTheEndAndAfterARestoreElsewhere) {
  clock.today = DayOfRun(0);
  WriteCv("Assistante de direction");
  ConvertCv();
  WriteCv("Comptable");
  desktop->Windows().Unload(EditorForm);
  WriteLetter(Principale::FirstLetterSlot, "Check_Modele1", "Check_candidature1");
  WriteLetter(Principale::FirstLetterSlot + 1, "Check_Modele0", "Check_candidature1");
  WriteLetter(Principale::FirstLetterSlot + 2, "Check_Modele1", "Check_candidature0");
  desktop->Windows().Show(u"FormCand");
  for (const int day : {0, 4, 5, 7, 14, 21, 28}) Live(day);
  clock.today = DayOfRun(LastDay);
  Restart();
  {
    SCOPED_TRACE("at the end of the month");
    ExpectMonth();
    ExpectMessages();
  }

  const fs::path key = scratch.Path() / "clé";
  fs::create_directory(key);
  pickers.file = key / "Talvor.mdb";
  desktop->Windows().Show(u"FormLoadSave");
  Press(u"FormLoadSave", "Sauver");
  ASSERT_EQ(dialogs.told.back(), u"Sauvegarde effectuée");
  const QStringList lost = MissingFrom(key / "Talvor", scratch.Path() / "Talvor");
  EXPECT_TRUE(lost.isEmpty()) << lost.join(QLatin1Char('\n')).toStdString();

  const fs::path elsewhere = scratch.Path() / "ailleurs";
  fs::create_directory(elsewhere);
  environment.values[u"AppData"] = *TextOf(elsewhere);
  InstallerDossier(elsewhere / "Talvor", TALVOR_DATA_FOLDER);
  fs::current_path(elsewhere / "Talvor");
  Restart();
  ASSERT_EQ(Count(), 0);
  pickers.file = key / "Talvor" / "Talvor.mdb";
  desktop->Windows().Show(u"FormLoadSave");
  Press(u"FormLoadSave", "Charger");
  ASSERT_EQ(dialogs.told.back(), u"Chargement effectué");
  Restart();
  ASSERT_TRUE(fs::equivalent(fs::current_path(), elsewhere / "Talvor"));
  SCOPED_TRACE("in the other data folder");
  ExpectMonth();
  EXPECT_TRUE(failures.empty());
}

}  // namespace
}  // namespace talvor
