#include <QFileDialog>
#include <QTest>

#include "playlists/screens/BancoEditor.h"

// Lists of other players brought in through the chooser, and the report shown.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Importing : public test::BancoEditor {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    Musica({"a.mp3", "b.mp3"});
    Apri();
  }
  /// Writes a list and has the user choose it.
  void Import(const std::string& lines) {
    b.Cartella.Write("lists/list.m3u", lines);
    b.Finestre.ScegliFile(b.Percorso("lists\\list.m3u"));
    Clic("picImporta");
  }
};

TEST_F(Importing, AsksForAListByItsTitleAndKinds) {
  b.Finestre.ScegliFile("");
  Clic("picImporta");
  EXPECT_EQ(b.Finestre.Sfogliate.back().Titolo, "Choose the list to import");
  ASSERT_THAT(b.Finestre.Filtri, SizeIs(1));
  EXPECT_EQ(b.Finestre.Filtri[0].Testo, "File TXT,M3U (*.txt,*.m3u)");
  EXPECT_EQ(b.Finestre.Filtri[0].Modelli, "*.txt;*.m3u");
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Testo("lblModifiche"), "");
}

TEST_F(Importing, AddsTheFilesThatThePlayerTakes) {
  b.Cartella.Write("music/bad.mp3", "no music");
  Import("#EXTM3U\r\n#EXTINF:123,Artist - Title\r\n" + Host("b.mp3") + "\r\n" + Music() +
         "a.mp3\r\n" + Host("bad.mp3") + "\r\n" + Host("gone.mp3") + "\r\n\r\n" + Host("b.mp3"));
  EXPECT_THAT(Griglia(), ElementsAre("1 b.mp3", "2 a.mp3", "3 b.mp3"));
  EXPECT_EQ(Testo("lblPlaylistFiles"), "Playlist-tracks: 3");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_TRUE(SiVede("grdPlaylist"));
  EXPECT_EQ(Cella(0, ModelloBrani::Nome, Qt::ToolTipRole).toStdString(), Host("b.mp3"));
}

TEST_F(Importing, ByTheButtonsLabelDoesTheSame) {
  b.Finestre.ScegliFile("");
  test::Clicca(Trova<QWidget>("lblImporta"));
  EXPECT_THAT(b.Finestre.Sfogliate, SizeIs(1));
}

TEST_F(Importing, OfAListWithoutAFileChangesNothing) {
  Import("nothing\r\n");
  Import("");
  b.Finestre.ScegliFile(b.Percorso("lists\\gone.m3u"));
  Clic("picImporta");
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Importing, ToAFullListIsToldBeforeTheChooser) {
  Dimentica();
  Brani(1, 500);
  Apri();
  Clic("picImporta");
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Testo, "This playlist is full; its tracks stay");
  EXPECT_EQ(box.Titolo, "Limit: 500 tracks");
  EXPECT_FALSE(box.SiNo);
  EXPECT_EQ(box.Segno, Icona::Informazione);
  EXPECT_THAT(b.Finestre.Sfogliate, IsEmpty());
}

TEST_F(Importing, StopsWhereTheListIsFull) {
  Dimentica();
  Brani(1, 499);
  Apri();
  Import(Host("a.mp3") + "\n" + Host("b.mp3") + "\n");
  b.Finestre.Prossimo();
  EXPECT_EQ(Griglia().size(), 500U);
  EXPECT_EQ(Griglia().back(), "500 a.mp3");
  EXPECT_EQ(Corrente(), 499);
}

TEST_F(Importing, WithoutANamedListDoesNothing) {
  Dimentica();
  Progetto(3, 9);
  Apri();
  Clic("picImporta");
  EXPECT_THAT(b.Finestre.Sfogliate, IsEmpty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Importing, ASaveAmidItComesAtItsEnd) {
  std::string lines;
  for (int i = 0; i < 100; ++i) lines += Host("a.mp3") + "\r\n";
  b.Finestre.Rispondi(Risposta::No);
  const test::Frattempo save([this] { return InLista() >= 3; },
                             [this] {
                               EXPECT_FALSE(SiVede("grdPlaylist"));
                               EXPECT_TRUE(SiVede("lblAttendere"));
                               Clic("picSave");
                             });
  Import(lines);
  EXPECT_TRUE(SiChiude());
  b.Finestre.Prossimo();
  EXPECT_THAT(Tutti("playlist.mdb"), SizeIs(100));
}

TEST_F(Importing, AHugeUnfitListEndsByItself) {
  std::string lines(1 << 20, 'x');
  lines += std::string("\0\0\r\n", 4) + "/dev/zero\r\n..\r\n" + Host("a.mp3");
  Import(lines);
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3"));
}

class ImportingByTheWindow : public test::BancoEditor {
 protected:
  ImportingByTheWindow() : BancoEditor(test::Boxes::Veri) {}
};

TEST_F(ImportingByTheWindow, OpensTheChooserInTheFolderOfThePane) {
  Progetto(4, 5);
  Musica({"a.mp3"});
  b.Cartella.Write("music/list.txt", Host("a.mp3") + "\r\n");
  Apri();
  const test::Pilota<QFileDialog> choose([this](QFileDialog& chooser) {
    EXPECT_EQ(chooser.windowTitle(), "Choose the list to import");
    EXPECT_EQ(chooser.directory().path().toStdString(), (b.Cartella.Host() / "music").string());
    EXPECT_THAT(chooser.nameFilters().join("").toStdString(), testing::HasSubstr("*.txt *.m3u"));
    test::ScegliCartella(chooser, Host("list.txt"));
  });
  Clic("picImporta");
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3"));
}

TEST_F(Importing, OfTheListsThatASaveWroteBringsTheTracksBack) {
  Clic("cmdAggiungiTuttiFiles");
  b.Finestre.Rispondi(Risposta::No);
  Clic("picSave");
  ASSERT_TRUE(SiChiude());
  b.Finestre.Prossimo();
  Dimentica();
  Apri();
  test::ScegliColMouse(Selettore(), 1);
  b.Finestre.ScegliFile(b.Percorso("program\\Projects\\Hall\\1.m3u"));
  Clic("picImporta");
  EXPECT_THAT(Griglia(), IsEmpty()) << "names for the card lead to no file";
  b.Finestre.ScegliFile(b.Percorso("program\\Projects\\Hall\\1_LOCAL_.m3u"));
  Clic("picImporta");
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3", "b.mp3"));
}

class Reporting : public test::BancoEditor {
 protected:
  std::string Page() const { return b.Percorso("program\\Projects\\Hall\\Playlist.htm"); }
};

TEST_F(Reporting, WritesThePageOfTheCopyAndOpensIt) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  Brano(2, 1, "b.mp3");
  Musica({"c.mp3"});
  Apri();
  DoppioFile("c.mp3");
  Clic("picReport");
  EXPECT_THAT(b.Documenti.Aperti, ElementsAre(Page()));
  const std::string page = Leggi("Playlist.htm");
  for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
    EXPECT_THAT(page, testing::HasSubstr(name)) << "also what isn't saved";
  }
  EXPECT_TRUE(form->isVisible());
  EXPECT_FALSE(test::PuntatoreOccupato());
  EXPECT_THAT(Nomi(), ElementsAre("a.mp3", "c.mp3"));
  test::Clicca(Trova<QWidget>("lblReport"));
  EXPECT_THAT(b.Documenti.Aperti, ElementsAre(Page(), Page()));
}

TEST_F(Reporting, WithoutARowOpensNothing) {
  Progetto(4, 5);
  Apri();
  Clic("picReport");
  test::Clicca(Trova<QWidget>("lblReport"));
  EXPECT_THAT(b.Documenti.Aperti, IsEmpty());
  EXPECT_FALSE(Ha("Playlist.htm"));
}

TEST_F(Reporting, OfTheOneSetCoversThatList) {
  Progetto(2, 0);
  Brano(1, 1, "a.mp3");
  Brano(2, 1, "b.mp3");
  Apri();
  Clic("picReport");
  EXPECT_THAT(Leggi("Playlist.htm"), testing::HasSubstr("a.mp3"));
  EXPECT_THAT(Leggi("Playlist.htm"), testing::Not(testing::HasSubstr("b.mp3")));
}

}  // namespace
}  // namespace kvr5
