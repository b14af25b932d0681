#include "playlists/BancoPlaylist.h"
#include "playlists/NomiPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NamedLists : public test::BancoPlaylist {
 protected:
  void SetUp() override {
    Progetto(3, 9);
    editor.Carica();
  }
  /// Adds a list; the dialog gives these names one after another, then cancels.
  void Add(std::vector<std::string> names) {
    std::size_t next = 0;
    AggiungiPlaylist(editor, [&] {
      b.C.Stato.NomePlaylistScelta = next < names.size() ? names[next] : std::string();
      ++next;
    });
    asked = next;
  }
  Righe Entries() const {
    Righe words;
    for (const auto& each : editor.Voci()) {
      words.push_back(each.Testo + " " + std::to_string(each.ItemData));
    }
    return words;
  }
  std::size_t asked = 0;
};

TEST_F(NamedLists, BeginWithNumberOneAndTheNewOneIsSelected) {
  Add({"  Noon "});
  EXPECT_THAT(Entries(), ElementsAre("Noon 1"));
  EXPECT_EQ(editor.Testo(), "Noon");
  Add({"Evening"});
  EXPECT_THAT(Entries(), ElementsAre("Evening 2", "Noon 1"));
  EXPECT_EQ(editor.Testo(), "Evening");
  EXPECT_EQ(editor.PlaylistCorrente(), 1) << "its place, not its number";
}

TEST_F(NamedLists, ADialogThatIsCancelledAddsNothing) {
  Add({});
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_EQ(asked, 1U);
}

TEST_F(NamedLists, ANameThatIsTakenIsAskedForOnceMore) {
  Add({"Music"});
  Add({"music", "Other"});
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Name of the playlist");
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(box.TestoOk, "OK");
  EXPECT_EQ(asked, 2U);
  EXPECT_THAT(Entries(), ElementsAre("Music 1", "Other 2"));
}

TEST_F(NamedLists, TheSecondNameIsNotLookedUp) {
  Add({"Music"});
  Add({"Music", "Music"});
  b.Finestre.Prossimo();
  EXPECT_THAT(Entries(), ElementsAre("Music 1", "Music 2"));
}

TEST_F(NamedLists, ANameWithAnApostropheCountsAsNew) {
  Add({"it's"});
  Add({"it's"});
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_THAT(Entries(), ElementsAre("it's 1", "it's 2"));
  EXPECT_EQ(CercaPlaylistPerNome(editor, "it's"), -1);
  EXPECT_EQ(CercaPlaylistPerNome(editor, "  "), -1);
}

TEST_F(NamedLists, ANumberComesAgainOnlyWhereItWasTheHighest) {
  for (const char* name : {"A", "B", "C"}) Add({name});
  EliminaPlaylist(editor, 2);
  EXPECT_EQ(ProssimoNScheduler(editor), 4);
  EliminaPlaylist(editor, 3);
  EXPECT_EQ(ProssimoNScheduler(editor), 2);
  EliminaPlaylist(editor, 1);
  EXPECT_EQ(ProssimoNScheduler(editor), 1);
}

TEST_F(NamedLists, BehindTheHighestNumberThereIsOneAgain) {
  editor.Chiudi();
  Nome("Z", 2147483646);
  editor.Carica();
  EXPECT_EQ(ProssimoNScheduler(editor), 2147483647);
  AggiungiTestata(editor, "Y", 2147483647);
  EXPECT_EQ(ProssimoNScheduler(editor), 1) << "the sum overflows and is dropped";
}

TEST_F(NamedLists, ANumberBelowOneIsFollowedByTheNext) {
  editor.Chiudi();
  Nome("Z", -5);
  editor.Carica();
  EXPECT_EQ(ProssimoNScheduler(editor), -4);
}

TEST_F(NamedLists, ANameOfNumberZeroCountsAsFree) {
  editor.Chiudi();
  Nome("Zero", 0);
  editor.Carica();
  EXPECT_EQ(CercaPlaylistPerNome(editor, "zero"), 0);
  Add({"Zero"});
  EXPECT_EQ(asked, 1U);
  EXPECT_THAT(Entries(), ElementsAre("Zero 0", "Zero 1"));
}

TEST_F(NamedLists, ANameMayHaveEightCharactersOfAnyKind) {
  EXPECT_EQ(DifettoNomePlaylist(b.C, "12345678"), "");
  EXPECT_EQ(DifettoNomePlaylist(b.C, "àèìòùÀÈÌ"), "");
  EXPECT_NE(DifettoNomePlaylist(b.C, "123456789"), "");
  EXPECT_NE(DifettoNomePlaylist(b.C, ""), "");
  EXPECT_EQ(DifettoNomePlaylist(b.C, "it's"), "");
}

TEST_F(NamedLists, OfSomeThatAreGoneTheNextIsShown) {
  editor.Chiudi();
  for (int i = 1; i <= 3; ++i) Nome(std::string(1, static_cast<char>('A' + i - 1)), i);
  Brano(2, 1, "b.mp3");
  editor.Carica();
  EXPECT_EQ(editor.Testo(), "B");
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviPlaylist(editor);
  b.Finestre.Prossimo();
  EXPECT_THAT(Entries(), ElementsAre("A 1", "C 3"));
  EXPECT_EQ(editor.Testo(), "A");
  EXPECT_EQ(editor.PlaylistCorrente(), 1);
}

TEST_F(NamedLists, TheLastOneThatIsRemovedLeavesAnEmptyGrid) {
  editor.Chiudi();
  Nome("Only", 1);
  Brano(1, 1, "a.mp3");
  editor.Carica();
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviPlaylist(editor);
  b.Finestre.Prossimo();
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 0");
  EXPECT_TRUE(editor.SelettoreVuoto());
}

TEST_F(NamedLists, WhatIsCancelledLeavesTheDatabaseByteForByte) {
  editor.Chiudi();
  Nome("A", 1);
  const std::string before = b.Cartella.Read("program/Projects/Hall/playlist.mdb");
  editor.Carica();
  Add({"New"});
  EliminaPlaylist(editor, 1);
  editor.Chiudi();
  EXPECT_TRUE(b.Cartella.Read("program/Projects/Hall/playlist.mdb") == before);
}

TEST_F(NamedLists, ARemovalTakesTheTracksToo) {
  editor.Chiudi();
  Nome("A", 1);
  Nome("B", 2);
  Brano(1, 1, "a.mp3");
  Brano(2, 1, "b.mp3");
  editor.Carica();
  EXPECT_EQ(ContaPlaylist(editor), 2);
  editor.ScegliVoce(0);
  b.Finestre.Rispondi(Risposta::No);
  RimuoviPlaylist(editor);
  const auto question = b.Finestre.Prossimo();
  EXPECT_EQ(question.Testo, "Remove the list now shown with its tracks, labelled 'A'?");
  EXPECT_TRUE(question.Toglie);
  EXPECT_EQ(Entries().size(), 2U);
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviPlaylist(editor);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Remove playlist");
  EXPECT_THAT(Entries(), ElementsAre("B 2"));
  EXPECT_THAT(Tutti(), ElementsAre("2-1 b.mp3"));
  EXPECT_EQ(ContaPlaylist(editor), 1);
}

TEST_F(NamedLists, WithoutAnEntryNothingIsRemoved) {
  RimuoviPlaylist(editor);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(NamedLists, WhatARemovalDeletesIsTheCurrentNumberWhateverNameIsShown) {
  editor.Chiudi();
  Nome("Z", 1);
  Nome("A", 2);
  editor.Carica();
  editor.ScegliVoce(0);  // "A", number 2: the current one is 1
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviPlaylist(editor);
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "Remove the list now shown with its tracks, labelled 'A'?");
  EXPECT_THAT(Entries(), ElementsAre("A 2"));
}

TEST_F(NamedLists, ANameIsRefusedForItsCharacters) {
  EXPECT_EQ(DifettoNomePlaylist(b.C, " "), "Give the playlist a name");
  for (const char* name : {"A:B", "a\\b", "a/b", "a?", "a\"", "<a", "a>", "a|"}) {
    EXPECT_EQ(DifettoNomePlaylist(b.C, name),
              "A name can't hold any of these:\r\n \\ / : ? \" < > |");
  }
  EXPECT_EQ(DifettoNomePlaylist(b.C, "a*"), "") << "the asterisk isn't on the list";
}

}  // namespace
}  // namespace kvr5
