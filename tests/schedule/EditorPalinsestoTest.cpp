#include "schedule/BancoPalinsesto.h"
#include "schedule/EditorPalinsesto.h"
#include "schedule/OrarioSegmento.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ScheduleEditor = test::BancoPalinsesto;

TEST_F(ScheduleEditor, OfModeThreeComesUpOnMonday) {
  Progetto(3, 3);
  Spot(1, Segmento(1, "08.30"), 1, "mon.mp3");
  Spot(0, Segmento(0, "09.30"), 1, "one.mp3");
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("08:30:00 mon.mp3"));
  EXPECT_EQ(editor.SegmentoCorrente(), 1);
  EXPECT_EQ(Orario(), "08.30");
  EXPECT_THAT(Dettaglio(), ElementsAre("1 mon.mp3"));
}

TEST_F(ScheduleEditor, OfModeTwoComesUpWithTheOneSchedule) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 4}) {
    Progetto(type, 2);
    Segmento(1, "08.30");
    Spot(0, Segmento(0, "00.30"), 1, "one.mp3");
    Apri();
    EXPECT_THAT(Griglia(), ElementsAre("00:30:00 one.mp3")) << type;
    editor.Chiudi();
  }
}

TEST_F(ScheduleEditor, ShowsNothingBeforeTheFirstTick) {
  Progetto(3, 3);
  Segmento(1, "08.30");
  editor.Carica();
  EXPECT_FALSE(editor.rsSegmenti().IsOpen());
  EXPECT_EQ(editor.SegmentoCorrente(), 0);
  EXPECT_TRUE(editor.ConnessionePalinsesto().IsOpen());
}

TEST_F(ScheduleEditor, TheSevenDaysKeepSeparateSegments) {
  Progetto(3, 3);
  Apri();
  for (std::int16_t day = 1; day <= 7; ++day) {
    editor.ScegliGiorno(day);
    EXPECT_EQ(editor.GiornoCorrente(), day);
    EXPECT_THAT(Griglia(), IsEmpty()) << day;
    for (int i = 0; i < day; ++i) AggiungiSegmento(editor);
    Aggiungi(0, std::to_string(day) + ".mp3");
  }
  for (std::int16_t day = 1; day <= 7; ++day) {
    editor.ScegliGiorno(day);
    EXPECT_EQ(editor.QuantiSegmenti(), day);
    editor.VaiAlSegmento(day * (day + 1) / 2);  // the last one made on it
    EXPECT_THAT(Dettaglio(), ElementsAre("1 " + std::to_string(day) + ".mp3"));
  }
}

TEST_F(ScheduleEditor, AHiddenListOfDaysIsNeverObeyed) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 4}) {
    Progetto(type, 2);
    Segmento(1, "08.30");
    Apri();
    for (std::int16_t day = 0; day <= 8; ++day) editor.ScegliGiorno(day);
    EXPECT_EQ(editor.GiornoCorrente(), 0);
    EXPECT_THAT(Griglia(), IsEmpty());
    AggiungiSegmento(editor);
    Aggiungi(0, "a.mp3");
    EXPECT_THAT(Segmenti(), ElementsAre("1 1 08:30:00", "2 0 00:00:00"));
    EXPECT_THAT(Tutti(), ElementsAre("0/2/1 a.mp3"));
    editor.Chiudi();
  }
}

TEST_F(ScheduleEditor, DaysThatTheListLacksArePassedOver) {
  Progetto(3, 3);
  Apri();
  editor.ScegliGiorno(4);
  for (const std::int16_t day : std::initializer_list<std::int16_t>{0, -1, 8, 99}) {
    editor.ScegliGiorno(day);
    EXPECT_EQ(editor.GiornoCorrente(), 4) << day;
  }
}

TEST_F(ScheduleEditor, ChangingTheDaySelectsItsFirstSegment) {
  Progetto(3, 3);
  Segmento(2, "10.00");
  Segmento(2, "09.00");
  Apri();
  EXPECT_EQ(editor.SegmentoCorrente(), 0);
  editor.ScegliGiorno(2);
  EXPECT_EQ(editor.SegmentoCorrente(), 2);
  EXPECT_EQ(Orario(), "09.00");
}

TEST_F(ScheduleEditor, ADayWithoutSegmentsIsEmptyAndHasNoDetail) {
  Progetto(3, 3);
  Spot(1, Segmento(1, "08.30"), 1, "a.mp3");
  Apri();
  editor.ScegliGiorno(2);
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_FALSE(editor.Slot().picDettaglio);
  EXPECT_EQ(editor.SegmentoCorrente(), 0);
  EXPECT_EQ(editor.QuantiSpot(), 0);
  EXPECT_EQ(editor.txtOre, "");
  EXPECT_EQ(editor.txtMin, "");
}

TEST_F(ScheduleEditor, CountsTheSegmentsOfTheDay) {
  Progetto(3, 3);
  MoltiSegmenti(1, 12);
  Apri();
  EXPECT_EQ(editor.lblVociInElenco(), Parola("0140024") + " : 12");
  AggiungiSegmento(editor);
  EXPECT_EQ(editor.lblVociInElenco(), Parola("0140024") + " : 13");
  editor.ScegliGiorno(2);
  EXPECT_EQ(editor.lblVociInElenco(), Parola("0140024") + " : 0");
}

TEST_F(ScheduleEditor, HasTheseStatements) {
  Progetto(3, 3);
  Apri();
  editor.ScegliGiorno(6);
  std::string expected = "SELECT [HEAD].ID,[HEAD].[StartTime]";
  for (const std::string place : {"1", "2", "3", "4", "5", "6", "7", "8"}) {
    expected += ",(SELECT TOP 1 [Filename] FROM [List] WHERE [NPlaylist]=6 AND Pos=" + place +
                " AND IDSched=[HEAD].ID) AS Spot" + place;
  }
  expected += " FROM [HEAD] WHERE [NScheduler]=6 ORDER BY [StartTime] ASC";
  EXPECT_EQ(editor.IstruzioneSegmenti(), expected);
  EXPECT_EQ(editor.IstruzioneSpot(12),
            "SELECT * FROM [List] WHERE [NPlaylist]=6 AND IDSched=12 ORDER BY [Pos],[ID] ASC");
}

TEST_F(ScheduleEditor, GoesToASegmentOfTheDayAndToNoOther) {
  Progetto(3, 3);
  Segmento(1, "08.00");
  Segmento(1, "09.00");
  Segmento(2, "10.00");
  Apri();
  EXPECT_TRUE(editor.VaiAlSegmento(2));
  EXPECT_EQ(editor.SegmentoCorrente(), 2);
  EXPECT_FALSE(editor.VaiAlSegmento(3));
  EXPECT_FALSE(editor.VaiAlSegmento(0));
}

TEST_F(ScheduleEditor, TellsTheScreenOfTheListAndOfTheDetail) {
  Progetto(3, 3);
  Segmento(1, "08.00");
  Segmento(1, "09.00");
  Apri();
  int lists = 0;
  int details = 0;
  editor.SuElenco = [&] { ++lists; };
  editor.SuDettaglio = [&] { ++details; };
  editor.VaiAlSegmento(2);
  EXPECT_EQ(lists, 0) << "another row is no other list";
  EXPECT_EQ(details, 1);
  editor.ScegliGiorno(2);
  EXPECT_EQ(lists, 1);
  EXPECT_EQ(details, 2);
}

TEST_F(ScheduleEditor, LeavesTheDatabaseByteForByteAsItWasAfterManyEdits) {
  Progetto(3, 3);
  Spot(1, Segmento(1, "08.00"), 1, "a.mp3");
  const std::string before = Leggi("scheduler.mdb");
  const Righe files = b.Nomi("program/Projects/Hall");
  Apri();
  for (int i = 0; i < 10; ++i) AggiungiSegmento(editor);
  Aggiungi(0, "b.mp3");
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  editor.txtMin = "44";
  LasciaMin(editor);
  b.Finestre.Rispondi(Risposta::Si);
  editor.VaiAlSegmento(1);
  RimuoviSegmento(editor);
  b.Finestre.Prossimo();
  editor.Chiudi();
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), files);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "no question";
}

TEST_F(ScheduleEditor, ThrowsAWorkingCopyThatACrashLeftAway) {
  Progetto(3, 3);
  Segmento(1, "08.00");
  Apri();
  AggiungiSegmento(editor);
  const std::string left = Leggi("tmpScheduler.mdb");
  editor.Chiudi();
  b.Cartella.Write("program/Projects/Hall/tmpScheduler.mdb", left);
  Apri();
  EXPECT_THAT(Segmenti(), ElementsAre("1 1 08:00:00"));
}

TEST_F(ScheduleEditor, ThrowsWhatIsNoDatabaseAwayToo) {
  Progetto(3, 3);
  Segmento(1, "08.00");
  b.Cartella.Write("program/Projects/Hall/tmpScheduler.mdb", "half a file");
  b.Cartella.Write("program/Projects/Hall/tmpScheduler.mdb-journal", "half a journal");
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("08:00:00"));
  editor.Chiudi();
  EXPECT_FALSE(Ha("tmpScheduler.mdb"));
  EXPECT_FALSE(Ha("tmpScheduler.mdb-journal"));
}

TEST_F(ScheduleEditor, IsLoadedAgainAfterAClose) {
  Progetto(3, 3);
  Segmento(1, "08.00");
  for (int i = 0; i < 3; ++i) {
    Apri();
    editor.FileMp3Valido = true;
    AggiungiSegmento(editor);
    EXPECT_THAT(Griglia(), ElementsAre("08:00:00", "08:01:00"));
    EXPECT_EQ(editor.Modifiche(), 1);
    editor.Chiudi();
  }
  editor.Carica();
  EXPECT_EQ(editor.SegmentoCorrente(), 0) << "not that of the load before";
  EXPECT_FALSE(editor.FileMp3Valido);
  EXPECT_EQ(editor.Modifiche(), 0);
}

TEST_F(ScheduleEditor, CountsTheChangesThatWereMade) {
  Progetto(3, 3);
  Apri();
  AggiungiSegmento(editor);
  Aggiungi(0, "a.mp3");
  Aggiungi(1, "b.mp3");
  SpostaSpot(editor, 0, true);
  SpostaSpot(editor, 1, true);  // at the end already
  RimuoviSpot(editor, 1);
  editor.txtMin = "05";
  LasciaMin(editor);
  EXPECT_EQ(editor.Modifiche(), 6);
}

TEST_F(ScheduleEditor, ClosesHarmlesslyTwiceAndWithoutALoad) {
  Progetto(3, 3);
  editor.Chiudi();
  Apri();
  editor.Chiudi();
  editor.Chiudi();
  EXPECT_EQ(editor.Copia(), nullptr);
  EXPECT_FALSE(editor.ConnessionePalinsesto().IsOpen());
}

}  // namespace
}  // namespace kvr5
