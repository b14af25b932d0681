#include "core/Lingua.h"
#include "playlists/BancoPlaylist.h"
#include "playlists/NomiDoppi.h"

namespace kvr5 {
namespace {

using testing::HasSubstr;

class NamesOfSeveralFiles : public test::BancoPlaylist {
 protected:
  void SetUp() override { Progetto(4, 5); }
  NomiDoppi Found() {
    editor.Carica();
    return NomiDoppi(editor);
  }
};

TEST_F(NamesOfSeveralFiles, AreThoseFromDifferentFoldersInWhateverLists) {
  Brano(1, 1, "song.mp3", "C:\\a\\");
  Brano(1, 2, "gong.mp3", "C:\\a\\");
  Brano(3, 1, "SONG.mp3", "C:\\b\\");
  const NomiDoppi twice = Found();
  EXPECT_TRUE(twice.Contiene("song.mp3"));
  EXPECT_TRUE(twice.Contiene("Song.MP3"));
  EXPECT_FALSE(twice.Contiene("gong.mp3"));
  EXPECT_THAT(twice.Parole(b.C), HasSubstr("called SONG.mp3"));
}

TEST_F(NamesOfSeveralFiles, AreNotThoseOfOneFileInSeveralRows) {
  Brano(1, 1, "song.mp3", "C:\\a\\");
  Brano(1, 2, "Song.mp3", "C:\\A\\");
  Brano(2, 1, "song.mp3", "c:\\a");
  const NomiDoppi twice = Found();
  EXPECT_FALSE(twice.Contiene("song.mp3"));
  EXPECT_EQ(twice.Parole(b.C), "");
}

TEST_F(NamesOfSeveralFiles, OfNamedListsMeetOnTheCardWhateverTheAnswer) {
  Progetto(3, 9);
  Nome("Noon", 1);
  Brano(1, 1, "song.mp3", "C:\\a\\");
  Brano(1, 2, "song.mp3", "C:\\b\\");
  const std::string named = Found().Parole(b.C);
  EXPECT_THAT(named, HasSubstr("song.mp3"));
  EXPECT_THAT(named, HasSubstr("the card holds only one"));
}

TEST_F(NamesOfSeveralFiles, OfAnUnreadableDatabaseAreNone) {
  EXPECT_EQ(NomiDoppi(editor).Parole(b.C), "") << "nothing is open";
}

}  // namespace
}  // namespace kvr5
