#include <QCheckBox>
#include <QTest>

#include "playlists/screens/BancoEditor.h"

// A whole folder added: the wait display, and what a user does meanwhile.

namespace kvr5 {
namespace {

using test::Frattempo;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int kFiles = 40;
const QColor kRed(255, 0, 0);
const QColor kGreen(0, 255, 0);

class AddingAll : public test::BancoEditor {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    Musica(kFiles);
    Apri();
  }
  void AddAll() { Clic("cmdAggiungiTuttiFiles"); }
  /// Once a few files are in.
  std::function<bool()> Begun() {
    return [this] { return InLista() >= 3; };
  }
  QColor Words() { return form->Brani->lblAttendere->palette().color(QPalette::WindowText); }
  static std::string Row(int list, int pos, int file) {
    return std::to_string(list) + "-" + std::to_string(pos) + " " +
           std::to_string(1000 + file).substr(1) + ".mp3";
  }
};

TEST_F(AddingAll, TakesWhatThePlayerTakesInTheOrderOfThePane) {
  b.Cartella.Write("music/003.mp3", "no music");
  AddAll();
  EXPECT_THAT(Griglia(), SizeIs(kFiles - 1));
  EXPECT_EQ(Griglia().front(), "1 001.mp3");
  EXPECT_EQ(Griglia()[2], "3 004.mp3");
  EXPECT_EQ(Griglia().back(), "39 040.mp3");
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 39");
  EXPECT_EQ(Testo("lblModifiche"), "39 changes unsaved");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_FALSE(SiVede("lblEsito")) << "nothing is said of the one";
}

TEST_F(AddingAll, HidesTheGridBehindTheWaitDisplay) {
  EXPECT_EQ(Words(), kRed);
  const Frattempo look(Begun(), [this] {
    EXPECT_FALSE(SiVede("grdPlaylist"));
    EXPECT_TRUE(SiVede("lblAttendere"));
    EXPECT_TRUE(form->Brani->tmrAttendere.isActive());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Words() == kGreen; }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Words() == kRed; }));
  });
  AddAll();
  EXPECT_TRUE(SiVede("grdPlaylist"));
  EXPECT_FALSE(SiVede("lblAttendere"));
  EXPECT_FALSE(form->Brani->tmrAttendere.isActive());
}

TEST_F(AddingAll, OfAnEmptyFolderDoesNothing) {
  std::filesystem::create_directories(b.Cartella.Host() / "empty");
  form->fraFile->DirDirectoryMp3->ImpostaPercorso(b.Percorso("empty"));
  AddAll();
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_TRUE(SiVede("grdPlaylist"));
}

TEST_F(AddingAll, StopsAtTheLimitWithTheTextsTheOtherWayRound) {
  Dimentica();
  Brani(1, 490);
  Apri();
  b.Finestre.SuBox = [this](const test::BoxVisto&) {
    EXPECT_FALSE(SiVede("grdPlaylist")) << "the wait display stays while it is told";
  };
  AddAll();
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Testo, "This playlist is full; its tracks stay");
  EXPECT_EQ(box.Titolo, "Limit: 500 tracks");
  EXPECT_FALSE(box.SiNo);
  EXPECT_EQ(box.Segno, Icona::Informazione);
  EXPECT_EQ(Griglia().size(), 500U);
  EXPECT_EQ(Griglia().back(), "500 010.mp3");
  EXPECT_EQ(Corrente(), 499);
  EXPECT_TRUE(SiVede("grdPlaylist"));
}

TEST_F(AddingAll, WithoutANamedListGoesToNumberZero) {
  Dimentica();
  Progetto(3, 9);
  Apri();
  AddAll();
  EXPECT_EQ(Tutti("tmpPlaylist.mdb").front(), Row(0, 1, 1));
  EXPECT_THAT(Griglia(), SizeIs(kFiles));
}

TEST_F(AddingAll, ASaveAmidItComesAtItsEndAndHoldsAllRows) {
  b.Finestre.Rispondi(Risposta::No);
  std::size_t asked = 99;
  b.Finestre.SuBox = [&](const test::BoxVisto&) { asked = Tutti("tmpPlaylist.mdb").size(); };
  const Frattempo save(Begun(), [this] {
    Clic("picSave");
    EXPECT_TRUE(form->isVisible());
    EXPECT_THAT(progresso.Seen, IsEmpty()) << "not yet";
    EXPECT_LT(InLista(), kFiles);
  });
  AddAll();
  EXPECT_TRUE(SiChiude());
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "MP3 files of the playlists");
  EXPECT_EQ(asked, static_cast<std::size_t>(kFiles));
  EXPECT_THAT(Tutti("playlist.mdb"), SizeIs(kFiles));
  EXPECT_EQ(Leggi("1.m3u").size(), kFiles * std::string("P01-001\r\n").size());
  EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
  EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
}

TEST_F(AddingAll, ASecondSaveAmidItIsPassedOver) {
  b.Finestre.Rispondi(Risposta::No);
  const Frattempo save(Begun(), [this] {
    Clic("picSave");
    Clic("picSave");
    test::Clicca(Trova<QWidget>("lblSave"));
  });
  AddAll();
  EXPECT_TRUE(SiChiude());
  b.Finestre.Prossimo();
  EXPECT_TRUE(b.Finestre.Silenzio()) << "asked once";
  EXPECT_THAT(b.Schermi.Mostrate, SizeIs(1));
}

TEST_F(AddingAll, OnceASaveWasAskedForNoOtherCommandIsDone) {
  b.Finestre.Rispondi(Risposta::No);
  const Frattempo save(Begun(), [this] {
    Clic("picSave");
    for (const char* name : {"cmdRimuoviTuttiFile", "cmdRandom", "cmdRimuoviFile", "picImporta",
                             "cmdAggiungiTuttiFiles", "picReport"}) {
      Clic(name);
    }
    Selettore().setFocus();
    Premi(Qt::Key_Down);
  });
  AddAll();
  EXPECT_TRUE(SiChiude());
  b.Finestre.Prossimo();
  EXPECT_TRUE(b.Finestre.Silenzio());
  const Righe all = Tutti("playlist.mdb");
  ASSERT_THAT(all, SizeIs(kFiles));
  for (int i = 1; i <= kFiles; ++i) EXPECT_EQ(all[static_cast<std::size_t>(i - 1)], Row(1, i, i));
  EXPECT_THAT(b.Documenti.Aperti, IsEmpty());
}

TEST_F(AddingAll, ACloseAmidItComesAtItsEndAndDropsAllRows) {
  const std::string before = Leggi("playlist.mdb");
  const Frattempo leave(Begun(), [this] {
    Clic("picAnnulla");
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(Ha("tmpPlaylist.mdb"));
  });
  AddAll();
  EXPECT_TRUE(SiChiude());
  EXPECT_TRUE(Leggi("playlist.mdb") == before);
  EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
  EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
}

TEST_F(AddingAll, TheWindowsOwnButtonAmidItDoesTheSame) {
  const std::string before = Leggi("playlist.mdb");
  const Frattempo leave(Begun(), [this] { form->close(); });
  AddAll();
  EXPECT_TRUE(SiChiude());
  EXPECT_TRUE(Leggi("playlist.mdb") == before);
  EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
}

TEST_F(AddingAll, ASaveAfterACloseWasAskedForSavesNothing) {
  const std::string before = Leggi("playlist.mdb");
  const Frattempo leave(Begun(), [this] {
    Clic("picAnnulla");
    Clic("picSave");
  });
  AddAll();
  EXPECT_TRUE(SiChiude());
  EXPECT_TRUE(Leggi("playlist.mdb") == before);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(AddingAll, AnotherListAmidItGetsTheRest) {
  Dimentica();
  Brano(1, 1, "old.mp3");
  Brano(2, 1, "other.mp3");
  std::filesystem::remove(Host("old.mp3"));
  std::filesystem::remove(Host("other.mp3"));
  Apri();
  int at = 0;
  const Frattempo choose(Begun(), [&] {
    at = InLista() - 1;
    Selettore().setFocus();
    Premi(Qt::Key_Down);
    EXPECT_EQ(form->Editor().PlaylistCorrente(), 2);
    EXPECT_TRUE(SiVede("grdPlaylist")) << "to read a list ends the wait display";
    EXPECT_THAT(Griglia(), ElementsAre("1 other.mp3")) << "and it shows that list";
  });
  AddAll();
  ASSERT_GE(at, 2);
  Righe expected{"1-1 old.mp3"};
  for (int i = 1; i <= at; ++i) expected.push_back(Row(1, i + 1, i));
  expected.push_back("2-1 other.mp3");
  for (int i = at + 1; i <= kFiles; ++i) expected.push_back(Row(2, i - at + 1, i));
  EXPECT_EQ(Tutti("tmpPlaylist.mdb"), expected);
  EXPECT_THAT(Griglia(), SizeIs(kFiles - at + 1));
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: " + std::to_string(kFiles - at + 1));
}

TEST_F(AddingAll, OnceACloseWasAskedForTheSelectorStaysWhereItIs) {
  Dimentica();
  Progetto(3, 7);
  Apri();
  const Frattempo leave(Begun(), [this] {
    Clic("picAnnulla");
    auto& box = Trova<QCheckBox>("chkIn_2");
    test::Clicca(box);
    EXPECT_FALSE(box.isChecked());
    Selettore().setFocus();
    Premi(Qt::Key_Down);
    EXPECT_EQ(Selettore().currentIndex(), 0);
    EXPECT_EQ(form->Editor().PlaylistCorrente(), 1);
  });
  AddAll();
  EXPECT_TRUE(SiChiude());
}

TEST_F(AddingAll, ASecondRunAmidItAddsItsOwn) {
  const Frattempo again(Begun(), [this] { AddAll(); });
  AddAll();
  EXPECT_THAT(Griglia(), SizeIs(2 * kFiles));
  EXPECT_TRUE(SiVede("grdPlaylist"));
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: " + std::to_string(2 * kFiles));
}

TEST_F(AddingAll, AShuffleAmidItLosesNoRow) {
  const Frattempo shuffle(Begun(), [this] { Clic("cmdRandom"); });
  AddAll();
  Righe names = Nomi();
  std::ranges::sort(names);
  ASSERT_THAT(names, SizeIs(kFiles));
  EXPECT_EQ(std::ranges::unique(names).size(), 0U);
}

TEST_F(AddingAll, AnEmptyingAmidItKeepsWhatComesAfterwards) {
  b.Finestre.Rispondi(Risposta::Si);
  const Frattempo clear(Begun(), [this] { Clic("cmdRimuoviTuttiFile"); });
  AddAll();
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Empty the playlist");
  EXPECT_LT(Griglia().size(), static_cast<std::size_t>(kFiles));
  EXPECT_EQ(Griglia().front().substr(0, 2), "1 ");
  EXPECT_EQ(Nomi().back(), "040.mp3");
}

TEST_F(AddingAll, AFolderThatVanishesAmidItEndsItQuietly) {
  const Frattempo gone(Begun(),
                       [this] { std::filesystem::remove_all(b.Cartella.Host() / "music"); });
  AddAll();
  EXPECT_GE(Griglia().size(), 3U);
  EXPECT_LT(Griglia().size(), static_cast<std::size_t>(kFiles));
  EXPECT_TRUE(SiVede("grdPlaylist"));
  EXPECT_TRUE(b.Finestre.Silenzio());
  AddAll();
  Attiva();
  EXPECT_THAT(Pannello(), IsEmpty());
  EXPECT_TRUE(Contato());
  EXPECT_THAT(Testo("lblTotali"), testing::EndsWith(" missing"));
}

TEST_F(AddingAll, TheClockGoesOnAmidItAndThePanelToo) {
  const Frattempo pick(Begun(), [this] {
    ClicFile("002.mp3");
    EXPECT_TRUE(QTest::qWaitFor([this] { return SiVede("cmdAggiungiFile"); }));
  });
  AddAll();
  EXPECT_EQ(Testo("lblVersioneMpeg"), "MPEG 1 Layer 3");
  EXPECT_THAT(Griglia(), SizeIs(kFiles));
}

}  // namespace
}  // namespace kvr5
