#include <gtest/gtest.h>

#include "BancoRegistrazione.h"

namespace kvr5 {
namespace {

using test::Recording;
using Names = std::vector<std::string>;

constexpr const char* kCancelTitle = "Project";
constexpr const char* kCancelText = "Not all was completed: please repeat";
constexpr std::uint32_t kOrange = 33023;

TEST_F(Recording, AnInputsProjectReachesTheCardByteForByteAndInSilence) {
  Project(4, 1);
  inputs.Apri();
  inputs.Assegna(5, "a.mp3", Music());
  inputs.Assegna(128, "b.mp3", Music());
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Card(), (Names{"128.mp3", "5.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/a.mp3"));
  EXPECT_TRUE(b.Cartella.Same("card/128.mp3", "music/b.mp3"));
  for (const char* name : {"Config.cfg", "Config.txt", "inputcfg.mdb"}) {
    EXPECT_TRUE(
        b.Cartella.Same(std::string("card/") + name, std::string("program/Projects/Hall/") + name));
  }
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  EXPECT_FALSE(progress.Caricata());
  EXPECT_TRUE(inputs.Aperta()) << "the hub's recordset stands again";
}

TEST_F(Recording, APlaylistProjectReachesTheCardUnderItsAliases) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{4, 5, 6, 7, 8, 9}) {
    const std::string name = "P" + std::to_string(mode);
    b.CreaProgetto(name, 3, mode);
    b.ScriviMp3("music/a.mp3", 1);
    b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", Music(), "P01-001.mp3");
    EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
    EXPECT_EQ(Card(), (Names{"Config.cfg", "Config.txt", "P01-001.mp3", "playlist.mdb"}));
    std::filesystem::remove_all(b.Cartella.Host() / "card");
    std::filesystem::create_directories(b.Cartella.Host() / "card");
  }
}

TEST_F(Recording, AScheduleReachesTheCardUnderItsAliases) {
  Project(4, 2);
  b.AggiungiRiga("scheduler.mdb", 0, 1, "a.mp3", Music(), "F0-0011.mp3", 1);
  Put("PALIN.TXT", "00:30\tF0-0011\t\r\n");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Card(),
            (Names{"Config.cfg", "Config.txt", "F0-0011.mp3", "PALIN.TXT", "scheduler.mdb"}));
}

TEST_F(Recording, AProjectWithTwoDatabasesRunsBothPasses) {
  Project(2, 0, 0);
  inputs.Apri();
  inputs.Assegna(1, "a.mp3", Music());
  b.AggiungiRiga("playlist.mdb", 1, 1, "b.mp3", Music(), "P01-001.mp3");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Card(), (Names{"1.mp3", "Config.cfg", "Config.txt", "P01-001.mp3", "inputcfg.mdb",
                           "playlist.mdb"}));
}

TEST_F(Recording, TheFirstModelRecordsItsInputs) {
  Project(1, 0);
  inputs.Apri();
  inputs.Assegna(3, "c.mp3", Music());
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Card(), (Names{"3.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
}

TEST_F(Recording, TheProjectsOwnFilesGoAsTheLayoutTells) {
  Project(4, 5);
  for (const char* name : {"PLAYLIST.TXT", "1.m3u", "PLAYLIST.M3U", "1_LOCAL_.m3u", "palin.txt",
                           "1.pal", "7.PAL", "Hall.htm", "Playlist.HTM", "logo_menu.jpg",
                           "note.doc", "KVR5.gif", "old.mp3", "tmpPlaylist.mdb", "sub/deep.m3u"}) {
    Put(name, name);
  }
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Card(), (Names{"1.m3u", "1.pal", "1_LOCAL_.m3u", "7.PAL", "Config.cfg", "Config.txt",
                           "Hall.htm", "PALIN.TXT", "PLAYLIST.M3U", "Playlist.HTM", "logo_menu.jpg",
                           "playlist.mdb"}));
  EXPECT_EQ(OnCard("PALIN.TXT"), "palin.txt");
}

TEST_F(Recording, InMode9TheListsForTheComputerLeaveTheCardAgain) {
  Project(3, 9);
  Put("Morning.m3u");
  Put("PLAYLIST_LOCAL_.M3U");
  b.Cartella.Write("card/old_local_.m3u", "from an earlier recording");
  bool seen = false;
  b.Messaggi.Accade = [&] { seen = seen || b.Cartella.Exists("card/PLAYLIST_LOCAL_.M3U"); };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(seen) << "it is there for a moment";
  EXPECT_EQ(Card(), (Names{"Config.cfg", "Config.txt", "Morning.m3u", "playlist.mdb"}));
  EXPECT_TRUE(b.Cartella.Exists("program/Projects/Hall/PLAYLIST_LOCAL_.M3U"));
}

TEST_F(Recording, InOtherModesTheListsForTheComputerStay) {
  Project(4, 5);
  Put("1_LOCAL_.m3u");
  Record();
  EXPECT_TRUE(b.Cartella.Exists("card/1_LOCAL_.m3u"));
}

TEST_F(Recording, TheCardIsNotClearedAndFilesOfTheSameNameAreOverwritten) {
  Project(4, 1);
  b.Cartella.Write("card/7.mp3", "stray");
  b.Cartella.Write("card/CONFIG.TXT", "old");
  Record();
  EXPECT_EQ(OnCard("7.mp3"), "stray");
  EXPECT_EQ(Card(), (Names{"7.mp3", "CONFIG.TXT", "Config.cfg", "inputcfg.mdb"}))
      << "an overwritten file keeps its spelling";
  EXPECT_TRUE(b.Cartella.Same("card/CONFIG.TXT", "program/Projects/Hall/Config.txt"));
}

TEST_F(Recording, TheAnalyzerFileComesFirstWhenTheOptionIsOn) {
  Project(4, 1);
  b.Cartella.Write("program/Analyzer.mp3", "sweep");
  s.Analyzer = 1;
  std::string first;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    if (first.empty() && state.File.ends_with(".mp3")) first = state.File;
  };
  inputs.Apri();
  inputs.Assegna(1, "a.mp3", Music());
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(OnCard("Analyzer.mp3"), "sweep");
  EXPECT_TRUE(first.ends_with("\\Analyzer.mp3"));
}

TEST_F(Recording, AMissingAnalyzerFileIsToldByTheCopyAlone) {
  Project(4, 1);
  s.Analyzer = 1;
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Copia.Guasti[0].Source);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

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
            "No MP3 was copied. This file can't be found, or a second input uses it too (give "
            "that one a copy under another name):\r\na.mp3",
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
            "No MP3 was copied. This file can't be found, or a second input uses it too (give "
            "that one a copy under another name):\r\n" +
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
    ExpectBox("Recording not started",
              "Nothing was copied: this card can't be written. Open its lock, put it back in, "
              "choose it again.",
              0);
    EXPECT_FALSE(progress.Caricata());
  }
}

TEST_F(Recording, AProtectedCardIsToldAndKeepsNoStray) {
  Project(4, 1);
  b.Cartella.Write("card/test.txt/inside", "");  // a folder bears the name: the write test fails
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  b.Finestre.Prossimo();
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
    EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
    EXPECT_TRUE(OnCard("inputcfg.mdb") == bytes);
    EXPECT_TRUE(b.Cartella.Read("program/Projects/Hall/inputcfg.mdb") == bytes);
  }
}

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

TEST_F(Recording, RowsWithoutAFolderAreToldByTheCopyOrAsMissing) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", "", "P01-001.mp3");
  EXPECT_EQ(Record(), FineRegistrazione::FileMancante);
  EXPECT_TRUE(b.Finestre.Prossimo().Testo.ends_with("\\a.mp3"));
}

TEST_F(Recording, ADatabaseLeftHalfChangedIsPutBackBeforeItIsCopied) {
  Project(4, 5);
  const std::string folder = "program/Projects/Hall/";
  const std::string whole = b.Cartella.Read(folder + "playlist.mdb");
  // A transaction that a crash cut off: its journal holds the old pages.
  Connection crashed(b.C.Files);
  ASSERT_FALSE(crashed.Open(b.Percorso("program/Projects/Hall/playlist.mdb")));
  std::string journal;
  std::string half;
  {
    const Transaction run(crashed);
    for (int i = 0; i < 2000; ++i) {  // more than is held in memory
      Ignora(
          crashed.Execute("INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],"
                          "[IDSched]) VALUES(1,'" +
                          std::string(2000, 'n') + "','C:\\','P.mp3',1,0)"));
    }
    half = b.Cartella.Read(folder + "playlist.mdb");
    journal = b.Cartella.Read(folder + "playlist.mdb-journal");
  }
  crashed.Close();
  ASSERT_TRUE(half != whole) << "nothing of the run had reached the disk";
  b.Cartella.Write(folder + "playlist.mdb", half);
  b.Cartella.Write(folder + "playlist.mdb-journal", journal);
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
  const auto outcome = RegistraProgettoSuFlash(b.C, inputs, progress, choice);
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
