#include <gtest/gtest.h>
#include <sqlite3.h>

#include "BancoRegistrazione.h"

namespace kvr5 {
namespace {

using test::Recording;
using Names = std::vector<std::string>;

TEST_F(Recording, FilesGoToTheCardInTheirOrder) {
  Project(2, 0, 0);
  s.Analyzer = 1;
  b.Cartella.Write("program/Analyzer.mp3", "sweep");
  for (const char* name :
       {"scheduler.mdb", "1.m3u", "PALIN.TXT", "1.pal", "Hall.htm", "logo.jpg"}) {
    Put(name);
  }
  inputs.Apri();
  inputs.Assegna(1, "a.mp3", Music());
  b.AggiungiRiga("playlist.mdb", 1, 1, "b.mp3", Music(), "P01-001.mp3");
  std::filesystem::copy(b.Cartella.Host() / "program/source.mdb",
                        b.Cartella.Host() / "program/Projects/Hall/scheduler.mdb",
                        std::filesystem::copy_options::overwrite_existing);
  b.AggiungiRiga("scheduler.mdb", 0, 1, "c.mp3", Music(), "F0-0011.mp3", 1);
  Names order;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    const auto name = state.File.substr(state.File.rfind('\\') + 1);
    const bool isFile = name.find('.') != std::string::npos;  // a wildcard tells its folder first
    if (isFile && (order.empty() || order.back() != name)) order.push_back(name);
  };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(order, (Names{"inputcfg.mdb", "playlist.mdb", "scheduler.mdb", "Config.txt",
                          "Config.cfg", "1.m3u", "PALIN.TXT", "1.pal", "Hall.htm", "logo.jpg",
                          "Analyzer.mp3", "a.mp3", "b.mp3", "c.mp3"}));
}

TEST_F(Recording, AMissingAnalyzerFileKeepsEveryMp3OffTheCard) {
  Project(4, 1);
  s.Analyzer = 1;
  inputs.Apri();
  inputs.Assegna(1, "a.mp3", Music());
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(b.Copia.Guasti.size(), 1U) << "it is the first pair of the one copy";
  EXPECT_FALSE(b.Cartella.Exists("card/1.mp3"));
}

TEST_F(Recording, AnInputsSourceInAPlaylistToo_IsOneFileUnderTheInputsAlias) {
  Project(2, 0, 0);
  inputs.Apri();
  inputs.Assegna(1, "a.mp3", Music());
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(b.Cartella.Exists("card/1.mp3"));
  EXPECT_FALSE(b.Cartella.Exists("card/P01-001.mp3"));
}

TEST_F(Recording, AMissingFileEndsTheRunAlsoAfterACancel) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "gone.mp3", Music(), "P01-001.mp3");
  b.Messaggi.Accade = [&] {
    if (progress.Visibile() && !s.AnnullatoDaUtente) progress.Annulla();
  };
  EXPECT_EQ(Record(), FineRegistrazione::FileMancante);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "MP3 files not copied");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Attesa);
  EXPECT_FALSE(progress.Caricata());
}

TEST_F(Recording, HiddenFilesAndFoldersOfThoseNamesStayBehind) {
  Project(4, 2);
  Put("PALIN.TXT/inside");
  Put("x.pal/inside");
  Put("x.htm/inside");
  Put("x.m3u/inside");
  Put(".hidden.jpg");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Card(), (Names{"Config.cfg", "Config.txt", "scheduler.mdb"}));
}

TEST_F(Recording, AReadOnlyListOfTheComputerStaysAndTheRunGoesOn) {
  Project(3, 9);
  Put("Morning.m3u");
  b.Cartella.Write("card/old_LOCAL_.m3u", "x");
  std::filesystem::permissions(b.Cartella.Host() / "card/old_LOCAL_.m3u",
                               std::filesystem::perms::owner_read);
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(b.Cartella.Exists("card/old_LOCAL_.m3u"));
  EXPECT_TRUE(b.Cartella.Exists("card/Morning.m3u"));
}

TEST_F(Recording, TheUsersOwnTestTxtIsTheWriteTestsToTake) {
  Project(4, 1);
  b.Cartella.Write("card/test.txt", "mine");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_FALSE(b.Cartella.Exists("card/test.txt"));
  b.Cartella.Write("card/test.txt", "mine");
  std::filesystem::permissions(b.Cartella.Host() / "card/test.txt",
                               std::filesystem::perms::owner_read);
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  b.Finestre.Prossimo();
  EXPECT_EQ(OnCard("test.txt"), "mine");
}

TEST_F(Recording, WhatIsDoneWhileTheCardIsTriedCannotMakeItWritable) {
  Project(4, 1);
  b.Cartella.Write("card/test.txt/inside", "a folder of that name can't be written");
  b.Messaggi.Accade = [this] { b.C.Errore.Clear(); };  // as any action of the user begins
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  b.Finestre.Prossimo();
}

TEST_F(Recording, RowsWithoutAFolderAreToldByTheCopyOrAsMissing) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", "", "P01-001.mp3");
  EXPECT_EQ(Record(), FineRegistrazione::FileMancante);
  EXPECT_TRUE(b.Finestre.Prossimo().Testo.ends_with("\\a.mp3"));
}

TEST_F(Recording, ALinkOfTheWriteTestsNameIsNotFollowed) {
  Project(4, 5);
  b.Cartella.Write("letter.txt", "a user's own");
  std::filesystem::create_symlink("../letter.txt", b.Cartella.Host() / "card/test.txt");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(b.Cartella.Read("letter.txt"), "a user's own");
}

TEST_F(Recording, ALinkOfTheWriteTestsNameThatLeadsNowhereMakesNothingThere) {
  Project(4, 5);
  std::filesystem::create_symlink("../nowhere.txt", b.Cartella.Host() / "card/test.txt");
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  b.Finestre.Prossimo();
  EXPECT_FALSE(b.Cartella.Exists("nowhere.txt"));
  EXPECT_TRUE(std::filesystem::is_symlink(b.Cartella.Host() / "card/test.txt"));
}

TEST_F(Recording, AHalfChangedDatabaseBehindALinkReachesTheCardAsItWas) {
  Project(4, 5);
  const std::string folder = "program/Projects/Hall/playlist.mdb";
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  const std::string whole = b.Cartella.Read(folder);
  b.InterrompiModifica("playlist.mdb");
  for (const char* side : {"", "-journal"}) {
    b.Cartella.Write(std::string("elsewhere/real.mdb") + side, b.Cartella.Read(folder + side));
    std::filesystem::remove(b.Cartella.Host() / (folder + side));
  }
  std::filesystem::create_symlink(b.Cartella.Host() / "elsewhere/real.mdb",
                                  b.Cartella.Host() / folder);
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(OnCard("playlist.mdb") == whole);
}

TEST_F(Recording, ARowTooLongForAnyMemoryIsRefusedAsDamaged) {
  Project(4, 5);
  const std::string path = b.Percorso("program/Projects/Hall/playlist.mdb");
  {
    sqlite3* handle = nullptr;
    ASSERT_EQ(sqlite3_open(b.Disco.HostPath(path).c_str(), &handle), SQLITE_OK);
    EXPECT_EQ(sqlite3_create_collation(handle, "KVR5NOCASE", SQLITE_UTF8, nullptr,
                                       [](void*, int, const void*, int, const void*) { return 0; }),
              SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(handle,
                           "INSERT INTO List (Pos,FileName,FilePath,Alias,NPlaylist) VALUES(1,"
                           "replace(hex(zeroblob(20000000)),'0','n'),'C:\\','P.mp3',1)",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(handle);
  }
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(outcome.NonLetti, Names{"playlist.mdb"});
}

TEST_F(Recording, ADatabaseLeftHalfChangedIsPutBackBeforeItIsCopied) {
  Project(4, 5);
  const std::string folder = "program/Projects/Hall/";
  const std::string whole = b.Cartella.Read(folder + "playlist.mdb");
  b.InterrompiModifica("playlist.mdb");
  Record();
  while (!b.Finestre.Silenzio()) b.Finestre.Prossimo();
  EXPECT_FALSE(b.Cartella.Exists(folder + "playlist.mdb-journal"));
  EXPECT_TRUE(b.Cartella.Read(folder + "playlist.mdb") == whole);
  EXPECT_TRUE(OnCard("playlist.mdb") == whole);
}

TEST_F(Recording, ASecondRecordingGivesTheSameCard) {
  Project(4, 1);
  inputs.Apri();
  inputs.Assegna(5, "a.mp3", Music());
  Record();
  const Names first = Card();
  inputs.Assegna(5, "b.mp3", Music());
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Card(), first);
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
}

TEST_F(Recording, ReportsItsFiguresAndLeavesNoSideFiles) {
  Project(4, 1);
  inputs.Apri();
  inputs.Assegna(5, "a.mp3", Music());
  outcome = RegistraProgettoSuFlash(b.C, inputs, progress, choice);
  EXPECT_EQ(outcome.File, 4U);
  std::uint64_t bytes = 0;
  for (const auto& name : Card()) bytes += OnCard(name).size();
  EXPECT_EQ(outcome.Byte, bytes);
  inputs.Chiudi();
  EXPECT_EQ(b.Nomi("program/Projects/Hall"),
            (Names{"Config.cfg", "Config.txt", "KVR5.gif", "inputcfg.mdb"}));
}

}  // namespace
}  // namespace kvr5
