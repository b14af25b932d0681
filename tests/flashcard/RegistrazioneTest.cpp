#include <gtest/gtest.h>

#include "BancoRegistrazione.h"

namespace kvr5 {
namespace {

using test::Recording;
using Names = std::vector<std::string>;

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

}  // namespace
}  // namespace kvr5
