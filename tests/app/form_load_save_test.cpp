#include "app/form_load_save.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "app/installation.h"
#include "app/start_up.h"
#include "base/line_file.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/file_fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "tracking/store.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

// The real steps, one of which fails: the `failAt`-th copy or, counted on from there, renaming.
class FailingSteps : public CopySteps {
 public:
  Result<> CopyFile(const fs::path& from, const fs::path& to,
                    const std::function<bool(std::uintmax_t)>& onBytes) override {
    copied.insert(from);
    if (Fails()) return Failure();
    if (!byLinks) return CopySteps::CopyFile(from, to, onBytes);
    std::error_code error;
    fs::create_hard_link(from, to, error);
    return error;
  }
  Result<> Put(const fs::path& from, const fs::path& to) override {
    return Fails() ? Failure() : CopySteps::Put(from, to);
  }
  Result<> Settle(const fs::path&) override { return {}; }

  int failAt = 0;
  int step = 0;
  std::set<fs::path> copied;  // what was copied as a file
  bool byLinks = false;       // the names without the bytes, for copies that are going to fail

 private:
  bool Fails() { return ++step == failAt; }
  static std::error_code Failure() { return std::make_error_code(std::errc::no_space_on_device); }
};

// Every file of a folder with its bytes.
std::map<std::string, std::string> Snapshot(const fs::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator{folder})
    if (entry.is_regular_file())
      files[fs::relative(entry.path(), folder).string()] = *ReadBytes(entry.path());
  return files;
}

class FormLoadSaveTest : public testing::Test {
 protected:
  FormLoadSaveTest() {
    InstallerDossier(Home(), {});
    fs::create_directory(Key());
    fs::current_path(Home());
    Write("CV/Été.dat", "Nom=Durand\r\n");
    Write("Lettres/l (ER).dat", "lettre");
    AddRow(u"Avant");
    auto real = std::make_unique<FailingSteps>();
    steps = real.get();
    form = std::make_unique<FormLoadSave>(
        FormLoadSave::Surroundings{principale, shell, dialogs, pickers, clock}, std::move(real));
    shell.visible.insert(u"FormLoadSave");
  }

  fs::path Home() const { return scratch.Path() / "Talvor"; }
  fs::path Key() const { return scratch.Path() / "clé"; }
  static void Write(const fs::path& file, std::string_view bytes) {
    std::ofstream{file, std::ios::binary} << bytes;
  }
  void AddRow(const Text& title) {
    Database base = Database::Open(clock);
    base.Save(base.BeginRow(), {.Intitule = title});
  }
  std::int64_t Rows() const { return Database::Open(clock).CountRows(); }
  bool Save() {
    pickers.file = Key() / "Talvor.mdb";
    return form->Sauver();
  }
  bool Load(const fs::path& file) {
    pickers.file = file;
    return form->Charger();
  }
  Text Told() const { return dialogs.told.empty() ? Text{} : dialogs.told.back(); }
  void FailAt(int step) {
    steps->step = 0;
    steps->failAt = step;
  }

  ScratchFolder scratch;
  FakeClock clock{{2026, 3, 1}};
  FakeDialogs dialogs;
  FakeShell shell;
  FakePickers pickers;
  Principale principale{shell};
  FailingSteps* steps = nullptr;
  std::unique_ptr<FormLoadSave> form;
};

TEST_F(FormLoadSaveTest, ADroppedDialogDoesNothing) {
  EXPECT_FALSE(form->Sauver());
  EXPECT_EQ(pickers.asked.name, u"Talvor.mdb");
  EXPECT_EQ(pickers.asked.title, u"Sélectionner l'emplacement de sauvegarde");
  EXPECT_FALSE(form->Charger());
  EXPECT_FALSE(form->Nouvel());
  EXPECT_TRUE(dialogs.told.empty());
  EXPECT_TRUE(shell.FormeVisible(u"FormLoadSave"));
}

TEST_F(FormLoadSaveTest, ACopyGoesOutAndComesBackWithADatedCopyOfWhatItReplaces) {
  ASSERT_TRUE(Save()) << ToUtf8(Told());
  EXPECT_EQ(dialogs.told, std::vector<Text>{u"Sauvegarde effectuée"});
  EXPECT_FALSE(shell.FormeVisible(u"FormLoadSave"));
  EXPECT_EQ(Snapshot(Key() / "Talvor")["Lettres/l (ER).dat"], "lettre");
  EXPECT_EQ(std::distance(fs::directory_iterator{Key()}, fs::directory_iterator{}), 1)
      << "nothing stays beside";

  AddRow(u"Après");
  Write("CV/Été.dat", "retouché");
  Write("CV/Neuf.dat", "neuf");
  Write("Talvor.mdb-journal", "left by a crash");
  int closed = 0;
  form->fermerDocuments = [&] {
    ++closed;
    EXPECT_EQ(*ReadBytes("CV/Été.dat"), "retouché") << "the documents close before the data changes";
  };
  for (const char* kept :
       {"Sauvegardes/Restauration 2026-03-01", "Sauvegardes/Restauration 2026-03-01 (2)"}) {
    Write("CV/Été.dat", "retouché");
    ASSERT_TRUE(Load(Key() / "Talvor" / "Talvor.mdb")) << ToUtf8(Told());
    EXPECT_EQ(*ReadBytes("CV/Été.dat"), "Nom=Durand\r\n");
    EXPECT_EQ(*ReadBytes(fs::path{kept} / "CV/Été.dat"), "retouché");
  }
  EXPECT_EQ(Told(), u"Chargement effectué");
  EXPECT_EQ(closed, 2);
  EXPECT_EQ(Rows(), 1) << "what a crash has left beside the old base does not touch the new one";
  EXPECT_TRUE(fs::exists("Sauvegardes/Restauration 2026-03-01/Talvor.mdb-journal"));
  EXPECT_EQ(Database::OpenFile("Sauvegardes/Restauration 2026-03-01/Talvor.mdb", clock).CountRows(), 2);
  EXPECT_EQ(*ReadBytes("CV/Neuf.dat"), "neuf") << "what the copy does not hold stays";
  EXPECT_EQ(principale.ImageMenu[1].toolTip, u"Été.dat");
}

TEST_F(FormLoadSaveTest, TheOldDatabaseGoesFirstAndAFailureSaysSo) {
  Write(Key() / "Talvor.mdb", "ancienne");
  FailAt(2);
  EXPECT_FALSE(Save());
  EXPECT_TRUE(Told().starts_with(u"Problème lors de la sauvegarde. ")) << ToUtf8(Told());
  EXPECT_TRUE(Contains(Told(), u"il n’y a plus de place")) << ToUtf8(Told());
  EXPECT_TRUE(Contains(Told(), u"déjà été supprimée")) << ToUtf8(Told());
  EXPECT_TRUE(fs::is_empty(Key()));
  EXPECT_TRUE(shell.FormeVisible(u"FormLoadSave")) << "the form stays";
}

TEST_F(FormLoadSaveTest, AFailedRestoreLeavesTheLiveDataAsItStood) {
  ASSERT_TRUE(Save());
  AddRow(u"Après");
  Write("CV/Été.dat", "retouché");
  Write(Key() / "Talvor/CV/Neuf.dat", "neuf");
  fs::create_directories(Key() / "Talvor/Autre/dossier");
  Write(Key() / "Talvor/Autre/dossier/f", "f");
  const auto before = Snapshot(Home());
  const int files = static_cast<int>(Snapshot(Key() / "Talvor").size());
  for (int failAt = 1; failAt <= 2 * files; ++failAt) {
    FailAt(failAt);
    EXPECT_FALSE(Load(Key() / "Talvor/Talvor.mdb"));
    EXPECT_TRUE(Told().starts_with(u"Problème lors du chargement. ")) << ToUtf8(Told());
    EXPECT_EQ(Snapshot(Home()), before) << "failure at step " << failAt;
    EXPECT_FALSE(fs::exists("Autre"));
    EXPECT_EQ(std::distance(fs::directory_iterator{scratch.Path()}, fs::directory_iterator{}), 2);
  }
  FailAt(0);
  EXPECT_TRUE(Load(Key() / "Talvor/Talvor.mdb")) << ToUtf8(Told());
}

TEST_F(FormLoadSaveTest, WhatIsNoWorkspaceIsRefusedBeforeAnythingChanges) {
  ASSERT_TRUE(Save()) << ToUtf8(Told());
  Write("CV/Été.dat", "retouché");
  const std::string whole = *ReadBytes(Key() / "Talvor/Talvor.mdb");
  std::string newer = whole;
  newer.at(63) = 2;  // the last byte of the version of the schema
  std::string torn = whole;
  torn.replace(100, 400, 400, '\xFF');
  std::string worn = whole;
  worn.replace(worn.size() - 4096, 4096, 4096, 'Z');  // opens, and fails at the rows
  const auto before = Snapshot(Home());
  form->fermerDocuments = [] { ADD_FAILURE() << "the documents close for a base that is not taken"; };
  // The folder around each of these bases is one that could be restored.
  for (const auto& [name, base] : {std::pair{"text"s, "ceci n’est pas une base"s},
                                   {"nothing"s, ""s},
                                   {"newer"s, newer},
                                   {"torn"s, torn},
                                   {"worn"s, worn},
                                   {"half"s, whole.substr(0, whole.size() / 2)}}) {
    const fs::path copy = Key() / name / "Talvor";
    fs::create_directory(copy.parent_path());
    fs::copy(Key() / "Talvor", copy, fs::copy_options::recursive);
    Write(copy / "Talvor.mdb", base);
    EXPECT_FALSE(Load(copy / "Talvor.mdb")) << name;
    EXPECT_TRUE(Told().starts_with(u"Problème lors du chargement. " + *TextOf(copy / "Talvor.mdb")))
        << name << ' ' << ToUtf8(Told());
    EXPECT_EQ(Snapshot(Home()), before) << name;
  }
  EXPECT_FALSE(Load(Key() / "Talvor/Autre.mdb"));
  EXPECT_TRUE(Contains(Told(), u"Talvor.mdb"));
  EXPECT_FALSE(Load(Home() / "Talvor.mdb")) << "the workspace over itself";
  fs::remove(Key() / "Talvor/Talvor.mdb");
  EXPECT_FALSE(Load(Key() / "Talvor/Talvor.mdb")) << "no database there";
  EXPECT_EQ(Snapshot(Home()), before);
}

TEST_F(FormLoadSaveTest, AFileCannotReplaceAFolderAndLeavesWhatItMet) {
  ASSERT_TRUE(Save()) << ToUtf8(Told());
  fs::remove_all(Key() / "Talvor/CV");
  Write(Key() / "Talvor/CV", "a file where a folder stands");
  AddRow(u"Après");
  const auto before = Snapshot(Home());
  EXPECT_FALSE(Load(Key() / "Talvor/Talvor.mdb"));
  EXPECT_TRUE(Contains(Told(), u"un dossier se trouve à la place du fichier")) << ToUtf8(Told());
  EXPECT_EQ(Snapshot(Home()), before);
}

TEST_F(FormLoadSaveTest, TheEngineCopiesABaseThatItCanReadAndAnyOtherIsCopiedAsItStands) {
  Write("Talvor.mdb-journal", "left by a crash");
  ASSERT_TRUE(Save()) << ToUtf8(Told());
  EXPECT_FALSE(steps->copied.contains(Home() / "Talvor.mdb"));
  EXPECT_TRUE(steps->copied.contains(Home() / "CV/Été.dat"));
  EXPECT_FALSE(fs::exists(Key() / "Talvor/Talvor.mdb-journal")) << "settled before the files are listed";
  EXPECT_EQ(Database::OpenFile(Key() / "Talvor/Talvor.mdb", clock).CountRows(), 1);

  Write("Talvor.mdb", "abîmée");
  ASSERT_TRUE(Save()) << ToUtf8(Told());
  EXPECT_EQ(*ReadBytes(Key() / "Talvor/Talvor.mdb"), "abîmée");
}

TEST_F(FormLoadSaveTest, AFolderThatCannotBeCopiedIntoIsRefused) {
  const auto before = Snapshot(Home());
  // A copy into the folder that is being copied would never end.
  for (const fs::path& inside : {Home(), Home() / "Sauvegardes", Home() / "CV/neuf"}) {
    pickers.file = inside / "Talvor.mdb";
    EXPECT_FALSE(form->Sauver()) << inside;
    EXPECT_EQ(Snapshot(Home()), before) << "the live database is no old copy";
  }
  pickers.file = scratch.Path() / "Talvor.mdb";
  EXPECT_FALSE(form->Sauver()) << "the copy would be the workspace itself";
  EXPECT_EQ(Snapshot(Home()), before);
}

TEST_F(FormLoadSaveTest, ALinkOnAKeyLeadsNowhere) {
  ASSERT_TRUE(Save()) << ToUtf8(Told());
  const auto before = Snapshot(Home());
  Write(scratch.Path() / "secret", "secret");
  fs::create_symlink(scratch.Path() / "secret", Key() / "Talvor/CV/x.dat");
  EXPECT_FALSE(Load(Key() / "Talvor/Talvor.mdb"));
  EXPECT_TRUE(Contains(Told(), u"est un lien")) << ToUtf8(Told());
  EXPECT_EQ(Snapshot(Home()), before);

  fs::remove_all(Key() / "Talvor/CV");
  fs::create_directory(scratch.Path() / "ailleurs");
  fs::create_directory_symlink(scratch.Path() / "ailleurs", Key() / "Talvor/CV");
  EXPECT_FALSE(Save());
  EXPECT_TRUE(fs::is_empty(scratch.Path() / "ailleurs"));
  // The user's own folder may stand on another disk.
  fs::remove(Key() / "Talvor/CV");
  fs::rename(Home() / "CV", scratch.Path() / "autre disque");
  fs::create_directory_symlink(scratch.Path() / "autre disque", Home() / "CV");
  EXPECT_TRUE(Save()) << ToUtf8(Told());
  EXPECT_TRUE(Load(Key() / "Talvor/Talvor.mdb")) << ToUtf8(Told());
}

TEST_F(FormLoadSaveTest, TheFirstFolderOfTheNameEndsThePath) {
  ASSERT_TRUE(Save());
  const fs::path inner = Home() / "dossier" / "Talvor";
  InstallerDossier(inner, {});
  fs::current_path(inner);
  ASSERT_TRUE(Load(Key() / "Talvor/Talvor.mdb")) << ToUtf8(Told());
  EXPECT_TRUE(fs::is_empty("CV")) << "the copy went to the outer folder";
  ASSERT_GE(dialogs.told.size(), 2u);
  EXPECT_TRUE(Contains(dialogs.told[dialogs.told.size() - 2], u"n’est pas le dossier de travail"));
  EXPECT_EQ(Told(), u"Chargement effectué");
}

TEST_F(FormLoadSaveTest, TheWorkspaceMovesForTheSessionAndItsCopiesFollow) {
  ASSERT_TRUE(Save());
  const fs::path other = Key() / "Talvor";
  pickers.file = other / "Talvor.mdb";
  AddRow(u"Seulement ici");
  Write(other / "CV/Ailleurs.dat", "x");
  ASSERT_TRUE(form->Nouvel()) << ToUtf8(Told());
  EXPECT_EQ(Told(), u"Chargement effectué");
  EXPECT_EQ(fs::current_path(), other);
  EXPECT_EQ(Rows(), 1);
  EXPECT_EQ(principale.ImageMenu[0].toolTip, u"Ailleurs.dat");

  fs::create_directory(scratch.Path() / "bis");
  pickers.file = scratch.Path() / "bis" / "Talvor.mdb";
  ASSERT_TRUE(form->Sauver()) << ToUtf8(Told());
  EXPECT_TRUE(fs::exists(scratch.Path() / "bis/Talvor/CV/Ailleurs.dat"));
  pickers.file = scratch.Path() / "nulle part" / "Talvor.mdb";
  EXPECT_FALSE(form->Nouvel());
  EXPECT_EQ(fs::current_path(), other);

  // The next start finds the usual folder.
  FakeEnvironment environment;
  environment.values[u"AppData"] = *TextOf(scratch.Path());
  PreparerDossier(environment);
  EXPECT_EQ(ChargerPrincipale(principale, environment, clock, dialogs), StartOutcome::Ready);
  EXPECT_EQ(fs::current_path(), Home());
  EXPECT_EQ(principale.NbCand, u"2");
}

TEST_F(FormLoadSaveTest, AKeyThatIsPulledOutIsToldAndTheUsualPlaceIsOneStepAway) {
  ASSERT_TRUE(Save());
  pickers.file = Key() / "Talvor" / "Talvor.mdb";
  ASSERT_TRUE(form->Nouvel());
  fs::remove_all(Key());
  EXPECT_FALSE(form->Sauver());
  EXPECT_TRUE(Told().starts_with(u"Problème lors de la sauvegarde. Le dossier de travail")) << ToUtf8(Told());
  EXPECT_FALSE(Load(Home() / "Talvor.mdb"));
  EXPECT_TRUE(Told().starts_with(u"Problème lors du chargement. ")) << ToUtf8(Told());
  pickers.file = Home() / "Talvor.mdb";
  EXPECT_TRUE(form->Nouvel()) << ToUtf8(Told());
  EXPECT_EQ(Rows(), 1);
}

TEST_F(FormLoadSaveTest, TheUserCanStopACopyAndNoOtherBeginsMeanwhile) {
  int pictures = 0;
  form->OnProgress = [&] {
    if (!form->busy) return;
    ++pictures;
    EXPECT_FALSE(form->Nouvel());
    form->Close();
  };
  EXPECT_FALSE(Save());
  EXPECT_EQ(pictures, 1);
  EXPECT_TRUE(Contains(Told(), u"interrompue")) << ToUtf8(Told());
  EXPECT_TRUE(fs::is_empty(Key()));
  form->Close();
  EXPECT_FALSE(shell.FormeVisible(u"FormLoadSave"));
}

// A workspace of 1,000 files and 200 megabytes, most of them in a few files.
TEST_F(FormLoadSaveTest, AThousandFilesAreCopiedWholeOrNotAtAll) {
  const std::string page(2'000, 'p');
  for (int i = 0; i < 1'000; ++i) {
    const fs::path folder = "Visualisation/" + std::to_string(i / 100);
    fs::create_directories(folder);
    Write(folder / ("page " + std::to_string(i) + ".html"), page);
  }
  const auto failsAt = [&](int step) {
    FailAt(step);
    EXPECT_FALSE(Save()) << step;
    EXPECT_TRUE(Contains(Told(), u"n’a pas pu être copié")) << ToUtf8(Told());
    EXPECT_TRUE(fs::is_empty(Key())) << step;
  };
  steps->byLinks = true;
  for (int step = 10; step <= 1'000; step += 10) failsAt(step);
  steps->byLinks = false;

  std::string block(33'000'000, '\0');
  for (std::size_t i = 0; i < block.size(); ++i) block[i] = static_cast<char>(i * 2654435761U >> 24);
  for (int i = 0; i < 6; ++i) Write("Modeles/" + std::to_string(i) + ".jpg", block);
  failsAt(1'000);
  FailAt(0);
  ASSERT_TRUE(Save()) << ToUtf8(Told());
  const auto files = Snapshot(Key() / "Talvor");
  EXPECT_GE(files.size(), 1'006u);
  EXPECT_EQ(files.at("Modeles/5.jpg"), block);
  EXPECT_EQ(form->progress.files, form->progress.fileCount);
  EXPECT_GE(form->progress.bytes, 200'000'000u);
  EXPECT_EQ(form->progress.bytes, form->progress.byteCount);

  fs::remove_all("Visualisation");
  ASSERT_TRUE(Load(Key() / "Talvor/Talvor.mdb")) << ToUtf8(Told());
  EXPECT_EQ(*ReadBytes("Visualisation/9/page 999.html"), page);
}

}  // namespace
}  // namespace talvor
