#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "core/CartellaMp3.h"
#include "projects/ParoleRitrovo.h"
#include "projects/RitrovaFile.h"
#include "support/ProgressoVisto.h"
#include "support/RigheDelDatabase.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class Watcher : public OsservatoreRitrovo {
 public:
  bool Avanza(const std::string& cartella) override {
    Cartelle.push_back(cartella);
    return AnnullaAlla == 0 || Cartelle.size() < AnnullaAlla;
  }
  Names Cartelle;
  std::size_t AnnullaAlla = 0;
};

class Ritrovo : public testing::Test {
 protected:
  void SetUp() override { b.CreaProgetto("Hall", 4, 5); }

  void Row(const std::string& name, const std::string& folder, const std::string& alias = {}) {
    b.AggiungiRiga("playlist.mdb", 1, ++pos, name, folder, alias);
  }
  std::string Music(const std::string& folder = {}) const {
    return b.Percorso("music" + folder) + "\\";
  }
  EsitoRitrovo Find() { return RitrovaFile(b.C, b.Percorso("music"), watcher); }
  Names Paths() { return test::ColonnaDeiBrani(b, "FilePath"); }

  test::Banco b;
  Watcher watcher;
  int pos = 0;
};

TEST_F(Ritrovo, AFileThatLiesBelowTheFolderIsFoundByItsNameWhateverItsCase) {
  b.Cartella.Write("music/Jazz/Gong.MP3", "x");
  Row("gong.mp3", "D:\\Old\\");
  const EsitoRitrovo outcome = Find();
  EXPECT_EQ(outcome.Trovati(), 1U);
  EXPECT_EQ(Paths(), Names{Music("/Jazz")});
}

TEST_F(Ritrovo, WhatIsNotFoundStaysAsItIs) {
  b.Cartella.Write("music/a.mp3", "x");
  Row("a.mp3", "\\\\server\\share\\");
  Row("b.mp3", "C:\\Music\\");
  const EsitoRitrovo outcome = Find();
  EXPECT_EQ(outcome.Trovati(), 1U);
  ASSERT_EQ(outcome.Righe.size(), 2U);
  EXPECT_EQ(outcome.Righe[1].Ora, "");
  EXPECT_EQ(Paths(), (Names{Music(), "C:\\Music\\"}));
}

TEST_F(Ritrovo, WhatIsThereOrLiesInTheProjectUnderItsAliasIsNotLookedFor) {
  b.Cartella.Write("here/a.mp3", "x");
  b.Cartella.Write("program/Projects/Hall/P01-002.mp3", "x");
  b.Cartella.Write("music/a.mp3", "y");
  b.Cartella.Write("music/b.mp3", "y");
  Row("a.mp3", b.Percorso("here") + "\\");
  Row("b.mp3", "D:\\Old\\", "P01-002.mp3");
  const Names before = Paths();
  EXPECT_TRUE(Find().Righe.empty());
  EXPECT_TRUE(watcher.Cartelle.empty()) << "nothing is missing: no folder is looked at";
  EXPECT_EQ(Paths(), before);
}

TEST_F(Ritrovo, OfSeveralTheOneInFoldersLikeTheOldOnesCounts) {
  b.Cartella.Write("music/Jazz/a.mp3", "jazz");
  b.Cartella.Write("music/Rock/a.mp3", "rock");
  b.Cartella.Write("music/Old/Rock/a.mp3", "old rock");
  Row("a.mp3", "D:\\Music\\Jazz\\");
  Row("a.mp3", "D:\\Old\\Rock\\");
  EXPECT_EQ(Find().Trovati(), 2U);
  EXPECT_EQ(Paths(), (Names{Music("/Jazz"), Music("/Old/Rock")}));
}

TEST_F(Ritrovo, WhereSeveralAreAsLikelyTheRowStays) {
  b.Cartella.Write("music/One/a.mp3", "one");
  b.Cartella.Write("music/Two/a.mp3", "two");
  Row("a.mp3", "D:\\Old\\");
  const EsitoRitrovo outcome = Find();
  EXPECT_EQ(outcome.Trovati(), 0U);
  EXPECT_TRUE(outcome.Righe[0].Dubbia);
  EXPECT_EQ(Paths(), Names{"D:\\Old\\"});
}

TEST_F(Ritrovo, SeveralWithTheSameBytesAreOne) {
  b.Cartella.Write("music/One/a.mp3", "same");
  b.Cartella.Write("music/Two/a.mp3", "same");
  Row("a.mp3", "D:\\Old\\");
  EXPECT_EQ(Find().Trovati(), 1U);
  EXPECT_EQ(Paths(), Names{Music("/One")});
}

TEST_F(Ritrovo, ARowThatNamesTheFileItselfInPlaceOfItsFolderCountsByItsFolders) {
  b.Cartella.Write("music/Jazz/a.mp3", "jazz");
  b.Cartella.Write("music/Rock/a.mp3", "rock");
  Row("a.mp3", "D:\\Music\\Rock\\A.mp3");
  Row("a.mp3", "/home/anna/Jazz/a.mp3");
  EXPECT_EQ(Find().Trovati(), 2U);
  EXPECT_EQ(Paths(), (Names{Music("/Rock"), Music("/Jazz")}));
}

TEST_F(Ritrovo, AFolderWithoutItsClosingBarLeadsNowhereUntilTheFileIsFound) {
  b.Cartella.Write("music/Jazz/a.mp3", "x");
  Row("a.mp3", b.Percorso("music/Jazz"));
  EXPECT_EQ(Find().Trovati(), 1U);
  EXPECT_EQ(Paths(), Names{Music("/Jazz")});
}

TEST_F(Ritrovo, WhatWasDeletedOrIsHiddenOrNoFileIsNotFound) {
  b.Cartella.Write("music/.Trash-1000/files/a.mp3", "x");
  b.Cartella.Write("music/$Recycle.Bin/S-1/a.mp3", "x");
  b.Cartella.Write("music/Jazz/.b.mp3", "x");
  fs::create_directories(b.Cartella.Host() / "music/Jazz/c.mp3");
  ASSERT_EQ(mkfifo((b.Cartella.Host() / "music/Jazz/d.mp3").c_str(), 0600), 0);
  for (const char* name : {"a.mp3", ".b.mp3", "c.mp3", "d.mp3"}) Row(name, "D:\\Old\\");
  EXPECT_EQ(Find().Trovati(), 0U);
}

TEST_F(Ritrovo, ACancelWritesNothing) {
  b.Cartella.Write("music/a.mp3", "x");
  b.Cartella.Write("music/Jazz/b.mp3", "x");
  Row("a.mp3", "D:\\Old\\");
  watcher.AnnullaAlla = 2;
  const EsitoRitrovo outcome = Find();
  EXPECT_TRUE(outcome.Annullato);
  EXPECT_EQ(outcome.Trovati(), 0U);
  EXPECT_EQ(Paths(), Names{"D:\\Old\\"});
}

TEST_F(Ritrovo, ACancelWhileFilesAreComparedWritesNothingEither) {
  b.Cartella.Write("music/One/a.mp3", "same");
  b.Cartella.Write("music/Two/a.mp3", "same");
  b.Cartella.Write("music/b.mp3", "x");
  Row("b.mp3", "D:\\Old\\");
  Row("a.mp3", "D:\\Old\\");
  watcher.AnnullaAlla = 4;  // three folders, then the comparison
  const EsitoRitrovo outcome = Find();
  EXPECT_TRUE(outcome.Annullato);
  EXPECT_EQ(outcome.Trovati(), 0U);
  EXPECT_EQ(Paths(), (Names{"D:\\Old\\", "D:\\Old\\"}));
}

TEST_F(Ritrovo, LinksToFoldersAreNotFollowed) {
  b.Cartella.Write("music/Jazz/b.mp3", "x");
  fs::create_directory_symlink(b.Cartella.Host() / "music", b.Cartella.Host() / "music/Jazz/up");
  Row("a.mp3", "D:\\Old\\");
  EXPECT_EQ(Find().Trovati(), 0U);
  EXPECT_EQ(std::ranges::count(watcher.Cartelle, Music("/Jazz/up")), 0);
}

TEST_F(Ritrovo, NamesWithApostrophesAreFoundToo) {
  b.Cartella.Write("music/d'oro/l'aria.mp3", "x");
  Row("l'aria.mp3", "D:\\dell'anno\\");
  EXPECT_EQ(Find().Trovati(), 1U);
  EXPECT_EQ(Paths(), Names{Music("/d'oro")});
}

TEST_F(Ritrovo, EachDatabaseOfTheProjectIsLookedAt) {
  b.CreaProgetto("Clock", 4, 2);
  b.AggiungiRiga("scheduler.mdb", 0, 1, "s.mp3", "D:\\Old\\", "");
  b.Cartella.Write("music/s.mp3", "x");
  const EsitoRitrovo outcome = Find();
  ASSERT_EQ(outcome.Righe.size(), 1U);
  EXPECT_EQ(outcome.Righe[0].Database, "scheduler.mdb");
  EXPECT_EQ(outcome.Trovati(), 1U);
}

TEST_F(Ritrovo, TheFolderIsLookedForWhereMusicWasTakenFromLast) {
  b.Cartella.Write("program/KVR5Software.ini", "[Config]\r\n");
  b.Cartella.Write("music/a.mp3", "x");
  TieniCartella(b.C, b.Percorso("music"));
  test::ProgressoVisto progress(b.C);
  b.Finestre.ScegliCartella("");
  RitrovaEDillo(b.C, progress);
  ASSERT_EQ(b.Finestre.Sfogliate.size(), 1U);
  EXPECT_TRUE(b.Finestre.Sfogliate[0].Inizio.starts_with(b.Percorso("music")));
}

TEST_F(Ritrovo, NoFolderChosenChangesNothingAndSaysNothing) {
  Row("a.mp3", "D:\\Old\\");
  test::ProgressoVisto progress(b.C);
  b.Finestre.ScegliCartella("");
  RitrovaEDillo(b.C, progress);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_FALSE(progress.Visibile());
  EXPECT_EQ(Paths(), Names{"D:\\Old\\"});
}

TEST_F(Ritrovo, ItTellsHowManyWereFoundAndWhichWereNot) {
  b.Cartella.Write("music/a.mp3", "x");
  Row("a.mp3", "D:\\Old\\");
  Row("b.mp3", "D:\\Old\\");
  Row("b.mp3", "D:\\Older\\");
  test::ProgressoVisto progress(b.C);
  b.Finestre.ScegliCartella(b.Percorso("music"));
  RitrovaEDillo(b.C, progress);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(
      box.Testo,
      "Missing files that were found: 1 of 3\r\nNot found there; look in another folder:\r\nb.mp3");
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  EXPECT_FALSE(progress.Caricata());
}

TEST_F(Ritrovo, TheProgressWindowsCancelStopsIt) {
  b.Cartella.Write("music/a.mp3", "x");
  Row("a.mp3", "D:\\Old\\");
  test::ProgressoVisto progress(b.C);
  b.Finestre.ScegliCartella(b.Percorso("music"));
  b.Messaggi.Accade = [&] {
    if (progress.Visibile()) b.C.Stato.AnnullatoDaUtente = true;
  };
  RitrovaEDillo(b.C, progress);
  EXPECT_EQ(b.Finestre.Prossimo().Testo, "The search was stopped. Nothing was changed.");
  EXPECT_EQ(Paths(), Names{"D:\\Old\\"});
}

}  // namespace
}  // namespace kvr5
