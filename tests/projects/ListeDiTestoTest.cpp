#include <gtest/gtest.h>

#include <filesystem>

#include "core/ParoleCopia.h"
#include "projects/ListeDiTesto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

class TextLists : public testing::Test {
 protected:
  void SetUp() override { b.CreaProgetto("Hall", 4, 5); }
  std::string Read(const std::string& name) const {
    return b.Cartella.Read("program/Projects/Hall/" + name);
  }
  bool Exists(const std::string& name) const {
    return b.Cartella.Exists("program/Projects/Hall/" + name);
  }
  std::string Musica() const { return b.Percorso("music"); }

  test::Banco b;
  ListeDiTesto lists{b.C};
};

TEST_F(TextLists, HaveEachPathAsPeopleReadIt) {
  for (const char* name : {"Music/Song.mp3", "Music/b.mp3", "Music/sub/c.mp3", "other/Song.mp3"}) {
    b.ScriviMp3(name);
  }
  const std::string music = b.Percorso("Music") + "\\";
  const std::vector<std::string> paths{music + "gone.mp3",
                                       music + "Song.mp3",
                                       music + "b.mp3",
                                       music + "SONG.MP3",
                                       music + "Song.mp3",
                                       b.Percorso("MUSIC") + "\\b.mp3",
                                       b.Percorso("MUSIC") + "\\Song.mp3",
                                       b.Percorso("MUSIC") + "\\song.mp3",
                                       music + "sub\\c.mp3",
                                       music + "SUB\\..\\b.mp3",
                                       music + "\\b.mp3",
                                       b.Percorso("other") + "\\Song.mp3",
                                       b.Percorso("nowhere") + "\\a.mp3",
                                       "Q:\\a.mp3",
                                       "C:\\a.mp3",
                                       "a.mp3",
                                       "sub\\c.mp3",
                                       "..\\c.mp3",
                                       "\\c.mp3"};
  std::string expected;
  for (int twice = 0; twice < 2; ++twice) {
    for (const std::string& each : paths) {
      lists.AggiungiPercorso("l.m3u", each);
      expected += PercorsoPerPersone(b.C, each) + "\r\n";
    }
  }
  lists.Scrivi();
  EXPECT_EQ(Read("l.m3u"), expected);
  EXPECT_TRUE(expected.starts_with((b.Cartella.Host() / "Music/gone.mp3").string()));
}

TEST_F(TextLists, OfOneNameInTwoSpellingsAreOne) {
  lists.Aggiungi("Morning.m3u", "a");
  lists.Aggiungi("Evening.m3u", "b");
  lists.Aggiungi("MORNING.M3U", "c");
  lists.Scrivi();
  EXPECT_EQ(Read("Morning.m3u"), "a\r\nc\r\n");
  EXPECT_EQ(Read("Evening.m3u"), "b\r\n");
  EXPECT_FALSE(Exists("MORNING.M3U"));
}

TEST_F(TextLists, ThatWereOnlyOpenedAreEmptyFiles) {
  lists.Apri("PLAYLIST.TXT");
  EXPECT_FALSE(Exists("PLAYLIST.TXT")) << "not before the end";
  lists.Scrivi();
  EXPECT_EQ(Read("PLAYLIST.TXT"), "");
}

TEST_F(TextLists, TakeThePlaceOfOldOnes) {
  b.Cartella.Write("program/Projects/Hall/1.m3u", "old, and longer than the new one\r\n");
  lists.Aggiungi("1.m3u", "P01-001");
  lists.Scrivi();
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\n");
}

TEST_F(TextLists, OfANameThatNoCardHoldsAreAPendingErrorAndTheOthersAreWritten) {
  for (const char* name : {"a*b.m3u", "a/b.m3u", "a?.m3u", "CON.m3u", "x.m3u.", "1.m3u"}) {
    lists.Aggiungi(name, "P01-001");
  }
  lists.Scrivi();
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::BadFileName);
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\n");
}

TEST_F(TextLists, ForThePlayerAreOfThePageAndForTheComputerOfUtf8WhereTheyMustBe) {
  lists.Aggiungi("player.m3u", "città 日本");
  lists.AggiungiPercorso("page_LOCAL_.m3u", "città.mp3");
  lists.AggiungiPercorso("wide_LOCAL_.m3u", "città.mp3");
  lists.AggiungiPercorso("wide_LOCAL_.m3u", "日本.mp3");
  lists.Scrivi();
  EXPECT_EQ(Read("player.m3u"), "citt\xE0 ??\r\n");
  EXPECT_EQ(Read("page_LOCAL_.m3u"), "citt\xE0.mp3\r\n");
  EXPECT_EQ(Read("wide_LOCAL_.m3u"),
            "\xEF\xBB\xBF"
            "città.mp3\r\n日本.mp3\r\n");
}

TEST_F(TextLists, SpeakOfTheDiskAsItWasWhenTheyWereGathered) {
  b.ScriviMp3("music/a.mp3");
  b.ScriviMp3("music/b.mp3");
  lists.AggiungiPercorso("l.m3u", Musica() + "\\a.mp3");
  std::filesystem::remove_all(b.Cartella.Host() / "music");
  lists.AggiungiPercorso("l.m3u", Musica() + "\\b.mp3");
  lists.Scrivi();
  const std::string folder = (b.Cartella.Host() / "music/").string();
  EXPECT_EQ(Read("l.m3u"), folder + "a.mp3\r\n" + folder + "b.mp3\r\n");
}

}  // namespace
}  // namespace kvr5
