#include "playlists/BancoPlaylist.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/RighePlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GridRows : public test::BancoPlaylist {
 protected:
  void SetUp() override { Progetto(4, 5); }
  /// "Pos name" of the rows.
  Righe Words() {
    Righe words;
    for (const RigaPlaylist& each : RigheDellaGriglia(editor)) {
      words.push_back(std::to_string(each.Brano.Pos) + " " + each.Brano.FileName);
    }
    return words;
  }
  std::int64_t IdAt(std::size_t row) { return RigheDellaGriglia(editor).at(row).ID; }
};

TEST_F(GridRows, TellAllOfATrack) {
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", "C:\\Music\\", "P01-001.mp3");
  editor.Carica();
  const auto rows = RigheDellaGriglia(editor);
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].ID, editor.rsList().Number("ID"));
  const RigaProgetto& track = rows[0].Brano;
  EXPECT_EQ(track.Lista, "playlist.mdb");
  EXPECT_EQ(track.NPlaylist, 1);
  EXPECT_EQ(track.Pos, 1);
  EXPECT_EQ(track.Alias, "P01-001.mp3");
  EXPECT_EQ(track.FilePath, "C:\\Music\\");
  EXPECT_EQ(track.FileName, "a.mp3");
  EXPECT_FALSE(track.Mancante) << "nobody has looked yet";
}

TEST_F(GridRows, AreThoseOfTheCurrentPlaylistInTheirOrder) {
  Brano(1, 2, "b.mp3");
  Brano(2, 1, "other.mp3");
  Brano(1, 1, "a.mp3");
  editor.Carica();
  EXPECT_THAT(Words(), ElementsAre("1 a.mp3", "2 b.mp3"));
  editor.ScegliVoce(1);
  EXPECT_THAT(Words(), ElementsAre("1 other.mp3"));
}

TEST_F(GridRows, OfOnePosComeInTheOrderOfTheirMaking) {
  for (const char* name : {"c.mp3", "a.mp3", "b.mp3"}) Brano(1, 4, name);
  editor.Carica();
  EXPECT_THAT(Words(), ElementsAre("4 c.mp3", "4 a.mp3", "4 b.mp3"));
  EXPECT_EQ(Griglia(), Words());
}

TEST_F(GridRows, LeaveTheCurrentRowWhereItIs) {
  for (int i = 1; i <= 4; ++i) Brano(1, i, "x.mp3");
  editor.Carica();
  Va(3);
  EXPECT_EQ(Words().size(), 4U);
  EXPECT_EQ(editor.rsList().AbsolutePosition(), 3);
}

TEST_F(GridRows, HoldATrackThatWasJustAdded) {
  editor.Carica();
  AggiungiFile(editor, Musica(), "a.mp3");
  EXPECT_THAT(Words(), ElementsAre("1 a.mp3"));
}

TEST_F(GridRows, OfAClosedEditorAreNone) {
  Brano(1, 1, "a.mp3");
  EXPECT_THAT(Words(), IsEmpty());
  editor.Carica();
  editor.Chiudi();
  EXPECT_THAT(Words(), IsEmpty());
}

TEST_F(GridRows, AreReadByOneStatement) {
  editor.Carica();
  EXPECT_EQ(editor.IstruzioneGriglia(),
            "SELECT * FROM [List] WHERE [NPlaylist]=1 ORDER BY [Pos] ASC");
  editor.ScegliVoce(6);
  EXPECT_EQ(editor.IstruzioneGriglia(),
            "SELECT * FROM [List] WHERE [NPlaylist]=7 ORDER BY [Pos] ASC");
}

TEST_F(GridRows, OneIsFoundByItsIdWhereverTheCurrentRowIs) {
  for (int i = 1; i <= 4; ++i) Brano(1, i, "x.mp3");
  editor.Carica();
  for (const std::size_t row : {2U, 0U, 3U, 3U, 1U}) {
    ASSERT_TRUE(VaiAllaRiga(editor, IdAt(row)));
    EXPECT_EQ(editor.rsList().AbsolutePosition(), static_cast<int>(row) + 1);
  }
  EXPECT_FALSE(editor.rsList().MoveLast());
  EXPECT_FALSE(editor.rsList().MoveNext());
  EXPECT_TRUE(VaiAllaRiga(editor, IdAt(0))) << "from behind the last row";
  EXPECT_FALSE(editor.rsList().MovePrevious());
  EXPECT_TRUE(VaiAllaRiga(editor, IdAt(3))) << "from before the first row";
}

TEST_F(GridRows, OneThatHasGoneOrIsOfAnotherPlaylistIsNotFound) {
  Brano(1, 1, "a.mp3");
  Brano(1, 2, "b.mp3");
  Brano(2, 1, "other.mp3");
  editor.Carica();
  const std::int64_t gone = IdAt(0);
  editor.ScegliVoce(1);
  const std::int64_t other = IdAt(0);
  editor.ScegliVoce(0);
  EXPECT_FALSE(VaiAllaRiga(editor, other));
  ASSERT_TRUE(VaiAllaRiga(editor, gone));
  EXPECT_FALSE(editor.rsList().Delete());
  EXPECT_FALSE(VaiAllaRiga(editor, gone)) << "the cursor stands on the hole it left";
  EXPECT_FALSE(VaiAllaRiga(editor, -1));
}

TEST_F(GridRows, NoneIsFoundInAnEmptyOrClosedEditor) {
  EXPECT_FALSE(VaiAllaRiga(editor, 1));
  editor.Carica();
  EXPECT_FALSE(VaiAllaRiga(editor, 1));
  editor.Chiudi();
  EXPECT_FALSE(VaiAllaRiga(editor, 1));
}

}  // namespace
}  // namespace kvr5
