#include "playlists/AliasPlaylist.h"
#include "playlists/BancoSalva.h"
#include "projects/ListeDiTesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using SavedPlaylists = test::BancoSalva;

TEST(PlaylistAlias, HasTwoAndThreeDigitsAtLeast) {
  EXPECT_EQ(AliasDelBrano(1, 7), "P01-007.mp3");
  EXPECT_EQ(AliasDelBrano(0, 12), "P00-012.mp3");
  EXPECT_EQ(AliasDelBrano(100, 1), "P100-001.mp3");
}

TEST(PlaylistLines, LoseEveryMp3) {
  EXPECT_EQ(SenzaMp3("P01-007.mp3", true), "P01-007");
  EXPECT_EQ(SenzaMp3("a.mp3.mp3x.mp3", true), "ax");
  EXPECT_EQ(SenzaMp3("SONG.MP3", true), "SONG.MP3");
  EXPECT_EQ(SenzaMp3("SONG.MP3", false), "SONG");
  EXPECT_EQ(SenzaMp3(".mp", false), ".mp");
  EXPECT_EQ(SenzaMp3("", true), "");
}

TEST_F(SavedPlaylists, AFileHasOneNameWhereverItStands) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3");
  Track(1, 2, "b.mp3");
  Track(1, 3, "c.mp3");
  Track(1, 4, "b.mp3");
  Track(2, 1, "C.MP3");
  Brano(2, 2, "c.mp3", b.Percorso("music") + "\\");
  Track(2, 3, "a.mp3", "other");
  Save();
  EXPECT_THAT(Column("Alias"),
              ElementsAre("P01-001.mp3", "P01-002.mp3", "P01-003.mp3", "P01-002.mp3", "P01-003.mp3",
                          "P01-003.mp3", "P02-003.mp3"));
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\nP01-003\r\nP01-002\r\n");
  EXPECT_EQ(Read("2.m3u"), "P01-003\r\nP01-003\r\nP02-003\r\n");
}

TEST_F(SavedPlaylists, AFileWithAnApostropheHasANameForEachTrack) {
  Progetto(4, 5);
  Track(1, 1, "it's.mp3");
  Brano(1, 2, "it's.mp3", b.Percorso("music") + "\\");
  Brano(2, 1, "it's.mp3", b.Percorso("music") + "\\");
  Save();
  EXPECT_THAT(Column("Alias"), ElementsAre("P01-001.mp3", "P01-002.mp3", "P02-001.mp3"));
}

TEST_F(SavedPlaylists, TheTracksAreNumberedBefore) {
  Progetto(4, 5);
  Track(1, 3, "a.mp3");
  Track(1, 9, "b.mp3");
  Save();
  EXPECT_THAT(Column("Pos"), ElementsAre("1", "2"));
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\n");
}

TEST_F(SavedPlaylists, ListsOfOtherNumbersAreWrittenTooAndOldOnesGo) {
  Progetto(4, 5);
  Track(99, 1, "a.mp3");
  for (const char* old : {"5.m3u", "PLAYLIST.M3U", "5_LOCAL_.m3u"}) {
    b.Cartella.Write(std::string("program/Projects/Hall/") + old, "old");
  }
  Save();
  EXPECT_EQ(Read("99.m3u"), "P99-001\r\n");
  EXPECT_EQ(Read("99_LOCAL_.m3u"), (b.Cartella.Host() / "music/a.mp3").string() + "\r\n");
  for (const char* old : {"5.m3u", "PLAYLIST.M3U", "5_LOCAL_.m3u"})
    EXPECT_FALSE(Exists(old)) << old;
}

TEST_F(SavedPlaylists, WithoutATrackAllListsAreGone) {
  Progetto(4, 5);
  b.Cartella.Write("program/Projects/Hall/1.m3u", "old");
  Save();
  EXPECT_FALSE(Exists("1.m3u"));
  EXPECT_FALSE(Exists("Playlist.htm")) << "nor is there a page of nothing";
}

TEST_F(SavedPlaylists, TheOneSetHoldsAllTracks) {
  Progetto(2, 0);
  Track(1, 1, "a.mp3");
  Track(3, 1, "b.mp3");
  b.Cartella.Write("program/Projects/Hall/PLAYLIST.TXT", "old and longer than the new one by far");
  Save();
  EXPECT_EQ(Read("PLAYLIST.TXT"), "P01-001\r\nP03-001\r\n");
  EXPECT_EQ(Read("PLAYLIST.M3U"), Read("PLAYLIST.TXT"));
  EXPECT_EQ(Read("PLAYLIST_LOCAL_.M3U"), (b.Cartella.Host() / "music/a.mp3").string() + "\r\n" +
                                             (b.Cartella.Host() / "music/b.mp3").string() + "\r\n");
  EXPECT_FALSE(Exists("1.m3u"));
}

TEST_F(SavedPlaylists, TheOneSetWithoutATrackIsThreeEmptyFiles) {
  Progetto(2, 0);
  Save();
  for (const char* file : {"PLAYLIST.TXT", "PLAYLIST.M3U", "PLAYLIST_LOCAL_.M3U"}) {
    EXPECT_TRUE(Exists(file)) << file;
    EXPECT_EQ(Read(file), "") << file;
  }
}

TEST_F(SavedPlaylists, AYesBringsTheFilesIntoTheOneSetAndItsLocalListHasBareNames) {
  Progetto(2, 0);
  Track(1, 1, "a.mp3");
  Track(1, 2, "b.mp3", "other");
  Save(Risposta::Si);
  EXPECT_EQ(Read("PLAYLIST_LOCAL_.M3U"), "a.mp3\r\nb.mp3\r\n");
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/a.mp3", "music/a.mp3"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/b.mp3", "other/b.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall()));
}

TEST_F(SavedPlaylists, AYesBringsTheFilesInAndTheLocalListsKeepTheOldPaths) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3");
  Save(Risposta::Si);
  EXPECT_EQ(Read("1_LOCAL_.m3u"), (b.Cartella.Host() / "music/a.mp3").string() + "\r\n");
  EXPECT_TRUE(Exists("a.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall()));
  Save(Risposta::Si);
  EXPECT_EQ(Read("1_LOCAL_.m3u"),
            (b.Cartella.Host() / "program/Projects/Hall/a.mp3").string() + "\r\n");
}

TEST_F(SavedPlaylists, ACancelledCopyRepointsEveryTrackAllTheSame) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3");
  Track(1, 2, "b.mp3");
  b.Copia.SuProgresso = [&](const CopyState& state) {
    b.Copia.AnnullaAlla = state.FileCount == 2 ? b.Copia.Volte : 0;  // not the commit
  };
  Save(Risposta::Si);
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall()));
  EXPECT_FALSE(Exists("b.mp3"));
}

TEST_F(SavedPlaylists, OfNamesCarryThemAndTheFilesKeepTheirOwn) {
  Progetto(3, 9);
  Nome("Morning", 1);
  Nome("Evening", 2);
  Track(1, 1, "SONG.MP3");
  Track(2, 1, "b.mp3");
  Track(7, 1, "nameless.mp3");
  Save();
  EXPECT_EQ(Read("Morning.m3u"), "SONG.MP3\r\n") << "the removal minds the case";
  EXPECT_EQ(Read("Evening.m3u"), "b\r\n");
  EXPECT_THAT(Column("Alias"), ElementsAre("SONG.MP3", "b.mp3", "nameless.mp3"));
  EXPECT_FALSE(Exists("Morning_LOCAL_.m3u"));
  EXPECT_FALSE(Exists("7.m3u"));
}

TEST_F(SavedPlaylists, AListOfNamesThatThePageLacksIsWrittenInUtf8) {
  Progetto(4, 5);
  Track(1, 1, "città.mp3");
  Track(2, 1, "日本.mp3");
  Save();
  EXPECT_EQ(Read("1_LOCAL_.m3u"), (b.Cartella.Host() / "music/citt").string() + "\xE0.mp3\r\n");
  EXPECT_EQ(Read("2_LOCAL_.m3u"),
            "\xEF\xBB\xBF" + (b.Cartella.Host() / "music/日本.mp3").string() + "\r\n");
}

TEST_F(SavedPlaylists, ShowTheirSteps) {
  Progetto(2, 0);
  Track(1, 1, "a.mp3");
  Save(Risposta::Si);
  EXPECT_THAT(
      progress.Seen,
      ElementsAre("Numbering the tracks 0/4", "Numbering the tracks 1/4", "Writing the report 1/4",
                  "Writing the report 2/4", "Naming the files for the card 2/4",
                  "Naming the files for the card 3/4", "Writing the files of the project 0/1",
                  "Writing the files of the project 1/1"));
}

TEST_F(SavedPlaylists, WriteThePage) {
  Progetto(4, 6);
  Track(1, 1, "a<b>.mp3");
  Track(3, 1, "c.mp3");
  Save();
  const std::string page = Read("Playlist.htm");
  const auto at = page.find("<BR><B><FONT COLOR='Blue'>Playlist 1.m3u - Monday</FONT></B><BR>");
  ASSERT_NE(at, std::string::npos) << page;
  EXPECT_LT(at, page.find("a&lt;b&gt;.mp3<BR>"));
  EXPECT_NE(page.find("Playlist 3.m3u - Wednesday"), std::string::npos);
}

TEST_F(SavedPlaylists, LeaveNoWorkingCopy) {
  Progetto(4, 5);
  Track(1, 1, "a.mp3");
  Save();
  EXPECT_FALSE(Exists("tmpPlaylist.mdb"));
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 a.mp3"));
}

}  // namespace
}  // namespace kvr5
