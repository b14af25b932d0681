#include <QTest>

#include "playlists/screens/BancoEditor.h"

// Lists by name: added with the real dialog, and removed.

namespace kvr5 {
namespace {

using test::Pilota;
using testing::ElementsAre;
using testing::IsEmpty;

class NamedLists : public test::BancoEditor {
 protected:
  void SetUp() override {
    Progetto(3, 9);
    Musica({"a.mp3"});
  }
  /// Types a name into the next dialog and confirms it.
  static Pilota<frmPlaylistName> Types(const char* name) {
    return Pilota<frmPlaylistName>([name](frmPlaylistName& box) {
      EXPECT_EQ(box.txtNomePlaylist->text(), "") << "each dialog begins afresh";
      test::Scrivi(box, QString::fromUtf8(name));
      test::Clicca(*box.picOk);
    });
  }
  static Pilota<frmPlaylistName> Cancels() {
    return Pilota<frmPlaylistName>([](frmPlaylistName& box) { test::Clicca(*box.picCancel); });
  }
  void Add(const char* name) {
    const auto types = Types(name);
    Clic("picAggiungiPL");
  }
  Righe Entries() const {
    Righe all;
    for (int i = 0; i < Selettore().count(); ++i) {
      all.push_back(Selettore().itemText(i).toStdString());
    }
    return all;
  }
  Righe Heads() { return Testate("tmpPlaylist.mdb"); }
};

TEST_F(NamedLists, ANewOneIsSelected) {
  Apri();
  EXPECT_THAT(Entries(), IsEmpty());
  Add("Music");
  EXPECT_THAT(Entries(), ElementsAre("Music"));
  EXPECT_EQ(Selettore().currentText(), "Music");
  EXPECT_THAT(Heads(), ElementsAre("1 Music")) << "the first number is 1";
  EXPECT_EQ(Testo("lblModifiche"), "1 change unsaved");
  DoppioFile("a.mp3");
  EXPECT_THAT(Tutti("tmpPlaylist.mdb"), ElementsAre("1-1 a.mp3"));
  Add("Alpha");
  EXPECT_THAT(Entries(), ElementsAre("Alpha", "Music"));
  EXPECT_EQ(Selettore().currentText(), "Alpha");
  EXPECT_THAT(Heads(), ElementsAre("1 Music", "2 Alpha"));
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3")) << "the first place is list 1, which is Music's";
  EXPECT_THAT(Testate("playlist.mdb"), IsEmpty()) << "nothing is saved";
}

TEST_F(NamedLists, BlanksAroundANameGo) {
  Apri();
  Add("  Eve ");
  EXPECT_THAT(Heads(), ElementsAre("1 Eve"));
  EXPECT_EQ(Selettore().currentText(), "Eve");
}

TEST_F(NamedLists, ANameThatIsTakenIsAskedForOnceMore) {
  Nome("Music", 1);
  Apri();
  {
    const auto first = Types("Music");
    const auto second = Types("Other");
    test::Clicca(Trova<QWidget>("lblAggiungi"));
  }
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Name of the playlist");
  EXPECT_EQ(box.Testo, "There is a playlist of this name already: give another name.");
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(box.TestoOk, "OK");
  EXPECT_THAT(Heads(), ElementsAre("1 Music", "2 Other"));
  EXPECT_EQ(Selettore().currentText(), "Other");
}

TEST_F(NamedLists, TheSecondNameIsNotLookedUp) {
  Nome("Music", 1);
  Apri();
  {
    const auto first = Types("music");
    const auto second = Types("Music");
    Clic("picAggiungiPL");
  }
  b.Finestre.Prossimo();
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_THAT(Heads(), ElementsAre("1 Music", "2 Music"));
  EXPECT_THAT(Entries(), ElementsAre("Music", "Music"));
}

TEST_F(NamedLists, AnApostropheFailsTheLookUp) {
  Nome("It''s", 1);
  Apri();
  Add("It's");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_THAT(Heads(), ElementsAre("1 It's", "2 It's"));
}

TEST_F(NamedLists, ACancelAddsNothing) {
  Nome("Music", 1);
  Apri();
  {
    const auto cancel = Cancels();
    Clic("picAggiungiPL");
  }
  {
    const auto first = Types("Music");
    const auto cancel = Cancels();
    Clic("picAggiungiPL");
  }
  b.Finestre.Prossimo();
  {
    const Pilota<frmPlaylistName> close([](frmPlaylistName& box) {
      test::Scrivi(box, "Late");
      box.close();
    });
    Clic("picAggiungiPL");
  }
  EXPECT_THAT(Heads(), ElementsAre("1 Music"));
  EXPECT_EQ(Testo("lblModifiche"), "");
  EXPECT_EQ(b.C.Stato.NomePlaylistScelta, "");
}

TEST_F(NamedLists, ARemovedOneIsAskedAboutByItsName) {
  Nome("Ape", 1);
  Nome("Bee", 2);
  Brano(1, 1, "a.mp3");
  Brano(2, 1, "b.mp3");
  Apri();
  ASSERT_EQ(Selettore().currentText(), "Bee");
  b.Finestre.Rispondi(Risposta::No);
  Clic("picRimuoviPL");
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Remove playlist");
  EXPECT_EQ(box.Testo, "Remove the list now shown with its tracks, labelled 'Bee'?");
  EXPECT_THAT(Entries(), ElementsAre("Ape", "Bee"));
  b.Finestre.Rispondi(Risposta::Si);
  test::Clicca(Trova<QWidget>("lblRimuovi"));
  b.Finestre.Prossimo();
  EXPECT_THAT(Heads(), ElementsAre("1 Ape"));
  EXPECT_THAT(Tutti("tmpPlaylist.mdb"), ElementsAre("1-1 a.mp3"));
  EXPECT_EQ(Selettore().currentText(), "Ape");
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3"));
}

TEST_F(NamedLists, WhatIsRemovedGoesByThePlaceNotByTheName) {
  Nome("Bee", 1);
  Nome("Ape", 2);
  Brano(1, 1, "bee.mp3");
  Brano(2, 1, "ape.mp3");
  Apri();
  test::ScegliColMouse(Selettore(), 0);
  b.Finestre.Rispondi(Risposta::Si);
  Clic("picRimuoviPL");
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "Remove the list now shown with its tracks, labelled 'Ape'?");
  EXPECT_THAT(Heads(), ElementsAre("2 Ape")) << "list 1 has gone, the one of the first place";
  EXPECT_THAT(Tutti("tmpPlaylist.mdb"), ElementsAre("2-1 ape.mp3"));
}

TEST_F(NamedLists, TheLastOneLeavesAnEmptyScreen) {
  Nome("Ape", 1);
  Brano(1, 1, "a.mp3");
  Apri();
  b.Finestre.Rispondi(Risposta::Si);
  Clic("picRimuoviPL");
  b.Finestre.Prossimo();
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 0");
  Clic("picRimuoviPL");
  EXPECT_TRUE(b.Finestre.Silenzio()) << "there is none to ask about";
  Add("New");
  EXPECT_THAT(Heads(), ElementsAre("1 New"));
}

TEST_F(NamedLists, ANumberComesAgainOnlyIfItWasTheHighest) {
  Nome("A", 1);
  Nome("B", 2);
  Nome("C", 3);
  Apri();
  b.Finestre.Rispondi(Risposta::Si);
  Clic("picRimuoviPL");  // the second place, number 2
  b.Finestre.Prossimo();
  Add("D");
  EXPECT_THAT(Heads(), ElementsAre("1 A", "3 C", "4 D"));
}

TEST_F(NamedLists, ACloseWhileTheDialogIsUpComesAfterIt) {
  Apri();
  {
    const Pilota<frmPlaylistName> busy([this](frmPlaylistName& box) {
      form->close();
      EXPECT_TRUE(form->isVisible());
      test::Scrivi(box, "One");
      test::Clicca(*box.picOk);
    });
    Clic("picAggiungiPL");
  }
  EXPECT_TRUE(SiChiude());
  EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
  EXPECT_THAT(Testate("playlist.mdb"), IsEmpty());
}

TEST_F(NamedLists, TheDialogOnlyComesOnceHoweverOftenItIsAskedFor) {
  Apri();
  const Pilota<frmPlaylistName> once([this](frmPlaylistName& box) {
    EXPECT_TRUE(box.isModal());
    Clic("picAggiungiPL");  // a window that waits for it takes no click
    test::Scrivi(box, "One");
    test::Clicca(*box.picOk);
  });
  Clic("picAggiungiPL");
  EXPECT_THAT(Heads(), ElementsAre("1 One"));
}

}  // namespace
}  // namespace kvr5
