#include <QLabel>
#include <QTest>

#include "core/screens/frmSiNo.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "playlists/screens/BancoEditor.h"
#include "projects/CartellaProgetto.h"
#include "support/RigheDelDatabase.h"

// A save from its button to the hub, with the real question.

namespace kvr5 {
namespace {

using test::Pilota;
using testing::ElementsAre;
using testing::IsEmpty;

class SavingEditor : public test::BancoEditor {
 protected:
  SavingEditor() : BancoEditor(test::Boxes::Veri) {}
  /// Answers the question by one of its buttons; what it said.
  Pilota<frmSiNo> Answer(const char* button) {
    return Pilota<frmSiNo>([this, button](frmSiNo& box) {
      title_ = box.windowTitle().toStdString();
      words_ = box.lblNota->text().toStdString();
      EXPECT_FALSE(SiVede("grdPlaylist")) << "the wait display stays up";
      EXPECT_FALSE(progresso.Visibile());
      EXPECT_TRUE(form->isVisible());
      test::Clicca(box, button);
    });
  }
  void ExpectGone() {
    EXPECT_TRUE(SiChiude());
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
    EXPECT_FALSE(progresso.Visibile());
    EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
  }
  /// A column of all tracks of playlist.mdb.
  Righe Column(const char* column) { return ColonnaDeiBrani(b, column); }
  std::string Hall() const { return b.Percorso("program\\Projects\\Hall") + "\\"; }

  std::string title_;
  std::string words_;
};

TEST_F(SavingEditor, WithANoLeavesTheFilesWhereTheyAre) {
  Progetto(4, 5);
  Musica({"a.mp3", "b.mp3"});
  Apri();
  DoppioFile("b.mp3");
  DoppioFile("a.mp3");
  DoppioFile("b.mp3");
  {
    const auto no = Answer("cmdNo");
    Clic("picSave");
  }
  ExpectGone();
  EXPECT_EQ(title_, "MP3 files of the playlists");
  EXPECT_THAT(words_, testing::StartsWith("Copy the MP3 files into the project folder too?"));
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 b.mp3", "1-2 a.mp3", "1-3 b.mp3"));
  EXPECT_THAT(Column("Alias"), ElementsAre("P01-001.mp3", "P01-002.mp3", "P01-001.mp3"));
  EXPECT_THAT(Column("FilePath"), testing::Each(Music()));
  EXPECT_EQ(Leggi("1.m3u"), "P01-001\r\nP01-002\r\nP01-001\r\n");
  EXPECT_FALSE(Ha("a.mp3"));
  EXPECT_TRUE(Ha("Playlist.htm"));
  EXPECT_THAT(b.Documenti.Aperti, IsEmpty()) << "the page is written, not shown";
}

TEST_F(SavingEditor, WithAYesBringsTheFilesIn) {
  Progetto(2, 0);
  Musica({"a.mp3", "b.mp3"});
  Apri();
  Clic("cmdAggiungiTuttiFiles");
  {
    const auto yes = Answer("cmdSi");
    test::Clicca(Trova<QWidget>("lblSave"));
  }
  ExpectGone();
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/a.mp3", "music/a.mp3"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/b.mp3", "music/b.mp3"));
  EXPECT_THAT(Column("FilePath"), testing::Each(Hall()));
  EXPECT_EQ(Leggi("PLAYLIST.TXT"), "P01-001\r\nP01-002\r\n");
  EXPECT_EQ(Leggi("PLAYLIST.M3U"), Leggi("PLAYLIST.TXT"));
  EXPECT_EQ(Leggi("PLAYLIST_LOCAL_.M3U"), "a.mp3\r\nb.mp3\r\n");
  EXPECT_THAT(
      progresso.Seen,
      ElementsAre("Numbering the tracks 0/4", "Numbering the tracks 1/4", "Writing the report 1/4",
                  "Writing the report 2/4", "Naming the files for the card 2/4",
                  "Naming the files for the card 3/4", "Writing the files of the project 0/2",
                  "Writing the files of the project 1/2", "Writing the files of the project 2/2"));
}

TEST_F(SavingEditor, AQuestionThatIsClosedIsANo) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  Apri();
  {
    const Pilota<frmSiNo> close([](frmSiNo& box) { test::Tasto(box, Qt::Key_Escape); });
    Clic("picSave");
  }
  ExpectGone();
  EXPECT_FALSE(Ha("a.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre(Music()));
  EXPECT_EQ(Leggi("1.m3u"), "P01-001\r\n");
}

TEST_F(SavingEditor, CopiesOfACardGetTheirNamesByTheButtonAndGoWithTheSave) {
  Progetto(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", "D:\\Old\\", "P01-001.mp3");
  b.Cartella.Write("program/Projects/Hall/P01-001.mp3", "sound");
  Apri();
  ASSERT_TRUE(form->Brani->lblCopie->isVisible());
  Clic("picNomiCopie");
  EXPECT_FALSE(form->Brani->lblCopie->isVisible());
  EXPECT_FALSE(form->Brani->picNomiCopie->isVisible());
  EXPECT_EQ(form->lblModifiche->text(), "1 change unsaved");
  EXPECT_TRUE(Ha("P01-001.mp3")) << "the rows need it until they are saved";
  {
    const Pilota<frmSiNo> no([](frmSiNo& box) { test::Tasto(box, Qt::Key_Escape); });
    Clic("picSave");
  }
  ExpectGone();
  EXPECT_FALSE(Ha("P01-001.mp3"));
  EXPECT_EQ(Leggi("a.mp3"), "sound");
}

TEST_F(SavingEditor, WithoutCopiesOfACardThereIsNoSuchButton) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  Apri();
  EXPECT_FALSE(form->Brani->lblCopie->isVisible());
  EXPECT_FALSE(form->Brani->picNomiCopie->isVisible());
}

TEST_F(SavingEditor, WithoutATrackAsksNothing) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  b.Cartella.Write("program/Projects/Hall/1.m3u", "old");
  Apri();
  Clic("cmdRimuoviFile");
  Clic("picSave");
  ExpectGone();
  EXPECT_FALSE(Ha("1.m3u"));
  EXPECT_THAT(Tutti("playlist.mdb"), IsEmpty());
}

TEST_F(SavingEditor, OfADatabaseThatWasNeverThereLeavesNone) {
  Progetto(4, 5);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/playlist.mdb");
  Apri();
  Clic("picSave");
  ExpectGone();
  EXPECT_FALSE(Ha("playlist.mdb"));
}

TEST_F(SavingEditor, ByTheKeyboardDoesTheSame) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  Apri();
  Trova<QWidget>("picSave").setFocus();
  {
    const auto no = Answer("cmdNo");
    Premi(Qt::Key_Space);
  }
  ExpectGone();
}

TEST_F(SavingEditor, IsTheEndOfTheEditingWhateverIsPressedMeanwhile) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  Brano(1, 2, "b.mp3");
  Brano(1, 3, "c.mp3");
  Apri();
  {
    const Pilota<frmSiNo> busy([this](frmSiNo& box) {
      // What was on its way before the question stood there.
      for (const char* name : {"cmdRimuoviFile", "cmdAggiungiTuttiFiles", "cmdRandom", "picSave",
                               "picImporta", "picReport", "picAnnulla"}) {
        Trova<QAbstractButton>(name).click();
      }
      Lascia(Trova<QWidget>("fraBrani"), {Host("a.mp3")});
      test::Clicca(*box.cmdNo);
    });
    Clic("picSave");
  }
  ExpectGone();
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 a.mp3", "1-2 b.mp3", "1-3 c.mp3"));
}

TEST_F(SavingEditor, OfNamedListsWritesAListPerName) {
  Progetto(3, 9);
  Nome("Morning", 1);
  Nome("Noon", 2);
  Musica({"a.mp3"});
  b.ScriviMp3("music/SONG.MP3");
  Apri();
  DoppioFile("a.mp3");  // it came up on the second
  test::ScegliColMouse(Selettore(), 0);
  DoppioFile("SONG.MP3");
  {
    const auto no = Answer("cmdNo");
    Clic("picSave");
  }
  ExpectGone();
  EXPECT_EQ(Leggi("Morning.m3u"), "SONG.MP3\r\n");
  EXPECT_EQ(Leggi("Noon.m3u"), "a\r\n");
  EXPECT_THAT(Column("Alias"), ElementsAre("SONG.MP3", "a.mp3"));
}

TEST_F(SavingEditor, CanBeOpenedAgainAndHoldsTheSame) {
  Progetto(3, 8);
  Musica({"a.mp3"});
  Apri();
  DoppioFile("a.mp3");
  {
    const auto no = Answer("cmdNo");
    Clic("picSave");
  }
  ExpectGone();
  EXPECT_EQ(Leggi("0.m3u"), "P00-001\r\n");
  Dimentica();
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3"));
  EXPECT_EQ(Testo("lblModifiche"), "");
}

}  // namespace
}  // namespace kvr5
