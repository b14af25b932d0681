#include <algorithm>

#include "core/Lingua.h"
#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

/// The page of the playlists, from the working copy.
class PlaylistPage : public test::BancoSalva {
 protected:
  /// Headings, in brackets, and tracks of the page.
  Righe Page() {
    const std::string text = Read("Playlist.htm");
    Righe lines;
    std::size_t at = 0;
    while (at < text.size()) {
      const auto end = std::min(text.find("\r\n", at), text.size());
      const std::string line = text.substr(at, end - at);
      at = end + 2;
      if (line.starts_with("<CENTER>")) continue;  // the page's own heading
      const std::string blue = "<FONT COLOR='Blue'>";
      if (const auto from = line.find(blue); from != std::string::npos) {
        const auto to = line.find("</FONT>", from);
        lines.push_back("[" + line.substr(from + blue.size(), to - from - blue.size()) + "]");
      } else if (line.ends_with(".mp3<BR>")) {
        lines.push_back(line.substr(0, line.size() - 4));
      }
    }
    return lines;
  }
};

TEST_F(PlaylistPage, OfTheOneSetHasTheTracksOfTheCurrentOneUnderOneHeading) {
  Progetto(2, 0);
  Brano(1, 1, "a.mp3");
  Brano(1, 2, "b.mp3");
  Brano(2, 1, "other.mp3");
  editor.Carica();
  EXPECT_TRUE(ScriviReport(editor));
  EXPECT_THAT(Page(), ElementsAre("[" + TestoLingua(b.C, "0050018") + "]", "a.mp3", "b.mp3"));
}

TEST_F(PlaylistPage, OfNumberedListsHasThemAllWhicheverIsCurrent) {
  Progetto(4, 5);
  Brano(2, 1, "c.mp3");
  Brano(1, 2, "b.mp3");
  Brano(1, 1, "a.mp3");
  Brano(99, 1, "d.mp3");
  editor.Carica();
  editor.ScegliVoce(4);
  EXPECT_TRUE(ScriviReport(editor));
  EXPECT_THAT(Page(), ElementsAre("[Playlist 1.m3u]", "a.mp3", "b.mp3", "[Playlist 2.m3u]", "c.mp3",
                                  "[Playlist 99.m3u]", "d.mp3"));
}

TEST_F(PlaylistPage, OfListsByDayHasTheDays) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 4}) {
    Progetto(type, 6);
    for (const int day : {1, 7, 8}) Brano(day, 1, std::to_string(day) + ".mp3");
    editor.Carica();
    EXPECT_TRUE(ScriviReport(editor));
    EXPECT_THAT(Page(),
                ElementsAre("[Playlist 1.m3u - Monday]", "1.mp3", "[Playlist 7.m3u - Sunday]",
                            "7.mp3", "[Playlist 8.m3u - ]", "8.mp3"));
    editor.Chiudi();
  }
}

TEST_F(PlaylistPage, OfNamedListsHasTheirNamesInOrderAndNoTrackWithoutOne) {
  Progetto(3, 9);
  Nome("Noon", 1);
  Nome("Early <1>", 2);
  Brano(1, 1, "n.mp3");
  Brano(2, 2, "e2.mp3");
  Brano(2, 1, "e1.mp3");
  Brano(7, 1, "nameless.mp3");
  editor.Carica();
  EXPECT_TRUE(ScriviReport(editor));
  EXPECT_THAT(Page(), ElementsAre("[Playlist Early &lt;1&gt;.m3u]", "e1.mp3", "e2.mp3",
                                  "[Playlist Noon.m3u]", "n.mp3"));
}

TEST_F(PlaylistPage, HoldsWhatIsNotSavedYet) {
  Progetto(4, 5);
  editor.Carica();
  AggiungiFile(editor, Musica(), "new.mp3");
  EXPECT_TRUE(ScriviReport(editor));
  EXPECT_THAT(Page(), ElementsAre("[Playlist 1.m3u]", "new.mp3"));
  EXPECT_THAT(Tutti("playlist.mdb"), testing::IsEmpty());
}

TEST_F(PlaylistPage, OfNoTrackIsNotWrittenAndAnOldOneStays) {
  Progetto(4, 5);
  editor.Carica();
  EXPECT_FALSE(ScriviReport(editor));
  EXPECT_FALSE(Exists("Playlist.htm"));
  b.Cartella.Write("program/Projects/Hall/Playlist.htm", "old");
  EXPECT_FALSE(ScriviReport(editor));
  EXPECT_EQ(Read("Playlist.htm"), "old");
}

TEST_F(PlaylistPage, OfTheOneSetWhoseCurrentListIsEmptyIsNotWritten) {
  Progetto(2, 0);
  Brano(2, 1, "other.mp3");
  editor.Carica();
  EXPECT_FALSE(ScriviReport(editor));
}

}  // namespace
}  // namespace kvr5
