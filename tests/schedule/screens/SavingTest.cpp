#include <QLabel>
#include <QTest>

#include "core/screens/frmSiNo.h"
#include "schedule/screens/BancoPalinsestoSchermo.h"

// A save from its button to the hub, with the real question.

namespace kvr5 {
namespace {

using test::Pilota;
using testing::ElementsAre;
using testing::IsEmpty;

class SavingSchedule : public test::BancoPalinsestoSchermo {
 protected:
  SavingSchedule() : BancoPalinsestoSchermo(test::Boxes::Veri) {}
  /// Answers the question by one of its buttons; what it said.
  Pilota<frmSiNo> Answer(const char* button) {
    return Pilota<frmSiNo>([this, button](frmSiNo& box) {
      title_ = box.windowTitle().toStdString();
      words_ = box.lblNota->text().toStdString();
      EXPECT_FALSE(progresso.Visibile());
      EXPECT_TRUE(form->isVisible());
      test::Clicca(box, button);
    });
  }
  void Save(const char* button) {
    const auto answer = Answer(button);
    Clic("picSave");
  }
  void ExpectGone() {
    EXPECT_TRUE(SiChiude());
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_FALSE(Ha("tmpScheduler.mdb"));
    EXPECT_FALSE(Ha("tmpScheduler.mdb-journal"));
    EXPECT_FALSE(progresso.Visibile());
    EXPECT_FALSE(test::PuntatoreOccupato());
    EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
  }
  std::string Hall() const { return b.Percorso("program\\Projects\\Hall") + "\\"; }

  std::string title_;
  std::string words_;
};

TEST_F(SavingSchedule, WithANoLeavesTheFilesWhereTheyAre) {
  Progetto(3, 2);
  Musica({"a.mp3", "b.mp3"});
  Apri();
  Clic("picAggiungiSegmento");
  DigitaOrario("08", "30");
  DoppioFile("b.mp3");
  DoppioFile("a.mp3");
  Clic("picAggiungiSegmento");
  DigitaOrario("07", "00");
  DoppioFile("b.mp3");
  Save("cmdNo");
  ExpectGone();
  EXPECT_EQ(title_, Parola("0140035"));
  EXPECT_EQ(words_, Parola("0140036") + "\n" + Parola("0140037"));
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("0 08:30", "0 07:00"));
  EXPECT_THAT(Tutti("scheduler.mdb"), ElementsAre("0/1/1 b.mp3", "0/1/2 a.mp3", "0/2/1 b.mp3"));
  EXPECT_THAT(Colonna("Alias"), ElementsAre("F0-0011.mp3", "F0-0012.mp3", "F0-0021.mp3"));
  EXPECT_THAT(Colonna("FilePath"), testing::Each(Music()));
  EXPECT_EQ(Leggi("PALIN.TXT"),
            "08:30\tF0-0011\t\tF0-0012\t\r\n"
            "07:00\tF0-0021\t\r\n")
      << "in the order of their making";
  EXPECT_FALSE(Ha("F0-0011.mp3"));
  EXPECT_TRUE(Ha("Scheduler.htm"));
  EXPECT_THAT(b.Documenti.Aperti, IsEmpty()) << "the page is written, not shown";
}

TEST_F(SavingSchedule, WithAYesBringsTheFilesInUnderTheirNamesOnTheCard) {
  Progetto(3, 3);
  Segmento(2, "08.30", {"a.mp3"});
  Segmento(2, "09.30", {"b.mp3", "c.mp3"});
  Segmento(7, "10.00", {"a.mp3"});
  Segmento(4, "11.00");
  Apri();
  {
    const auto yes = Answer("cmdSi");
    test::Clicca(Trova<QWidget>("lblSave"));
  }
  ExpectGone();
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F2-0011.mp3", "music/a.mp3"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F2-0021.mp3", "music/b.mp3"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/F2-0022.mp3", "music/c.mp3"));
  EXPECT_FALSE(Ha("F7-0011.mp3")) << "its source is in the list already";
  EXPECT_THAT(Colonna("FilePath"), testing::Each(Hall()));
  EXPECT_THAT(Colonna("FileName"), ElementsAre("a.mp3", "b.mp3", "c.mp3", "a.mp3"));
  EXPECT_EQ(Leggi("2.pal"), "08:30\tF2-0011\t\r\n09:30\tF2-0021\t\tF2-0022\t\r\n");
  EXPECT_EQ(Leggi("7.pal"), "10:00\tF7-0011\t\r\n");
  for (const char* day : {"1", "3", "4", "5", "6"}) {
    EXPECT_EQ(Leggi(std::string(day) + ".pal"), "") << day;
  }
  EXPECT_FALSE(Ha("PALIN.TXT"));
}

TEST_F(SavingSchedule, ShowsItsStepsInTheProgressWindow) {
  Progetto(4, 2);
  Segmento(0, "00.30", {"a.mp3"});
  Apri();
  Save("cmdNo");
  ExpectGone();
  EXPECT_THAT(
      progresso.Seen,
      ElementsAre("Writing the report 0/5", "Writing the report 1/5", "Numbering the spots 1/5",
                  "Numbering the spots 2/5", "Naming the spots for the card 2/5",
                  "Naming the spots for the card 3/5", "Writing the files of the schedule 3/5",
                  "Writing the files of the schedule 4/5", "Saving the schedule 4/5",
                  "Saving the schedule 5/5"));
}

TEST_F(SavingSchedule, AQuestionThatIsClosedIsANo) {
  Progetto(3, 2);
  Segmento(0, "08.30", {"a.mp3"});
  Apri();
  {
    const Pilota<frmSiNo> close([](frmSiNo& box) { test::Tasto(box, Qt::Key_Escape); });
    Clic("picSave");
  }
  ExpectGone();
  EXPECT_FALSE(Ha("F0-0011.mp3"));
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Music()));
  EXPECT_EQ(Leggi("PALIN.TXT"), "08:30\tF0-0011\t\r\n");
}

TEST_F(SavingSchedule, WithoutASpotAsksNothing) {
  Progetto(3, 2);
  Segmento(0, "08.30");
  b.Cartella.Write("program/Projects/Hall/PALIN.TXT", "old");
  Apri();
  Clic("picSave");
  ExpectGone();
  EXPECT_EQ(Leggi("PALIN.TXT"), "");
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("0 08:30"));
}

TEST_F(SavingSchedule, OfADuplicatedSegmentLeavesItsSpotsOutOfTheDays) {
  Progetto(3, 3);
  Segmento(1, "08.30", {"a.mp3"});
  Apri();
  {
    const Pilota<frmSiNo> told([](frmSiNo& box) { test::Tasto(box, Qt::Key_Return); });
    Clic("picCopiaSegmento");
  }
  Save("cmdNo");
  ExpectGone();
  EXPECT_EQ(Leggi("1.pal"), "08:30\tF1-0011\t\r\n");
  EXPECT_THAT(Tutti("scheduler.mdb"), ElementsAre("0/2/1 a.mp3", "1/1/1 a.mp3"));
}

TEST_F(SavingSchedule, ByTheKeyboardDoesTheSame) {
  Progetto(3, 2);
  Segmento(0, "08.30", {"a.mp3"});
  Apri();
  Trova<QWidget>("picSave").setFocus();
  {
    const auto no = Answer("cmdNo");
    Premi(Qt::Key_Space);
  }
  ExpectGone();
}

TEST_F(SavingSchedule, IsTheEndOfTheEditingWhateverIsPressedMeanwhile) {
  Progetto(3, 2);
  Segmento(0, "08.30", {"a.mp3", "b.mp3"});
  Segmento(0, "09.30");
  Apri();
  const Righe before = Tutti("tmpScheduler.mdb");
  {
    const Pilota<frmSiNo> busy([this](frmSiNo& box) {
      // What was on its way before the question stood there.
      for (const char* name : {"picAggiungiSegmento", "picCopiaSegmento", "picRimuoviSegmento",
                               "picAggiungiSpot_0", "picRimuoviSpot_0", "picPlay_0", "picStop_0",
                               "cmdPlayFileSx", "picDisk", "picReport", "picSave", "picAnnulla"}) {
        Trova<QAbstractButton>(name).click();
      }
      form->picDettaglio->UpDownFile[0]->SuMuovi(true);
      Grid().SuRiga(2);
      LasciaSulloSlot(0, {Host("b.mp3")});
      form->close();
      EXPECT_TRUE(form->isVisible());
      test::Clicca(*box.cmdNo);
    });
    Clic("picSave");
  }
  ExpectGone();
  EXPECT_EQ(Tutti("scheduler.mdb"), before);
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("0 08:30", "0 09:30"));
  EXPECT_EQ(Leggi("PALIN.TXT"), "08:30\tF0-0011\t\tF0-0012\t\r\n");
}

TEST_F(SavingSchedule, TwiceWithoutAChangeWritesTheSame) {
  Progetto(3, 2);
  Segmento(0, "08.30", {"a.mp3", "b.mp3"});
  Segmento(0, "07.30", {"c.mp3"});
  Apri();
  Save("cmdNo");
  ExpectGone();
  const std::string lines = Leggi("PALIN.TXT");
  const Righe names = Colonna("Alias");
  Dimentica();
  b.Schermi.Mostrate.clear();
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("07:30 c.mp3", "08:30 a.mp3 b.mp3"));
  EXPECT_EQ(Testo("lblModifiche"), "");
  Save("cmdNo");
  ExpectGone();
  EXPECT_EQ(Leggi("PALIN.TXT"), lines);
  EXPECT_EQ(Colonna("Alias"), names);
}

TEST_F(SavingSchedule, ClosesHolesThatRemovedSpotsLeft) {
  Progetto(3, 2);
  const std::int64_t id = Segmento(0, "08.30");
  Spot(0, id, 1, "a.mp3");
  Spot(0, id, 3, "b.mp3");
  Apri();
  Save("cmdNo");
  ExpectGone();
  EXPECT_THAT(Colonna("Alias"), ElementsAre("F0-0011.mp3", "F0-0012.mp3"));
}

TEST_F(SavingSchedule, SilencesWhatPlays) {
  Progetto(3, 2);
  Segmento(0, "08.30", {"a.mp3"});
  Apri();
  Clic("picPlay", 0);
  b.Suono.Comandi.clear();
  Save("cmdNo");
  ExpectGone();
  EXPECT_THAT(b.Suono.Comandi, ElementsAre("1 Stop", "1 Close", "2 Stop", "2 Close"));
}

}  // namespace
}  // namespace kvr5
