#include <random>

#include "BancoVerifica.h"
#include "flashcard/ContenutoScheda.h"
#include "platform/FileOps.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using namespace test;  // the models
using Names = std::vector<std::string>;

class Contenuto : public test::Verifica {
 protected:
  /// What a recording would copy, in its order, as "name" or "name?" where no file can be had.
  Names Expected() {
    contents = ContenutoDellaScheda(b.C);
    Names names;
    for (const FileDiScheda& file : contents.File) {
      names.push_back(file.Nome + (file.Sorgente.empty() ? "?" : ""));
    }
    return names;
  }
  const FileDiScheda& At(const std::string& name) const {
    const auto found = std::ranges::find(contents.File, name, &FileDiScheda::Nome);
    if (found != contents.File.end()) return *found;
    ADD_FAILURE() << name << " isn't among them";
    static const FileDiScheda kNone;
    return kNone;
  }
  void Track(int list, int pos, const std::string& file, const std::string& alias) {
    b.AggiungiRiga("playlist.mdb", list, pos, file, Music(), alias);
  }
  /// A project of playlists without a row.
  void Empty(const Modello& model = kPlaylists) {
    b.CreaProgetto("Hall", model.Type, model.Mode, model.Config);
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
      b.ScriviMp3(std::string("music/") + name, name[0]);
    }
  }
  void Write(const std::string& name) { b.Cartella.Write("program/Projects/Hall/" + name, name); }

  ContenutoScheda contents;  ///< of the last Expected
};

TEST_F(Contenuto, TheOrderIsThatOfARecording) {
  Empty(kBoth);
  for (const char* name : {"logo.jpg", "B.htm", "a.htm", "2.pal", "1.PAL", "palin.txt", "b.m3u",
                           "A.m3u", "PLAYLIST.TXT", "note.doc", "x.gif", "old.mp3", "x.html",
                           "tmpPlaylist.mdb", "sub/deep.m3u", ".hidden.m3u"}) {
    Write(name);
  }
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
  Track(1, 1, "b.mp3", "P01-001.mp3");
  b.Cartella.Write("program/Projects/Hall/scheduler.mdb", b.Cartella.Read("program/source.mdb"));
  b.AggiungiRiga("scheduler.mdb", 0, 1, "c.mp3", Music(), "F0-0011.mp3", 1);
  s.Analyzer = 1;
  EXPECT_EQ(Expected(),
            (Names{"inputcfg.mdb", "playlist.mdb", "scheduler.mdb", "Config.txt", "Config.cfg",
                   "A.m3u", "b.m3u", "PALIN.TXT", "1.PAL", "2.pal", "a.htm", "B.htm", "logo.jpg",
                   "Analyzer.mp3", "5.mp3", "P01-001.mp3", "F0-0011.mp3"}));
  EXPECT_TRUE(contents.NonLetti.empty());
  EXPECT_EQ(At("Config.txt").Regola, RegolaMp3::Nessuna);
  EXPECT_EQ(At("Analyzer.mp3").Regola, RegolaMp3::Brani);
  EXPECT_EQ(At("5.mp3").Regola, RegolaMp3::Ingressi);
  EXPECT_EQ(At("P01-001.mp3").Regola, RegolaMp3::Brani);
  EXPECT_EQ(At("F0-0011.mp3").Regola, RegolaMp3::Brani);
  EXPECT_EQ(At("5.mp3").Sorgente, Music() + "a.mp3");
  EXPECT_EQ(At("Analyzer.mp3").Sorgente, b.Percorso("program/Analyzer.mp3"));
}

TEST_F(Contenuto, RowsComeByListAndPlaceHoweverTheyWereAdded) {
  Empty();
  Track(2, 1, "a.mp3", "P02-001.mp3");
  Track(1, 2, "b.mp3", "P01-002.mp3");
  Track(1, 1, "c.mp3", "P01-001.mp3");
  EXPECT_EQ(Expected(), (Names{"playlist.mdb", "Config.txt", "Config.cfg", "P01-001.mp3",
                               "P01-002.mp3", "P02-001.mp3"}));
}

TEST_F(Contenuto, TheProjectsOwnCopyUnderTheAliasComesBeforeTheSource) {
  Empty();
  Write("P01-001.mp3");
  Track(1, 1, "gone.mp3", "P01-001.mp3");
  Expected();
  EXPECT_EQ(At("P01-001.mp3").Sorgente, b.Percorso("program/Projects/Hall/P01-001.mp3"));
}

TEST_F(Contenuto, ASecondAliasOfOneSourceIsLeftOut) {
  Empty();
  Track(1, 1, "a.mp3", "P01-001.mp3");
  Track(2, 1, "A.MP3", "P02-001.mp3");
  EXPECT_EQ(Expected().back(), "P01-001.mp3");
}

TEST_F(Contenuto, ARowWithoutAnAliasIsPassedOver) {
  Empty();
  Track(1, 1, "gone.mp3", "");
  Track(1, 2, "a.mp3", "P01-002.mp3");
  EXPECT_EQ(Expected().back(), "P01-002.mp3");
  EXPECT_EQ(contents.File.size(), 4U);
}

TEST_F(Contenuto, ARowWhoseFileIsGoneStandsThereWithoutASourceAndTheOthersFollow) {
  Empty();
  Track(1, 1, "gone.mp3", "P01-001.mp3");
  Track(1, 2, "a.mp3", "P01-002.mp3");
  EXPECT_EQ(Expected(),
            (Names{"playlist.mdb", "Config.txt", "Config.cfg", "P01-001.mp3?", "P01-002.mp3"}));
}

TEST_F(Contenuto, TheSecondInputOfOneSourceStopsARecordingAndHasNoSourceHere) {
  Empty(kInputs);
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "a.mp3", Music(), "1.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 2, "a.mp3", Music(), "2.mp3");
  EXPECT_EQ(Expected(), (Names{"inputcfg.mdb", "Config.txt", "Config.cfg", "1.mp3", "2.mp3?"}));
}

TEST_F(Contenuto, AnAliasThatIsNoPlainNameIsKnownByItsFile) {
  Empty();
  Track(1, 1, "a.mp3", "..\\out.mp3");
  Track(1, 2, "b.mp3", "x|y.mp3");
  EXPECT_EQ(Expected(), (Names{"playlist.mdb", "Config.txt", "Config.cfg", "a.mp3?", "b.mp3?"}));
}

TEST_F(Contenuto, OfTwoFilesOfOneNameTheLaterOneCountsAtTheFirstOnesPlace) {
  Empty();
  Track(1, 1, "a.mp3", "P01-001.mp3");
  Track(1, 2, "b.mp3", "P01-002.mp3");
  Track(1, 3, "c.mp3", "p01-001.MP3");
  Expected();
  EXPECT_EQ(contents.File.size(), 5U);
  EXPECT_EQ(At("p01-001.MP3").Sorgente, Music() + "c.mp3");
}

TEST_F(Contenuto, TheListsForTheComputerStayInTheProjectInMode9Alone) {
  for (const Modello& model : {kNamed, kPlaylists}) {
    fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    Empty(model);
    Write("Morning.m3u");
    Write("morning_local_.M3U");
    EXPECT_EQ(Expected().size(), model.Mode == 9 ? 4U : 5U);
  }
}

TEST_F(Contenuto, AModelWithoutInputsHasNoneThoughTheDatabaseIsThere) {
  Empty(kPlaylists);
  b.Cartella.Write("program/Projects/Hall/inputcfg.mdb", b.Cartella.Read("program/source.mdb"));
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
  EXPECT_EQ(Expected(), (Names{"inputcfg.mdb", "playlist.mdb", "Config.txt", "Config.cfg"}));
}

TEST_F(Contenuto, ADatabaseThatIsThereButCannotBeReadIsNamedAndAMissingOneIsNot) {
  Empty(kBoth);
  Write("playlist.mdb");
  fs::remove(b.Cartella.Host() / "program/Projects/Hall/inputcfg.mdb");
  EXPECT_EQ(Expected(), (Names{"playlist.mdb", "Config.txt", "Config.cfg"}));
  EXPECT_EQ(contents.NonLetti, Names{"playlist.mdb"});
}

TEST_F(Contenuto, LookingChangesNothingAndLeavesNothingBehind) {
  Recorded(kBoth);
  const Albero before = AlberoDi(b.Cartella.Host(), true);
  Expected();
  EXPECT_EQ(Cambiati(before, AlberoDi(b.Cartella.Host(), true)), Names{});
  EXPECT_FALSE(b.C.Errore);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Contenuto, WhatItTellsIsWhatARecordingOfAnyRowsPutsOnTheCard) {
  std::mt19937 dice(99);
  const auto pick = [&dice](const Names& from) { return from[dice() % from.size()]; };
  const Names files{"a.mp3", "b.mp3", "c.mp3", "A.MP3", "c.mp3"};
  for (int round = 0; round < 40; ++round) {
    SCOPED_TRACE(round);
    fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    EmptyCard();
    Empty();
    for (const char* name : {"1.m3u", "1_LOCAL_.m3u", "Hall.htm", "P01-002.mp3", "P01-004.mp3"}) {
      if (dice() % 2 == 0) Write(name);
    }
    for (auto rows = dice() % 7; rows > 0; --rows) {
      const int pos = static_cast<int>(dice() % 5);
      Track(static_cast<int>(dice() % 2), pos, pick(files),
            pick({"P01-001.mp3", "P01-002.mp3", "p01-002.MP3", "P01-003.mp3", "P01-004.mp3", ""}));
    }
    Expected();
    ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
    ASSERT_EQ(b.Nomi("card").size(), contents.File.size());
    for (const FileDiScheda& file : contents.File) {
      const auto there = ReadWhole(b.C.Files, b.Percorso("card") + "\\" + file.Nome);
      const auto source = ReadWhole(b.C.Files, file.Sorgente);
      ASSERT_TRUE(there && source) << file.Nome;
      EXPECT_TRUE(there.Value() == source.Value()) << file.Nome;
    }
  }
}

}  // namespace
}  // namespace kvr5
