#include "tracking/store.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <string>

#include "base/line_file.h"
#include "tests/tracking/tracking_fixture.h"
#include "tracking/sqlite_engine.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

using StoreTest = TrackingTest;

std::string Refusal(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const StoreError& error) {
    return error.what();
  }
  return "no refusal";
}

TEST_F(StoreTest, EveryColumnComesBackAsItWasSaved) {
  Candidature row;
  for (const auto& field : CandidatureFields)
    row.*(field.text) = u"« " + Text{field.name} + u" » ' \" \U0001F603\r\n";
  for (const auto date : {&Candidature::DateDiffusion, &Candidature::DateLimite, &Candidature::DateRDV})
    row.*date = u"29/02/2024";
  row.DateEnvoi.clear();
  row.Num = NumberText(Insert(row));
  const Candidature back = Read(1);
  for (const auto& field : CandidatureFields)
    EXPECT_EQ(back.*(field.text), row.*(field.text)) << ToUtf8(field.name);
}

TEST_F(StoreTest, ANumberDrawnAndNotSavedIsLost) {
  EXPECT_EQ(Open().BeginRow().num, 1);
  EXPECT_EQ(Insert({}), 2);
  Open().DeleteAllRows();
  EXPECT_EQ(Insert({}), 3) << "a delete leaves the numbering as it is";
  EXPECT_EQ(Count(), 1);
}

TEST_F(StoreTest, ARowOfAKeyThatIsGoneIsAFailure) {
  EXPECT_THROW(static_cast<void>(Read(7)), StoreError);
  EXPECT_THROW(static_cast<void>(Open().EditRow(7)), StoreError);
  Insert({});
  Database database = Open();
  const PendingRow row = database.EditRow(1);
  Open().DeleteRow(1);
  EXPECT_THROW(database.Save(row, {}), StoreError) << "deleted behind the handle's back";
  database.Close();
  EXPECT_THROW(database.DeleteRow(1), StoreError) << "a closed handle";
}

TEST_F(StoreTest, ADateThatIsNoneIsRefusedAndNothingIsWritten) {
  Insert({.Intitule = u"avant"});
  Database database = Open();
  Candidature changed{.Intitule = u"après"};
  changed.DateRDV = u"mardi";
  EXPECT_NE(Refusal([&] { database.Save(database.EditRow(1), changed); }).find("«\u00A0mardi\u00A0»"),
            std::string::npos);
  EXPECT_EQ(Read(1).Intitule, u"avant");
}

struct Aging {
  TextView status;
  std::optional<int> sentDaysAgo;
  std::optional<int> interviewDaysAgo;
  TextView after;
  const char* reason;
  friend void PrintTo(const Aging& row, std::ostream* out) { *out << row.reason; }
};

class Ageing : public StoreTest, public testing::WithParamInterface<Aging> {};

TEST_P(Ageing, MovesAStatusByItsDate) {
  Candidature row{.Statut = Text{GetParam().status}};
  if (GetParam().sentDaysAgo) row.DateEnvoi = DaysAgo(*GetParam().sentDaysAgo);
  if (GetParam().interviewDaysAgo) row.DateRDV = DaysAgo(*GetParam().interviewDaysAgo);
  Insert(row);
  Open().AgeStatuses();
  EXPECT_EQ(Read(1).Statut, GetParam().after) << GetParam().reason;
}

INSTANTIATE_TEST_SUITE_P(
    Statuses, Ageing,
    testing::Values(Aging{ListeStatuts[1], 30, {}, ListeStatuts[1], "30 days to the day stay put"},
                    Aging{ListeStatuts[1], 31, {}, ListeStatuts[2], "31 days are over 30"},
                    Aging{ListeStatuts[1], {}, {}, ListeStatuts[1], "no date of sending never ages"},
                    Aging{ListeStatuts[0], 99, {}, ListeStatuts[0], "not sent, whatever its date"},
                    Aging{ListeStatuts[5], {}, 0, ListeStatuts[5], "an interview today is to come"},
                    Aging{ListeStatuts[5], {}, 1, ListeStatuts[6], "an interview of yesterday is held"},
                    Aging{ListeStatuts[5], {}, 30, ListeStatuts[6], "held 30 days ago waits one more day"},
                    Aging{ListeStatuts[5],
                          {},
                          31,
                          SansReponseApresEntretien,
                          "long past goes through both steps at one start"},
                    Aging{ListeStatuts[6], {}, 31, SansReponseApresEntretien, "held and no answer"},
                    Aging{ListeStatuts[5], 99, {}, ListeStatuts[5], "no date of interview never ages"},
                    Aging{SansReponseApresEntretien, 99, 99, SansReponseApresEntretien,
                          "the end of the road"}));

TEST_F(StoreTest, OrdersSortWithoutCaseTiesByNumberAndEmptyDatesLast) {
  // Enough rows for the engine to sort in several runs, all tied in groups of five.
  constexpr int Rows = 4000;
  {
    SQLite::Database raw("Talvor.mdb", SQLite::OPEN_READWRITE);
    RegisterCollation(raw);
    SQLite::Transaction transaction(raw);
    SQLite::Statement insert(
        raw,
        "insert into Candidatures (Societe, Statut, Origine, Datediffussion, Description) "
        "values (?1, ?1, ?1, ?2, ?3)");
    const std::string filling(600, 'x');
    for (int i = 0; i < Rows; ++i) {
      insert.reset();
      insert.bind(1, i % 5 == 0 ? "Éa" : i % 5 == 1 ? "éA" : i % 5 == 2 ? "b" : i % 5 == 3 ? "B" : "");
      if (i % 3 == 0)
        insert.bind(2);
      else
        insert.bind(2, 40000 + i % 3);
      insert.bind(3, filling);
      insert.exec();
    }
    transaction.commit();
  }
  const auto isOrdered = [&](RowOrder order, Column column, int direction) {
    Text before;
    int number = 0;
    bool first = true;
    bool ordered = true;
    int seen = 0;
    Open().WalkRows(order, [&](const RowView& row) {
      ++seen;
      const Text value = row.Value(column);
      const int num = std::stoi(ToUtf8(row.Value(&Candidature::Num)));
      if (!first) {
        const int compared = CompareIgnoringCase(value, before) * direction;
        ordered = ordered && (compared > 0 || (compared == 0 && num > number));
      }
      first = false;
      before = value;
      number = num;
    });
    return ordered && seen == Rows;
  };
  EXPECT_TRUE(isOrdered(RowOrder::Company, &Candidature::Societe, 1));
  EXPECT_TRUE(isOrdered(RowOrder::Origin, &Candidature::Origine, 1));
  EXPECT_TRUE(isOrdered(RowOrder::Status, &Candidature::Statut, -1));
  EXPECT_TRUE(isOrdered(RowOrder::Date, &Candidature::DateDiffusion, -1));
}

TEST_F(StoreTest, CountsAStatusWithItsApostrophe) {
  Insert({.Statut = Text{ListeStatuts[9]}});
  EXPECT_EQ(Open().CountByStatus(ListeStatuts[9]), 1);
  EXPECT_EQ(Open().CountByStatus(u"' or '1'='1"), 0);
}

TEST_F(StoreTest, AFileThatIsNoBaseOfOursIsRefusedAndLeftUntouched) {
  const auto refused = [&](const std::string& bytes, const char* cause) {
    std::ofstream{"Talvor.mdb", std::ios::binary} << bytes;
    EXPECT_NE(Refusal([&] { static_cast<void>(Open()); }).find(cause), std::string::npos) << cause;
    EXPECT_EQ(ReadBytes("Talvor.mdb"), bytes) << cause;
  };
  SQLite::Database("Talvor.mdb", SQLite::OPEN_READWRITE)
      .exec("PRAGMA user_version = 2; PRAGMA journal_mode = WAL");
  refused(*ReadBytes("Talvor.mdb"), "plus récente");
  SQLite::Database("Talvor.mdb", SQLite::OPEN_READWRITE)
      .exec("PRAGMA user_version = 1; alter table Candidatures rename column Lettre to Courrier");
  refused(*ReadBytes("Talvor.mdb"), "n’est pas une base de candidatures");
  SQLite::Database("Talvor.mdb", SQLite::OPEN_READWRITE)
      .exec("drop table Candidatures; create view Candidatures as select 1 as Num");
  refused(*ReadBytes("Talvor.mdb"), "n’est pas une base de candidatures");
  refused(std::string(5000, 'x'), "n’est pas une base de données");
  refused("", "n’est pas une base de candidatures");
  std::filesystem::remove("Talvor.mdb");
  EXPECT_NE(Refusal([&] { static_cast<void>(Open()); }).find("introuvable"), std::string::npos);
  std::filesystem::create_directory("Talvor.mdb");
  EXPECT_NE(Refusal([&] { static_cast<void>(Open()); }).find("ouverte"), std::string::npos);
}

TEST_F(StoreTest, ARefusalOfTheEngineIsToldInFrenchAlone) {
  const auto change = [](const char* order) {
    SQLite::Database base("Talvor.mdb", SQLite::OPEN_READWRITE);
    RegisterCollation(base);
    base.exec(order);
  };
  change("create unique index Seule on Candidatures (Lieu)");
  Insert({});
  const std::string refused = Refusal([&] { Insert({}); });
  EXPECT_TRUE(
      refused.ends_with("Talvor.mdb\u00A0: le moteur de base de données signale l’erreur n°\u00A019."))
      << refused;
  Database opened = Open();
  const PendingRow row = opened.BeginRow();
  change("alter table Candidatures rename column Ville to Bourg");
  const std::string other = Refusal([&] { opened.Save(row, {}); });
  EXPECT_TRUE(other.ends_with("Talvor.mdb\u00A0: la base n’a pas la structure attendue.")) << other;
}

TEST_F(StoreTest, AForeignSchemaDoesNothingByItself) {
  SQLite::Database("Talvor.mdb", SQLite::OPEN_READWRITE)
      .exec(
          "create trigger Gone after insert on Candidatures begin delete from Candidatures; end;"
          "create trigger Endless before update on Candidatures begin select (with recursive n(x) as "
          "(select 1 union all select x from n) select count(*) from n); end;");
  EXPECT_EQ(Insert({.DateEnvoi = DaysAgo(40), .Statut = Text{ListeStatuts[1]}}), 1);
  Open().AgeStatuses();
  EXPECT_EQ(Read(1).Statut, ListeStatuts[2]);

  SQLite::Database("Talvor.mdb", SQLite::OPEN_READWRITE).exec("delete from sqlite_sequence");
  EXPECT_EQ(Insert({.Intitule = u"deux"}), 2) << "the numbers go on behind the rows";
}

TEST_F(StoreTest, ADamagedPageIsFoundBeforeItIsNeeded) {
  for (int i = 0; i < 200; ++i) Insert({.Description = Text(300, u'x')});
  EXPECT_NO_THROW(Open().CheckSound());
  std::string bytes = *ReadBytes("Talvor.mdb");
  const std::size_t behind = bytes.size() / 2 / 4096 * 4096;
  bytes.replace(behind, 4096, std::string(4096, '\x5A'));
  std::ofstream{"Talvor.mdb", std::ios::binary} << bytes;
  EXPECT_NE(Refusal([&] { Open().CheckSound(); }).find("endommagée"), std::string::npos);
}

TEST_F(StoreTest, ASecondProgramThatHoldsTheBaseIsNamed) {
  SQLite::Database other("Talvor.mdb", SQLite::OPEN_READWRITE);
  other.exec("begin exclusive");
  EXPECT_NE(Refusal([&] { Insert({}); }).find("autre programme"), std::string::npos);
  other.exec("rollback");
  EXPECT_EQ(Insert({}), 1);
}

TEST_F(StoreTest, ACopyIsWholeAndReplacesTheOldOne) {
  Insert({.Intitule = u"un"});
  Open().BackUp("copie.mdb");
  Insert({.Intitule = u"deux"});
  Open().BackUp("copie.mdb");
  std::filesystem::rename("copie.mdb", "Talvor.mdb");
  EXPECT_EQ(Count(), 2);
  EXPECT_FALSE(std::filesystem::exists("copie.mdb.nouveau"));
}

TEST_F(StoreTest, CreateLeavesABaseAlone) {
  Insert({});
  Database::Create(workspace_paths::Database());
  EXPECT_EQ(Count(), 1);
}

}  // namespace
}  // namespace talvor
