#include <sqlite3.h>

#include <algorithm>

#include "playlists/BancoPlaylist.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/RighePlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

/// Several rows at once, in a list "a.mp3" to "f.mp3" that begins anew whenever a test wants it to.
class SeveralRows : public test::BancoPlaylist {
 protected:
  static constexpr unsigned kRows = 6;
  static constexpr unsigned kChoices = 1U << kRows;

  void SetUp() override {
    Progetto(4, 5);
    Brano(2, 1, "other.mp3");
    editor.Carica();
    Anew();
  }
  static std::string Name(unsigned row) { return std::string(1, static_cast<char>('a' + row)); }
  void Anew() {
    auto& connection = editor.ConnessionePlaylist();
    const Transaction all(connection);
    ASSERT_FALSE(connection.Execute("DELETE * FROM [List] WHERE [NPlaylist]=1"));
    for (unsigned i = 0; i < kRows; ++i) {
      ASSERT_FALSE(connection.Execute(
          "INSERT INTO [List] ([FileName],[FilePath],[Pos],[NPlaylist]) VALUES('" + Name(i) +
          "','C:\\'," + std::to_string(i + 1) + ",1)"));
    }
    editor.AggiornaGrigliaPlaylist();
  }
  /// The IDs of the rows whose bit is set, in the order of the grid.
  std::vector<std::int64_t> Chosen(unsigned bits) {
    std::vector<std::int64_t> chosen;
    const auto rows = RigheDellaGriglia(editor);
    for (unsigned i = 0; i < rows.size(); ++i) {
      if ((bits >> i & 1U) != 0) chosen.push_back(rows[i].ID);
    }
    return chosen;
  }
  static Righe Numbered(const std::string& names) {
    Righe rows;
    for (const char name : names) {
      rows.push_back(std::to_string(rows.size() + 1) + " " + std::string(1, name));
    }
    return rows;
  }
};

TEST_F(SeveralRows, AreRemovedAndTheOthersCloseUp) {
  for (unsigned bits = 0; bits < kChoices; ++bits) {
    Anew();
    std::string left;
    for (unsigned i = 0; i < kRows; ++i) {
      if ((bits >> i & 1U) == 0) left += Name(i);
    }
    RimuoviRighe(editor, Chosen(bits));
    ASSERT_EQ(Griglia(), Numbered(left)) << bits;
  }
  editor.ScegliVoce(1);
  EXPECT_THAT(Griglia(), ElementsAre("1 other.mp3"));
}

TEST_F(SeveralRows, RemovedTogetherAreAsRemovedOneByOne) {
  for (const unsigned bits : {0b1U, 0b101101U, 0b111111U, 0b100000U}) {
    Anew();
    for (const std::int64_t id : Chosen(bits)) {
      ASSERT_TRUE(VaiAllaRiga(editor, id));
      RimuoviFile(editor);
    }
    const Righe oneByOne = Griglia();
    Anew();
    RimuoviRighe(editor, Chosen(bits));
    EXPECT_EQ(Griglia(), oneByOne);
    EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: " + std::to_string(oneByOne.size()));
  }
}

/// What a move of the chosen names makes of "abcdef": those at the end stay, and with them those
/// that stand right behind.
std::string Moved(const std::string& chosen, bool up) {
  std::string row = "abcdef";
  if (!up) std::ranges::reverse(row);
  const auto isChosen = [&](char name) { return chosen.find(name) != std::string::npos; };
  for (std::size_t i = 1; i < row.size(); ++i) {
    if (isChosen(row[i]) && !isChosen(row[i - 1])) std::swap(row[i], row[i - 1]);
  }
  if (!up) std::ranges::reverse(row);
  return row;
}

TEST_F(SeveralRows, MoveByOnePlaceAndThoseAtTheEndStay) {
  for (const bool up : {true, false}) {
    for (unsigned bits = 0; bits < kChoices; ++bits) {
      Anew();
      std::string chosen;
      for (unsigned i = 0; i < kRows; ++i) {
        if ((bits >> i & 1U) != 0) chosen += Name(i);
      }
      SpostaRighe(editor, Chosen(bits), up);
      ASSERT_EQ(Griglia(), Numbered(Moved(chosen, up))) << chosen << (up ? " up" : " down");
    }
  }
}

TEST_F(SeveralRows, MovedTogetherAreAsMovedOneByOne) {
  for (const bool up : {true, false}) {
    Anew();
    auto ids = Chosen(0b010110U);
    if (!up) std::ranges::reverse(ids);
    for (const std::int64_t id : ids) {
      ASSERT_TRUE(VaiAllaRiga(editor, id));
      up ? SpostaSu(editor) : SpostaGiu(editor);
    }
    const Righe oneByOne = Griglia();
    Anew();
    SpostaRighe(editor, Chosen(0b010110U), up);
    EXPECT_EQ(Griglia(), oneByOne);
  }
}

TEST_F(SeveralRows, ThatStandAtTheEdgeTogetherStayThereHoweverOften) {
  for (int i = 0; i < 3; ++i) SpostaRighe(editor, Chosen(0b000111U), true);
  EXPECT_EQ(Griglia(), Numbered("abcdef"));
  for (int i = 0; i < 3; ++i) SpostaRighe(editor, Chosen(0b111000U), false);
  EXPECT_EQ(Griglia(), Numbered("abcdef"));
  EXPECT_EQ(editor.Modifiche(), 0);
}

TEST_F(SeveralRows, ThatAreNotThereAreLeftOut) {
  editor.ScegliVoce(1);
  const std::int64_t other = Chosen(1).front();
  editor.ScegliVoce(0);
  const auto ids = Chosen(0b000110U);
  const std::vector<std::int64_t> some{other, ids[0], 987654321, -1, ids[1]};
  SpostaRighe(editor, some, true);
  EXPECT_EQ(Griglia(), Numbered("bcadef"));
  RimuoviRighe(editor, some);
  EXPECT_EQ(Griglia(), Numbered("adef"));
  RimuoviRighe(editor, some);
  SpostaRighe(editor, some, false);
  RimuoviRighe(editor, {});
  SpostaRighe(editor, {}, true);
  EXPECT_EQ(Griglia(), Numbered("adef"));
  EXPECT_THAT(Tutti(), testing::Contains("2-1 other.mp3"));
}

TEST_F(SeveralRows, CountAsOneChangeEach) {
  SpostaRighe(editor, Chosen(0b000110U), true);
  EXPECT_EQ(editor.Modifiche(), 2);
  RimuoviRighe(editor, Chosen(0b111000U));
  EXPECT_EQ(editor.Modifiche(), 5);
}

/// The tracks of a playlist by their Pos.
class Order : public test::BancoPlaylist {
 protected:
  void SetUp() override { Progetto(4, 5); }
  std::int64_t RowsWritten() {
    return sqlite3_total_changes64(editor.ConnessionePlaylist().Handle());
  }
  /// Tracks of the current playlist, by one statement of the database's own.
  void Many(int count) {
    ASSERT_EQ(
        sqlite3_exec(editor.ConnessionePlaylist().Handle(),
                     ("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<" +
                      std::to_string(count) +
                      ") INSERT INTO List(FileName,FilePath,Pos,NPlaylist) SELECT "
                      "'f'||i||'.mp3','C:\\',i,1 FROM n")
                         .c_str(),
                     nullptr, nullptr, nullptr),
        SQLITE_OK);
    editor.AggiornaGrigliaPlaylist();
  }
};

TEST_F(Order, RowsThatAgreeAreNotWritten) {
  for (int i = 1; i <= 4; ++i) Brano(1, i, "x.mp3");
  Brano(2, 1, "y.mp3");
  Brano(3, 7, "z.mp3");
  editor.Carica();
  RiordinaPosizione(editor);
  EXPECT_EQ(RowsWritten(), 1) << "the one of list 3";
  RiordinaPosizione(editor);
  EXPECT_EQ(RowsWritten(), 1);
}

TEST_F(Order, ARemovalWritesOnlyWhatStandsBehind) {
  for (int i = 1; i <= 5; ++i) Brano(1, i, "x.mp3");
  editor.Carica();
  Va(4);
  RimuoviFile(editor);
  EXPECT_EQ(RowsWritten(), 2) << "the removed one and the last";
}

TEST_F(Order, TwoTracksOfOnePosChangePlacesOnlyOnceTheyAreNumbered) {
  Brano(1, 2, "a.mp3");
  Brano(1, 2, "b.mp3");
  editor.Carica();
  SpostaGiu(editor);
  EXPECT_THAT(Griglia(), ElementsAre("2 a.mp3", "2 b.mp3"));
  EXPECT_FALSE(editor.rsList().MoveFirst());
  RiordinaPosizione(editor);
  editor.AggiornaGrigliaPlaylist();
  SpostaGiu(editor);
  EXPECT_EQ(editor.rsList().Text("FileName"), "a.mp3") << "still the current one";
  EXPECT_THAT(Griglia(), ElementsAre("1 b.mp3", "2 a.mp3"));
}

TEST_F(Order, TheNextPosIsACountWhateverNumbersThereAre) {
  Brano(1, 7, "a.mp3");
  Brano(1, 90, "b.mp3");
  Brano(2, 1, "other.mp3");
  editor.Carica();
  EXPECT_EQ(ProssimaPosizione(editor), 3);
}

TEST_F(Order, ATrackWithoutAPosDoesNotCountForTheNextOneAndIsNumbered) {
  Brano(1, 1, "a.mp3");
  editor.Carica();
  ASSERT_FALSE(editor.ConnessionePlaylist().Execute(
      "INSERT INTO [List] ([FileName],[FilePath],[NPlaylist]) VALUES('n.mp3','C:\\',1)"));
  EXPECT_EQ(ProssimaPosizione(editor), 2);
  RiordinaPosizione(editor);
  EXPECT_THAT(Tutti(), ElementsAre("1-1 n.mp3", "1-2 a.mp3"));
}

TEST_F(Order, AShuffleOfAsManyAsASixteenBitNumberHoldsGivesEachOnce) {
  constexpr int kMost = 32767;
  editor.Carica();
  Many(kMost);
  Random(editor, CasoDaSeme(7));
  const Righe rows = Griglia();
  ASSERT_EQ(rows.size(), static_cast<std::size_t>(kMost));
  int moved = 0;
  for (int i = 1; i <= kMost; ++i) {
    const std::string& row = rows.at(static_cast<std::size_t>(i - 1));
    ASSERT_TRUE(row.starts_with(std::to_string(i) + " ")) << row;
    if (!row.ends_with(" f" + std::to_string(i) + ".mp3")) ++moved;
  }
  EXPECT_GT(moved, kMost / 2);
}

TEST_F(Order, AShuffleOfOneMoreKeepsTheOrder) {
  constexpr int kTooMany = 32768;
  editor.Carica();
  Many(kTooMany);
  const Righe before = Griglia();
  Random(editor, CasoDaSeme(7));
  EXPECT_TRUE(Griglia() == before);
  EXPECT_EQ(editor.Modifiche(), 0);
}

TEST_F(Order, TheGridComesBackAfterAShuffle) {
  Brano(1, 1, "a.mp3");
  editor.Carica();
  std::vector<bool> waits;
  editor.SuAttesa = [&](bool on) { waits.push_back(on); };
  Random(editor, CasoDaSeme(1));
  EXPECT_THAT(waits, ElementsAre(true, false));
  editor.ScegliVoce(1);
  waits.clear();
  Random(editor, CasoDaSeme(1));
  EXPECT_TRUE(waits.empty()) << "a list of nothing isn't shuffled";
}

TEST_F(Order, TheClocksSourceGivesNumbersBelowOne) {
  const Caso source = CasoDallOrologio();
  for (int i = 0; i < 1000; ++i) {
    const double number = source();
    ASSERT_GE(number, 0);
    ASSERT_LT(number, 1);
  }
}

}  // namespace
}  // namespace kvr5
