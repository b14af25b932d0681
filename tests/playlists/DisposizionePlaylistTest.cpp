#include "playlists/BancoPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the editor shows and edits right after its load.
struct Case {
  std::int16_t Type, Mode;
  bool Multiple;
  std::int32_t Current;
  std::size_t Entries;
  bool Selector, Inputs, AddRemove;
};

class EditorLayout : public test::BancoPlaylist, public testing::WithParamInterface<Case> {};

TEST_P(EditorLayout, FollowsModelAndMode) {
  const Case& c = GetParam();
  Progetto(c.Type, c.Mode);
  editor.Carica();
  const auto& layout = editor.Disposizione();
  EXPECT_EQ(layout.PlaylistMultiple, c.Multiple);
  EXPECT_EQ(editor.PlaylistCorrente(), c.Current);
  EXPECT_EQ(editor.Voci().size(), c.Entries);
  EXPECT_EQ(editor.Indice(), c.Entries == 0 ? -1 : 0);
  EXPECT_EQ(layout.picfraSelezionePlaylist, c.Selector);
  EXPECT_EQ(layout.picFraIngresso, c.Inputs);
  EXPECT_EQ(layout.picfraAddRemovePL, c.AddRemove);
}

INSTANTIATE_TEST_SUITE_P(
    All, EditorLayout,
    testing::Values(
        Case{1, 0, true, 0, 0, false, false, false}, Case{1, 4, true, 0, 0, false, false, false},
        Case{1, 5, true, 0, 0, false, false, false}, Case{1, 9, true, 0, 0, false, false, false},
        Case{2, 0, false, 1, 0, false, false, false}, Case{2, 4, false, 1, 0, false, false, false},
        Case{2, 5, false, 1, 0, false, false, false}, Case{2, 9, false, 1, 0, false, false, false},
        Case{3, 2, true, 0, 0, false, false, false}, Case{3, 3, true, 0, 0, false, false, false},
        Case{3, 10, true, 0, 0, false, false, false}, Case{4, 2, true, 0, 0, false, false, false},
        Case{4, 8, true, 0, 0, false, false, false}, Case{4, 9, true, 0, 0, false, false, false},
        Case{3, 4, false, 1, 0, false, false, false}, Case{3, 5, true, 1, 8, true, false, false},
        Case{3, 6, true, 1, 7, true, false, false}, Case{3, 7, true, 1, 8, true, true, false},
        Case{3, 8, true, 0, 7, true, false, false}, Case{3, 9, true, 0, 0, true, false, true},
        Case{3, 1, true, 0, 0, false, false, false}, Case{4, 4, false, 1, 0, false, false, false},
        Case{4, 5, true, 1, 7, true, false, false}, Case{4, 6, true, 1, 7, true, false, false},
        Case{4, 7, true, 1, 7, true, false, false}, Case{4, 1, true, 0, 0, false, false, false}),
    [](const auto& each) {
      return "Type" + std::to_string(each.param.Type) + "Mode" + std::to_string(each.param.Mode);
    });

class Selector : public test::BancoPlaylist {
 protected:
  Righe Words() const {
    Righe words;
    for (const auto& each : editor.Voci()) words.push_back(each.Testo);
    return words;
  }
};

TEST_F(Selector, CountsFromZeroOnAnOstrelAndFromOneOnAKvr5) {
  Progetto(3, 5);
  editor.Carica();
  EXPECT_EQ(Words().front(), "0 Playlist");
  EXPECT_EQ(Words().back(), "7 Playlist");
  EXPECT_EQ(editor.Voci().back().ItemData, 7);
  EXPECT_EQ(DisposizionePlaylistDi(b.C, 4, 5).Voci.front(), (VocePlaylist{"1 Playlist", 0}));
  EXPECT_EQ(DisposizionePlaylistDi(b.C, 4, 7).Voci.back(), (VocePlaylist{"7 Playlist", 6}));
}

TEST_F(Selector, OfAllModesHasItsOwnEntries) {
  const auto entries = [&](std::int16_t type, std::int16_t mode) {
    return DisposizionePlaylistDi(b.C, type, mode).Voci;
  };
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{5, 7}) {
    for (int i = 0; i <= 7; ++i) {
      const auto at = static_cast<std::size_t>(i);
      EXPECT_EQ(entries(3, mode).at(at), (VocePlaylist{std::to_string(i) + " Playlist", i}));
    }
  }
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{5, 6, 7}) {
    ASSERT_EQ(entries(4, mode).size(), 7U);
    for (int i = 1; i <= 7; ++i) {
      const auto at = static_cast<std::size_t>(i - 1);
      EXPECT_EQ(entries(4, mode).at(at), (VocePlaylist{std::to_string(i) + " Playlist", i - 1}));
    }
  }
  for (int i = 1; i <= 6; ++i) {
    const auto at = static_cast<std::size_t>(i);
    EXPECT_EQ(entries(3, 8).at(at), (VocePlaylist{std::to_string(i) + " Extra playlist", i - 1}));
  }
}

TEST_F(Selector, AnIndexIsOneLessThanTheNumberInFourModesOnly) {
  for (std::int16_t mode = 0; mode <= 10; ++mode) {
    EXPECT_EQ(IndiceDaUno(mode), mode == 5 || mode == 6 || mode == 7 || mode == 9) << mode;
  }
}

TEST_F(Selector, OfAnOstrelByDayHasTheDays) {
  Progetto(3, 6);
  editor.Carica();
  EXPECT_THAT(Words(), ElementsAre("Monday", "Tuesday", "Wednesday", "Thursday", "Friday",
                                   "Saturday", "Sunday"));
  EXPECT_EQ(editor.Voci().back().ItemData, 6);
}

TEST_F(Selector, OfAnOstrelInModeEightBeginsWithAListOfItsOwnWhichIsNumberZero) {
  Progetto(3, 8);
  Brano(0, 1, "main.mp3");
  Brano(6, 1, "six.mp3");
  editor.Carica();
  EXPECT_EQ(Words().front(), "Main playlist");
  EXPECT_EQ(Words().back(), "6 Extra playlist");
  EXPECT_EQ(editor.Voci()[0].ItemData, 0);
  EXPECT_EQ(editor.Voci()[1].ItemData, 0) << "the data begin again";
  EXPECT_THAT(Griglia(), ElementsAre("1 main.mp3"));
  editor.ScegliVoce(6);
  EXPECT_EQ(editor.PlaylistCorrente(), 6);
  EXPECT_THAT(Griglia(), ElementsAre("1 six.mp3"));
}

TEST_F(Selector, OfAnOstrelInModeFiveStoresItsFirstEntryAsNumberOne) {
  Progetto(3, 5);
  Brano(1, 1, "one.mp3");
  editor.Carica();
  EXPECT_EQ(editor.Testo(), "0 Playlist");
  EXPECT_THAT(Griglia(), ElementsAre("1 one.mp3"));
}

TEST_F(Selector, AClickSetsTheCheckBoxesToItsBits) {
  Progetto(3, 7);
  editor.Carica();
  editor.ScegliVoce(5);
  EXPECT_TRUE(editor.Ingresso(1));
  EXPECT_FALSE(editor.Ingresso(2));
  EXPECT_TRUE(editor.Ingresso(3));
  EXPECT_EQ(editor.PlaylistCorrente(), 6);
  editor.ImpostaIndice(0);
  EXPECT_TRUE(editor.Ingresso(1)) << "only a click of the user does";
}

TEST_F(Selector, OfACheckBoxTheSelectorHasTheLastWord) {
  Progetto(3, 7);
  Brano(3, 1, "three.mp3");
  Brano(4, 1, "four.mp3");
  editor.Carica();
  editor.SpuntaIngresso(1, true);
  EXPECT_EQ(editor.Indice(), 1);
  EXPECT_EQ(editor.PlaylistCorrente(), 2);
  editor.SpuntaIngresso(2, true);
  EXPECT_EQ(editor.Indice(), 3);
  EXPECT_EQ(editor.PlaylistCorrente(), 4) << "the sum is 3";
  EXPECT_THAT(Griglia(), ElementsAre("1 four.mp3"));
}

TEST_F(Selector, AnIndexThatNoEntryHasChangesNothing) {
  Progetto(4, 5);
  editor.Carica();
  editor.ScegliVoce(2);
  for (const int index : {-2, 7, 1000}) editor.ScegliVoce(index);
  EXPECT_EQ(editor.Indice(), 2);
  EXPECT_EQ(editor.PlaylistCorrente(), 3);
}

TEST_F(Selector, ABoxThatIsClearedIsTakenOffTheSum) {
  Progetto(3, 7);
  editor.Carica();
  for (const int each : {1, 2, 3}) editor.SpuntaIngresso(each, true);
  EXPECT_EQ(editor.PlaylistCorrente(), 8);
  editor.SpuntaIngresso(2, false);
  EXPECT_EQ(editor.Indice(), 5);
  EXPECT_EQ(editor.PlaylistCorrente(), 6);
  EXPECT_FALSE(editor.Ingresso(2));
  for (const int each : {1, 3}) editor.SpuntaIngresso(each, false);
  EXPECT_EQ(editor.Indice(), 0);
  EXPECT_EQ(editor.PlaylistCorrente(), 1);
}

TEST_F(Selector, ATextThatNoEntryHasChangesNothingAndOneThatItHasSelectsIt) {
  Progetto(3, 6);
  Brano(3, 1, "w.mp3");
  editor.Carica();
  editor.ImpostaTesto("No such day");
  EXPECT_EQ(editor.Indice(), 0);
  editor.ImpostaTesto("WEDNESDAY");
  EXPECT_EQ(editor.Indice(), 2);
  EXPECT_THAT(Griglia(), ElementsAre("1 w.mp3")) << "its click was run";
}

TEST_F(Selector, TheSameEntryOnceMoreReadsItsRowsAgain) {
  Progetto(4, 5);
  editor.Carica();
  ASSERT_FALSE(editor.ConnessionePlaylist().Execute(
      "INSERT INTO [List] ([FileName],[FilePath],[Pos],[NPlaylist]) VALUES('n.mp3','C:\\',1,1)"));
  EXPECT_THAT(Griglia(), IsEmpty());
  editor.ScegliVoce(0);
  EXPECT_THAT(Griglia(), ElementsAre("1 n.mp3"));
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 1");
}

TEST_F(Selector, RowsOfNumbersThatItDoesntOfferStayInTheDatabase) {
  Progetto(4, 5);
  for (const int number : {-1, 0, 8, 99}) Brano(number, 1, "x.mp3");
  editor.Carica();
  for (int i = 0; i < 7; ++i) {
    editor.ScegliVoce(i);
    EXPECT_THAT(Griglia(), IsEmpty());
  }
  EXPECT_THAT(Tutti(), ElementsAre("-1-1 x.mp3", "0-1 x.mp3", "8-1 x.mp3", "99-1 x.mp3"));
}

TEST_F(Selector, WhatACrashLeftIsLostAtTheLoad) {
  Progetto(4, 5);
  Brano(1, 1, "saved.mp3");
  b.Cartella.Write("program/Projects/Hall/TMPPLAYLIST.MDB", "what was edited");
  editor.Carica();
  EXPECT_THAT(Griglia(), ElementsAre("1 saved.mp3"));
}

TEST_F(Selector, OfNamesComesUpOnTheSecondOne) {
  Progetto(3, 9);
  Nome("Noon", 1);
  Nome("Evening", 2);
  Nome("Morning", 5);
  Brano(2, 1, "evening.mp3");
  editor.Carica();
  EXPECT_THAT(Words(), ElementsAre("Evening", "Morning", "Noon"));
  EXPECT_EQ(editor.Testo(), "Morning");
  EXPECT_EQ(editor.Voci()[1].ItemData, 5);
  EXPECT_EQ(editor.PlaylistCorrente(), 2) << "the place in the list counts, not the number";
  EXPECT_THAT(Griglia(), ElementsAre("1 evening.mp3"));
}

TEST_F(Selector, OfOneNameStaysOnIt) {
  Progetto(3, 9);
  Nome("Only", 4);
  editor.Carica();
  EXPECT_EQ(editor.Testo(), "Only");
  EXPECT_EQ(editor.PlaylistCorrente(), 1);
}

TEST_F(Selector, OfNoNameIsEmpty) {
  Progetto(3, 9);
  editor.Carica();
  EXPECT_THAT(Words(), IsEmpty());
  EXPECT_TRUE(editor.SelettoreVuoto());
}

}  // namespace
}  // namespace kvr5
