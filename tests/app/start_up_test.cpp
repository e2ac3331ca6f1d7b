#include "app/start_up.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "app/installation.h"
#include "base/line_file.h"
#include "tests/tracking/tracking_fixture.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

class StartUpTest : public testing::Test {
 protected:
  StartUpTest() {
    environment.values[u"AppData"] = *TextOf(scratch.Path());
    InstallerDossier(Folder(), TALVOR_DATA_FOLDER);
  }

  fs::path Folder() const { return scratch.Path() / "Talvor"; }

  StartOutcome Start() {
    PreparerDossier(environment);
    return ChargerPrincipale(principale, environment, clock, dialogs);
  }

  void Insert(const Candidature& row) {
    fs::current_path(Folder());
    Database base = Database::Open(clock);
    base.Save(base.BeginRow(), row);
  }

  ScratchFolder scratch;
  FakeEnvironment environment;
  FakeClock clock{{2026, 3, 1}};
  FakeDialogs dialogs;
  FakeShell shell;
  Principale principale{shell};
};

TEST_F(StartUpTest, AFirstStartHasAnEmptyMenuAndNoCount) {
  principale.IndexMenu = 3;
  EXPECT_EQ(Start(), StartOutcome::Ready);
  EXPECT_EQ(fs::current_path(), Folder());
  EXPECT_EQ(principale.ImageMenu[10].picture, SlotPicture::ImageNew);
  EXPECT_EQ(principale.ImageMenu[10].toolTip, u"");
  EXPECT_EQ(principale.NbCand, u"");
  EXPECT_EQ(principale.IndexMenu, -1);
  EXPECT_EQ(principale.Nom, u"");
}

TEST_F(StartUpTest, RowsAreCountedAgedAndCopiedOnceADay) {
  Insert({.DateEnvoi = u"01/01/2026", .Statut = Text{ListeStatuts[1]}});
  EXPECT_EQ(Start(), StartOutcome::Ready);
  EXPECT_EQ(principale.NbCand, u"1");
  EXPECT_EQ(principale.ImageMenu[10].picture, SlotPicture::ImageCandidature);
  EXPECT_EQ(principale.ImageMenu[10].toolTip, u"Gérer mes candidatures");
  EXPECT_EQ(Database::Open(clock).ReadRow(1).Statut, ListeStatuts[2]);

  const fs::path copy = "Sauvegardes/Talvor-2026-03-01.mdb";
  const auto before = ReadBytes(copy);
  ASSERT_TRUE(before);
  EXPECT_EQ(Start(), StartOutcome::Ready);
  EXPECT_EQ(ReadBytes(copy), before) << "the copy of the day is not taken again";
  fs::copy_file(copy, "Talvor.mdb", fs::copy_options::overwrite_existing);
  EXPECT_EQ(Database::Open(clock).ReadRow(1).Statut, ListeStatuts[1])
      << "it holds what stood before the ageing";
}

TEST_F(StartUpTest, OldCopiesGoAndOtherFilesStay) {
  std::ofstream{Folder() / "Sauvegardes" / "notes.txt"} << "x";
  for (int day = 0; day < 40; ++day) {
    ++clock.today.serial;
    EXPECT_EQ(Start(), StartOutcome::Ready);
  }
  const auto count = std::distance(fs::directory_iterator{"Sauvegardes"}, fs::directory_iterator{});
  EXPECT_EQ(count, 31);
  EXPECT_TRUE(fs::exists("Sauvegardes/notes.txt"));
  EXPECT_FALSE(fs::exists("Sauvegardes/Talvor-2026-03-11.mdb"));
  EXPECT_TRUE(fs::exists("Sauvegardes/Talvor-2026-03-12.mdb"));
}

TEST_F(StartUpTest, ACopyThatCannotBeMadeIsToldAndTheStartGoesOn) {
  fs::remove(Folder() / "Sauvegardes");
  std::ofstream{Folder() / "Sauvegardes"} << "a file in the way";
  EXPECT_EQ(Start(), StartOutcome::Ready);
  ASSERT_EQ(dialogs.told.size(), 1u);
  EXPECT_TRUE(Contains(dialogs.told[0], u"Sauvegardes")) << ToUtf8(dialogs.told[0]);
}

TEST_F(StartUpTest, TheIdentityIsThatOfTheFirstFileIfItIsADocument) {
  std::ofstream{Folder() / "CV" / "b.dat"} << "Nom=Durand\r\n";
  EXPECT_EQ(Start(), StartOutcome::Ready);
  EXPECT_EQ(principale.Nom, u"Durand");
  principale.Nom.clear();
  std::ofstream{Folder() / "CV" / "a.doc"} << "x";
  EXPECT_EQ(Start(), StartOutcome::Ready);
  EXPECT_EQ(principale.Nom, u"") << "a first CV in another format hides the others";
}

TEST_F(StartUpTest, TheBaseIsLookedForHereAndThenInTheUsualFolder) {
  fs::current_path(scratch.Path());
  EXPECT_EQ(ChargerPrincipale(principale, environment, clock, dialogs), StartOutcome::Ready);
  EXPECT_EQ(fs::current_path(), Folder());

  fs::current_path(scratch.Path());
  fs::copy_file(Folder() / "Talvor.mdb", "Talvor.mdb");
  EXPECT_EQ(ChargerPrincipale(principale, environment, clock, dialogs), StartOutcome::Ready);
  EXPECT_EQ(fs::current_path(), scratch.Path()) << "the one that stands here comes first";

  fs::remove("Talvor.mdb");
  fs::remove(Folder() / "Talvor.mdb");
  EXPECT_EQ(Start(), StartOutcome::NoDatabase);
  EXPECT_EQ(dialogs.told, std::vector<Text>{u"La base n'est pas accessible"});
}

TEST_F(StartUpTest, TheStartNeverMakesTheDataFolder) {
  fs::remove_all(Folder());
  EXPECT_EQ(Start(), StartOutcome::NoDatabase);
  EXPECT_FALSE(fs::exists(Folder()));
}

TEST_F(StartUpTest, ABaseThatIsNoneEndsTheStart) {
  std::ofstream{Folder() / "Talvor.mdb"} << std::string(3000, 'x');
  EXPECT_THROW(static_cast<void>(Start()), StoreError);
}

TEST(Installation, LaysDownWhatIsMissingAndNothingElse) {
  const ScratchFolder scratch;
  fs::create_directories("livraison/Modeles");
  std::ofstream{"livraison/Modeles/Basic.htm"} << "neuf";
  std::ofstream{"livraison/Modeles/Autre.htm"} << "neuf";
  std::ofstream{"livraison/propositions.txt"} << "neuf";
  std::ofstream{"livraison/secret.txt"} << "neuf";
  fs::create_directories("d/Modeles");
  std::ofstream{"d/Modeles/Basic.htm"} << "retouché";
  InstallerDossier("d", "livraison");
  InstallerDossier("d", "livraison");
  EXPECT_EQ(ReadBytes("d/Modeles/Basic.htm"), "retouché");
  EXPECT_EQ(ReadBytes("d/Modeles/Autre.htm"), "neuf");
  EXPECT_EQ(ReadBytes("d/propositions.txt"), "neuf");
  EXPECT_FALSE(fs::exists("d/secret.txt"));
  for (const char* name : {"CV", "Lettres", "Cand", "Visualisation", "Talvor.mdb"})
    EXPECT_TRUE(fs::exists(fs::path{"d"} / name)) << name;
}

TEST(Installation, ABaseThatHasGoneFromAFolderInUseIsNoticed) {
  const ScratchFolder scratch;
  EXPECT_FALSE(DatabaseIsLost("d")) << "a first start";
  InstallerDossier("d", "livraison");
  EXPECT_FALSE(DatabaseIsLost("d"));
  std::ofstream{"d/Sauvegardes/Talvor-2026-03-01.mdb"} << "x";
  EXPECT_FALSE(DatabaseIsLost("d"));
  fs::remove("d/Talvor.mdb");
  EXPECT_TRUE(DatabaseIsLost("d"));
}

}  // namespace
}  // namespace talvor
