#include <gtest/gtest.h>
#include <sqlite3.h>

#include "BancoRegistrazione.h"
#include "flashcard/AvvisoNonLetti.h"
#include "platform/db/Connection.h"

namespace kvr5 {
namespace {

using test::Recording;
using Names = std::vector<std::string>;

constexpr const char* kCancelTitle = "Project";
constexpr const char* kCancelText = "Not all was completed: please repeat";
constexpr std::uint32_t kOrange = 33023;

TEST_F(Recording, AProjectReadBackFromACardUsesItsAliasCopies) {
  Project(4, 5);
  Put("P01-001.mp3", "copy");
  b.AggiungiRiga("playlist.mdb", 1, 1, "gone.mp3", "C:\\no\\where\\", "P01-001.mp3");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(OnCard("P01-001.mp3"), "copy");
}

TEST_F(Recording, TheSameMp3UnderTwoAliasesIsOneFileOnTheCard) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  b.AggiungiRiga("playlist.mdb", 2, 1, "a.mp3", Music(), "P02-001.mp3");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(b.Cartella.Exists("card/P01-001.mp3"));
  EXPECT_FALSE(b.Cartella.Exists("card/P02-001.mp3"));
}

TEST_F(Recording, TheSameMp3OnTwoInputsStopsTheRunWithoutAnyMp3) {
  Project(4, 1);
  inputs.Apri();
  inputs.Assegna(1, "a.mp3", Music());
  inputs.Assegna(2, "a.mp3", Music());
  EXPECT_EQ(Record(), FineRegistrazione::FileMancante);
  ExpectBox("MP3 files not copied",
            "No MP3 was copied, so the work isn't complete. This file can't be found or, when "
            "recording, two inputs share it (give one of them a copy under another name):\r\na.mp3",
            kOrange);
  EXPECT_EQ(Card(), (Names{"Config.cfg", "Config.txt", "inputcfg.mdb"}));
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Attesa) << "the wait pointer is left on";
  EXPECT_FALSE(progress.Caricata());
}

TEST_F(Recording, AMissingTrackStopsTheRunWithItsPath) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 2, "gone.mp3", Music(), "P01-002.mp3");
  EXPECT_EQ(Record(), FineRegistrazione::FileMancante);
  ExpectBox("MP3 files not copied",
            "No MP3 was copied, so the work isn't complete. This file can't be found or, when "
            "recording, two inputs share it (give one of them a copy under another name):\r\n" +
                (b.Cartella.Host() / "music/gone.mp3").string(),
            kOrange);
  EXPECT_EQ(Card(), (Names{"Config.cfg", "Config.txt", "playlist.mdb"}));
}

TEST_F(Recording, AMissingSpotStopsTheRunWithItsPath) {
  Project(4, 2);
  b.AggiungiRiga("scheduler.mdb", 0, 1, "gone.mp3", Music(), "F0-0011.mp3", 1);
  EXPECT_EQ(Record(), FineRegistrazione::FileMancante);
  EXPECT_TRUE(b.Finestre.Prossimo().Testo.ends_with("music/gone.mp3"));
}

TEST_F(Recording, AMissingInputFileIsToldByTheCopyAndTheRunGoesOn) {
  Project(4, 1);
  inputs.Apri();
  inputs.Assegna(1, "gone.mp3", Music());
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_FALSE(outcome.Intera());
}

TEST_F(Recording, IsWholeWhereEveryCopyWentWellAndEveryListWasRead) {
  Project(4, 1);
  inputs.Apri();
  inputs.Assegna(1, "a.mp3", Music());
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(outcome.Intera());
  outcome.NonLetti = {"playlist.mdb"};
  EXPECT_FALSE(outcome.Intera());
}

TEST_F(Recording, WithoutACardTheDialogIsAskedAndALeftOneStopsInSilence) {
  Project(4, 1);
  s.PercorsoMemoryCard.clear();
  EXPECT_EQ(Record(), FineRegistrazione::SenzaScheda);
  EXPECT_EQ(choice.Times, 1);
  choice.Cancelled = true;
  choice.Card = b.Percorso("card") + "\\";
  EXPECT_EQ(Record(), FineRegistrazione::SenzaScheda);
  EXPECT_TRUE(Card().empty());
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(Recording, ACardChosenInTheDialogIsRecorded) {
  Project(4, 1);
  s.PercorsoMemoryCard.clear();
  choice.Card = b.Percorso("card") + "\\";
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_FALSE(Card().empty());
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(choice.Times, 1) << "it isn't asked again";
}

TEST_F(Recording, ACardThatIsNotThereIsToldBeforeAnythingElse) {
  Project(4, 1);
  for (const auto& card : {b.Percorso("gone") + "\\", std::string("X:\\")}) {
    s.PercorsoMemoryCard = card;
    EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
    ExpectUnwritable();
    EXPECT_FALSE(progress.Caricata());
  }
}

TEST_F(Recording, AFolderInThePlaceOfTheWriteTestIsACardThatCannotBeWrittenAndStays) {
  Project(4, 1);
  b.Cartella.Write("card/test.txt/inside", "");
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Recording not started");
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
  EXPECT_EQ(Card(), Names{"test.txt/inside"});
}

TEST_F(Recording, TheSevenStagesShowTheirTextsInOrder) {
  Project(4, 1);
  std::vector<std::string> texts;
  std::vector<std::int32_t> values;
  b.Messaggi.Accade = [&] {
    if (!progress.Visibile()) return;
    if (texts.empty() || texts.back() != progress.TestoOperazione()) {
      texts.push_back(progress.TestoOperazione());
    }
    if (values.empty() || values.back() != progress.ValoreCorrente) {
      values.push_back(progress.ValoreCorrente);
    }
  };
  Record();
  EXPECT_EQ(texts, (Names{"Writing the files of the project", "Copying the databases",
                          "Copying the configuration", "Copying playlists and schedules",
                          "Copying reports and pictures", "Looking for the MP3 files"}));
  EXPECT_EQ(values, (std::vector<std::int32_t>{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(Recording, ACancelInTheProgressWindowIsLookedAtOnlyAtTheEnd) {
  for (int stage = 1; stage <= 7; ++stage) {
    SCOPED_TRACE(stage);
    const std::string name = "H" + std::to_string(stage);
    b.CreaProgetto(name, 4, 1);
    b.ScriviMp3("music/a.mp3", stage);
    inputs.Apri();
    inputs.Assegna(5, "a.mp3", Music());
    b.Messaggi.Accade = [&] {
      if (progress.Visibile() && progress.ValoreCorrente == stage && !s.AnnullatoDaUtente) {
        progress.Annulla();
      }
    };
    EXPECT_EQ(Record(), FineRegistrazione::Annullata);
    b.Messaggi.Accade = nullptr;
    ExpectBox(kCancelTitle, kCancelText, kOrange);
    EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/a.mp3")) << "the MP3 files came all the same";
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  }
}

TEST_F(Recording, ACancelFromBeforeTheRunIsForgotten) {
  Project(4, 1);
  s.AnnullatoDaUtente = true;
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
}

TEST_F(Recording, ACancelInTheCopyWindowLetsLaterCopiesRun) {
  Project(4, 5);
  Put("1.m3u", "list");
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  b.Copia.SuProgresso = [&](const CopyState& state) {
    b.Copia.AnnullaAlla = state.File.ends_with("Config.txt") ? 1 : 0;
  };
  EXPECT_EQ(Record(), FineRegistrazione::Annullata);
  ExpectBox(kCancelTitle, kCancelText, kOrange);
  EXPECT_EQ(Card(), (Names{"1.m3u", "Config.cfg", "P01-001.mp3", "playlist.mdb"}));
}

TEST_F(Recording, ACancelDuringTheMp3CopyKeepsWhatCame) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 2, "b.mp3", Music(), "P01-002.mp3");
  b.Copia.SuProgresso = [&](const CopyState& state) {
    b.Copia.AnnullaAlla = state.File.ends_with("b.mp3") ? 1 : 0;
  };
  EXPECT_EQ(Record(), FineRegistrazione::Annullata);
  b.Finestre.Prossimo();
  EXPECT_EQ(Card(), (Names{"Config.cfg", "Config.txt", "P01-001.mp3", "playlist.mdb"}));
}

TEST_F(Recording, AMissingDatabaseIsSkippedWithItsPass) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{1, 2, 5}) {
    SCOPED_TRACE(mode);
    b.CreaProgetto("M" + std::to_string(mode), 4, mode);
    for (const char* name : {"inputcfg.mdb", "playlist.mdb", "scheduler.mdb"}) {
      std::filesystem::remove(b.Cartella.Host() / "program/Projects" /
                              ("M" + std::to_string(mode)) / name);
    }
    EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
    EXPECT_EQ(Card(), (Names{"Config.cfg", "Config.txt"}));
  }
}

TEST_F(Recording, DamagedDatabasesAreCopiedAndTheirPassesSkipped) {
  Project(4, 1);
  for (const auto& bytes :
       {std::string(), std::string(8192, '\0'), std::string("SQLite format 3")}) {
    Put("inputcfg.mdb", bytes);
    Put("playlist.mdb", bytes);
    Put("scheduler.mdb", bytes);
    EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
    EXPECT_EQ(outcome.NonLetti, (Names{"inputcfg.mdb", "playlist.mdb", "Scheduler.mdb"}));
    EXPECT_TRUE(OnCard("inputcfg.mdb") == bytes);
    EXPECT_TRUE(b.Cartella.Read("program/Projects/Hall/inputcfg.mdb") == bytes);
  }
}

TEST_F(Recording, MissingDatabasesAndThoseOfNoScreenAreNotUnread) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  Put("inputcfg.mdb", b.Cartella.Read("program/source.mdb"));
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(outcome.NonLetti.empty()) << "this mode has no inputs to read";
}

TEST_F(Recording, ChangesThatLieInALogBesideADatabaseReachTheCard) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  const std::string whole = b.Cartella.Read("program/Projects/Hall/playlist.mdb");
  const std::string folder = "program/Projects/Hall/";
  {
    Connection other(b.Disco);  // another program that writes ahead and is ended
    ASSERT_FALSE(other.Open(b.Percorso(folder + "playlist.mdb")));
    ASSERT_EQ(
        sqlite3_exec(other.Handle(), "PRAGMA journal_mode=WAL; UPDATE List SET Alias='P01-009.mp3'",
                     nullptr, nullptr, nullptr),
        SQLITE_OK);
    for (const char* side : {"", "-wal"}) {
      b.Cartella.Write(std::string("left") + side, b.Cartella.Read(folder + "playlist.mdb" + side));
    }
  }
  for (const char* side : {"", "-wal"}) {
    b.Cartella.Write(folder + "playlist.mdb" + side, b.Cartella.Read(std::string("left") + side));
  }
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(b.Cartella.Exists("card/P01-009.mp3"));
  EXPECT_NE(OnCard("playlist.mdb").find("P01-009.mp3"), std::string::npos);
  EXPECT_TRUE(OnCard("playlist.mdb") == b.Cartella.Read(folder + "playlist.mdb"));
}

TEST_F(Recording, ADatabaseThatAnotherProgramLeftWritingAheadReachesTheCardAsOneFile) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
  const std::string path = b.Percorso("program/Projects/Hall/playlist.mdb");
  {
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(b.Disco.HostPath(path).c_str(), &other), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(other, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_close(other), SQLITE_OK);
  }
  constexpr std::size_t kWriteVersion = 18;
  ASSERT_EQ(b.Cartella.Read("program/Projects/Hall/playlist.mdb").substr(kWriteVersion, 2), "\2\2");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(OnCard("playlist.mdb").substr(kWriteVersion, 2), "\1\1");
}

TEST_F(Recording, ARowThatCannotBeReadStopsTheRunNamingItsDatabase) {
  Project(2, 0);
  inputs.Apri();
  inputs.Assegna(1, "a.mp3", Music());
  inputs.Chiudi();
  const std::string name = "program/Projects/Hall/inputcfg.mdb";
  {
    Connection connection(b.Disco);
    ASSERT_FALSE(connection.Open(b.Percorso(name)));
    ASSERT_FALSE(
        connection.Execute("INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],"
                           "[IDSched]) VALUES(2,'b.mp3','C:\\m\\','" +
                           std::string(20'000, 'x') + "',1,0)"));
  }
  // The long name lies on pages of its own; the way from one to the next is broken.
  std::string bytes = b.Cartella.Read(name);
  const std::size_t page = bytes.find(std::string(4092, 'x')) & ~std::size_t{4095};
  bytes.replace(page, 4, "\xFF\xFF\xFF\xFF");
  b.Cartella.Write(name, bytes);
  EXPECT_EQ(Record(), FineRegistrazione::FileMancante);
  ExpectBox(
      "MP3 files not copied",
      "No MP3 was copied, so the card isn't complete. This database can't be read to its end. "
      "Close other programs that use this project, then record again:\r\n" +
          b.Disco.HostPath(b.Percorso(name)),
      kOrange);
}

TEST_F(Recording, ACardThatIsChosenMeanwhileIsTheNextOnes) {
  Project(4, 1);
  inputs.Apri();
  inputs.Assegna(5, "a.mp3", Music());
  std::filesystem::create_directory(b.Cartella.Host() / "other");
  const std::string first = b.C.Stato.PercorsoMemoryCard;
  int turn = 0;
  b.Messaggi.Accade = [&] {
    if (++turn == 3) b.C.Stato.PercorsoMemoryCard = b.Percorso("other");
  };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_GE(turn, 3);
  EXPECT_EQ(Card(), (Names{"5.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
  EXPECT_TRUE(std::filesystem::is_empty(b.Cartella.Host() / "other"));
  b.Messaggi.Accade = {};
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(b.Cartella.Exists("other/5.mp3"));
}

TEST_F(Recording, ACardThatTheHostHasNoMoreGetsNothingThoughItsFolderIsThere) {
  Project(4, 1);
  choice.Gone = [] { return true; };
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Recording not started");
  EXPECT_TRUE(Card().empty());
  choice.Gone = [] { return false; };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(b.Cartella.Exists("card/Config.txt"));
}

TEST_F(Recording, WhatItCouldNotReadIsNamedWhereItEndedWell) {
  AvvisaNonLetti(b.C, {FineRegistrazione::Compiuta, 3, 100, {}});
  const Names unread{"inputcfg.mdb", "playlist.mdb"};
  for (const auto end : {FineRegistrazione::Annullata, FineRegistrazione::FileMancante,
                         FineRegistrazione::NonScrivibile, FineRegistrazione::SenzaScheda}) {
    AvvisaNonLetti(b.C, {end, 3, 100, unread});
  }
  EXPECT_TRUE(b.Finestre.Silenzio()) << "these say by themselves that the card isn't whole";
  AvvisaNonLetti(b.C, {FineRegistrazione::Compiuta, 3, 100, unread});
  const auto& box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Not everything is on the card");
  EXPECT_TRUE(box.Testo.starts_with("These could not be read: inputcfg.mdb, playlist.mdb. "))
      << box.Testo;
  EXPECT_TRUE(b.Finestre.Silenzio());
}

}  // namespace
}  // namespace kvr5
