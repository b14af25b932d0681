#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/PannelloFile.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FilePane : public testing::Test {
 protected:
  void Files(const std::vector<std::string>& names) const {
    for (const std::string& name : names) b.ScriviMp3("music/" + name);
  }
  std::string Musica() const { return b.Percorso("music"); }

  test::Banco b;
};

TEST_F(FilePane, HasTwoBeforeTenAndDoesntMindTheCase) {
  Files({"10.mp3", "2.mp3", "1.mp3", "Track 11.mp3", "track 9.mp3", "b.MP3", "A.mp3", "à.mp3"});
  EXPECT_THAT(NomiDelPannello(b.C.Files, Musica()),
              ElementsAre("1.mp3", "2.mp3", "10.mp3", "A.mp3", "b.MP3", "track 9.mp3",
                          "Track 11.mp3", "à.mp3"));
}

TEST_F(FilePane, HoldsFilesOfMusicOnly) {
  Files({"a.mp3", ".hidden.mp3", "sub/x.mp3", "folder.mp3/x.mp3"});
  b.Cartella.Write("music/a.wav", "");
  b.Cartella.Write("music/mp3", "");
  b.Cartella.Write("music/a.mp3.txt", "");
  EXPECT_THAT(NomiDelPannello(b.C.Files, Musica()), ElementsAre("a.mp3"));
}

TEST_F(FilePane, ShowsNamesThatCantBeTakenAndAddAllPassesThemOver) {
  Files({"a.mp3", "b|c.mp3", "d\xFF.mp3"});
  EXPECT_THAT(FileDelPannello(b.C.Files, Musica()),
              ElementsAre(FilePannello{"a.mp3", NameFault::None},
                          FilePannello{"b|c.mp3", NameFault::Reserved},
                          FilePannello{"d\xEF\xBF\xBD.mp3", NameFault::NotUtf8}));
  EXPECT_THAT(NomiDelPannello(b.C.Files, Musica()), ElementsAre("a.mp3"));
}

TEST_F(FilePane, OfAFolderThatCantBeReadIsEmpty) {
  EXPECT_THAT(FileDelPannello(b.C.Files, b.Percorso("gone")), IsEmpty());
  EXPECT_THAT(FileDelPannello(b.C.Files, "Q:\\"), IsEmpty());
  EXPECT_THAT(FileDelPannello(b.C.Files, ""), IsEmpty());
}

}  // namespace
}  // namespace kvr5
