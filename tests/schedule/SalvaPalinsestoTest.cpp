#include "schedule/BancoSalvaPalinsesto.h"
#include "schedule/OrarioSegmento.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using SavedSchedule = test::BancoSalvaPalinsesto;

TEST_F(SavedSchedule, OfAWeekIsAFileForEachDay) {
  Progetto(3, 3);
  Segmento(3, "06.00");
  Segmento(3, "08.30");
  Segmento(1, "23.59");
  Traccia(3, 2, 1, "a.mp3");
  Traccia(3, 2, 2, "b.mp3");
  Traccia(3, 1, 1, "c.mp3");
  Traccia(1, 3, 1, "d.mp3");
  Salva();
  EXPECT_THAT(Alias(), ElementsAre("F1-0011.mp3", "F3-0011.mp3", "F3-0021.mp3", "F3-0022.mp3"));
  EXPECT_EQ(Leggi("1.pal"), "23:59\tF1-0011\t\r\n");
  EXPECT_EQ(Leggi("3.pal"), "06:00\tF3-0011\t\r\n08:30\tF3-0021\t\tF3-0022\t\r\n");
  for (const char* empty : {"2.pal", "4.pal", "5.pal", "6.pal", "7.pal"}) {
    EXPECT_TRUE(Ha(empty)) << empty;
    EXPECT_EQ(Leggi(empty), "") << empty;
  }
  EXPECT_FALSE(Ha("PALIN.TXT"));
}

TEST_F(SavedSchedule, OfModeTwoIsOneFile) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 4}) {
    Progetto(type, 2);
    Segmento(0, "00.10");
    Segmento(0, "00.05");
    Traccia(0, 1, 1, "a.mp3");
    Traccia(0, 2, 1, "b.mp3");
    Traccia(0, 2, 2, "c.mp3");
    Salva();
    EXPECT_EQ(Leggi("PALIN.TXT"), "00:10\tF0-0011\t\r\n00:05\tF0-0021\t\tF0-0022\t\r\n") << type;
    EXPECT_FALSE(Ha("1.pal"));
    EXPECT_THAT(Alias(), ElementsAre("F0-0011.mp3", "F0-0021.mp3", "F0-0022.mp3"));
  }
}

TEST_F(SavedSchedule, OfAnyOtherModeIsSevenFiles) {
  Progetto(3, 3);
  b.C.Stato.PlayerMode = 5;
  Spot(1, Segmento(1, "01.00"), 1, "a.mp3");
  Salva();
  EXPECT_EQ(Giorni(), "1: 01:00\tF1-0011\t\r\n");
  EXPECT_FALSE(Ha("PALIN.TXT"));
}

TEST_F(SavedSchedule, HasItsLinesInTheOrderInWhichTheSegmentsWereMadeNotByTime) {
  Progetto(3, 2);
  for (const char* time : {"22.00", "06.00", "14.00"}) Spot(0, Segmento(0, time), 1, "a.mp3");
  Salva();
  EXPECT_EQ(Leggi("PALIN.TXT"), "22:00\tF0-0011\t\r\n06:00\tF0-0021\t\r\n14:00\tF0-0031\t\r\n");
}

TEST_F(SavedSchedule, KeepsThePlaceOfALineAndItsAliasWhereTheTimeIsChanged) {
  Progetto(3, 2);
  for (const char* time : {"01.00", "02.00"}) Spot(0, Segmento(0, time), 1, "a.mp3");
  Salva();
  Apri();
  editor.VaiAlSegmento(1);
  editor.txtOre = "23";
  LasciaOre(editor);
  SalvaAperto();
  EXPECT_EQ(Leggi("PALIN.TXT"), "23:00\tF0-0011\t\r\n02:00\tF0-0021\t\r\n");
}

TEST_F(SavedSchedule, CountsTheSegmentsOfADayWhereTheDaysWereMadeInTurns) {
  Progetto(3, 3);
  for (const int day : {1, 2, 1, 2, 1}) Spot(day, Segmento(day, "01.00"), 1, "a.mp3");
  Salva();
  EXPECT_EQ(Giorni(),
            "1: 01:00\tF1-0011\t\r\n01:00\tF1-0021\t\r\n01:00\tF1-0031\t\r\n"
            "2: 01:00\tF2-0011\t\r\n01:00\tF2-0021\t\r\n");
}

TEST_F(SavedSchedule, TheTwelfthSegmentOfWednesdayNamesItsSecondSpotSo) {
  Progetto(3, 3);
  for (int i = 1; i <= 12; ++i) {
    const auto segment = Segmento(3, "08.30");
    Spot(3, segment, 1, "a.mp3");
    Spot(3, segment, 2, "b.mp3");
  }
  Salva();
  EXPECT_EQ(Alias().back(), "F3-0122.mp3");
  EXPECT_TRUE(Leggi("3.pal").starts_with("08:30\tF3-0011\t\tF3-0012\t\r\n"));
}

TEST_F(SavedSchedule, ASecondTimeWithoutChangesIsTheSame) {
  Progetto(3, 3);
  for (const int day : {1, 1, 4}) {
    const auto segment = Segmento(day, "05.00");
    Traccia(day, segment, 1, "a.mp3");
    Traccia(day, segment, 2, "b.mp3");
  }
  Salva();
  const Righe aliases = Alias();
  const std::string days = Giorni();
  const std::string page = Leggi("Scheduler.htm");
  Salva();
  EXPECT_EQ(Alias(), aliases);
  EXPECT_EQ(Giorni(), days);
  EXPECT_EQ(Leggi("Scheduler.htm"), page);
}

TEST_F(SavedSchedule, ASegmentWithoutSpotsHasNoLineAndTakesNoNumber) {
  Progetto(3, 3);
  for (const char* time : {"01.00", "02.00", "03.00"}) Segmento(1, time);
  Spot(1, 1, 1, "a.mp3");
  Spot(1, 3, 1, "c.mp3");
  Salva();
  EXPECT_EQ(Leggi("1.pal"), "01:00\tF1-0011\t\r\n03:00\tF1-0021\t\r\n");
  EXPECT_EQ(Segmenti("scheduler.mdb").size(), 3U);
}

TEST_F(SavedSchedule, PlacesOneAndThreeBecomeOneAndTwoBeforeTheyAreNamed) {
  Progetto(3, 3);
  Segmento(2, "01.00");
  Spot(2, 1, 1, "a.mp3");
  Spot(2, 1, 3, "c.mp3");
  Salva();
  EXPECT_THAT(Alias(), ElementsAre("F2-0011.mp3", "F2-0012.mp3"));
  EXPECT_THAT(Colonna("Pos"), ElementsAre("1", "2"));
  EXPECT_EQ(Leggi("2.pal"), "01:00\tF2-0011\t\tF2-0012\t\r\n");
}

TEST_F(SavedSchedule, DuplicatedSpotsReachNoFileOfADayButHaveAnAlias) {
  Progetto(3, 3);
  Spot(3, Segmento(3, "08.30"), 1, "a.mp3");
  Apri();
  editor.ScegliGiorno(3);
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  SalvaAperto();
  EXPECT_EQ(Giorni(), "3: 08:30\tF3-0011\t\r\n");
  EXPECT_THAT(Alias(), ElementsAre("F0-0011.mp3", "F3-0011.mp3"));
  EXPECT_FALSE(Ha("0.pal"));
}

TEST_F(SavedSchedule, DuplicatedSpotsOfTheOneScheduleHaveTheirLine) {
  Progetto(4, 2);
  Spot(0, Segmento(0, "00.30"), 1, "a.mp3");
  Apri();
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  SalvaAperto();
  EXPECT_EQ(Leggi("PALIN.TXT"), "00:30\tF0-0011\t\r\n00:30\tF0-0021\t\r\n");
}

TEST_F(SavedSchedule, SpotsOfNoSegmentHaveNoLineButTakeANumber) {
  Progetto(3, 3);
  const auto gone = Segmento(1, "01.00");
  Spot(1, gone, 1, "lost.mp3");
  Spot(1, Segmento(1, "02.00"), 1, "a.mp3");
  Sql("DELETE FROM HEAD WHERE ID=1");
  Salva();
  EXPECT_EQ(Leggi("1.pal"), "02:00\tF1-0021\t\r\n");
  EXPECT_THAT(Alias(), ElementsAre("F1-0011.mp3", "F1-0021.mp3"));
}

TEST_F(SavedSchedule, OldFilesAreReplaced) {
  Progetto(3, 3);
  Segmento(1, "01.00");
  Spot(1, 1, 1, "a.mp3");
  for (const char* old : {"1.pal", "2.pal", "Scheduler.htm"}) {
    b.Cartella.Write(std::string("program/Projects/Hall/") + old, std::string(9000, 'o'));
  }
  b.Cartella.Write("program/Projects/Hall/PALIN.TXT", "of another mode");
  Salva();
  EXPECT_EQ(Giorni(), "1: 01:00\tF1-0011\t\r\n");
  EXPECT_EQ(Leggi("Scheduler.htm").find("ooo"), std::string::npos);
  EXPECT_EQ(Leggi("PALIN.TXT"), "of another mode") << "not one of this mode";
}

TEST_F(SavedSchedule, TheOldOneOfModeTwoIsReplaced) {
  Progetto(3, 2);
  b.Cartella.Write("program/Projects/Hall/PALIN.TXT", std::string(9000, 'o'));
  b.Cartella.Write("program/Projects/Hall/1.pal", "of another mode");
  Spot(0, Segmento(0, "01.00"), 1, "a.mp3");
  Salva();
  EXPECT_EQ(Leggi("PALIN.TXT"), "01:00\tF0-0011\t\r\n");
  EXPECT_EQ(Leggi("1.pal"), "of another mode");
}

TEST_F(SavedSchedule, AnOldOneOfAnotherSpellingGoes) {
  Progetto(3, 2);
  b.Cartella.Write("program/Projects/Hall/palin.txt", "old");
  Spot(0, Segmento(0, "01.00"), 1, "a.mp3");
  Salva();
  EXPECT_FALSE(Ha("palin.txt"));
  EXPECT_EQ(Leggi("PALIN.TXT"), "01:00\tF0-0011\t\r\n");
}

TEST_F(SavedSchedule, WithoutASegmentIsEmptyFilesAndNoQuestion) {
  Progetto(3, 3);
  Salva();
  EXPECT_EQ(Giorni(), "");
  EXPECT_TRUE(Ha("7.pal"));
  EXPECT_TRUE(Ha("Scheduler.htm"));
  EXPECT_THAT(Segmenti("scheduler.mdb"), IsEmpty());
  EXPECT_FALSE(Ha("tmpScheduler.mdb"));
}

TEST_F(SavedSchedule, IsWhatTheEditorHeld) {
  Progetto(3, 3);
  Apri();
  editor.ScegliGiorno(6);
  AggiungiSegmento(editor);
  Aggiungi(0, "a.mp3", "C:\\Music");
  const Righe segments = Segmenti();
  const Righe spots = Tutti();
  SalvaAperto();
  EXPECT_EQ(Segmenti("scheduler.mdb"), segments);
  EXPECT_EQ(Tutti("scheduler.mdb"), spots);
  EXPECT_FALSE(Ha("tmpScheduler.mdb"));
  EXPECT_FALSE(Ha("scheduler.mdb-journal"));
}

TEST_F(SavedSchedule, OfAFullWeekHasALineForEachSegment) {
  Progetto(3, 3);
  for (int day = 1; day <= 7; ++day) MoltiSegmenti(day, 61);
  Sql("INSERT INTO List(FileName,FilePath,Pos,NPlaylist,IDSched) "
      "SELECT 'x.mp3','C:\\',place.value,NScheduler,HEAD.ID "
      "FROM HEAD, json_each('[1,2,3,4,5,6,7,8]') place");
  Salva();
  ASSERT_EQ(Alias().size(), 3416U);
  EXPECT_EQ(Alias().back(), "F7-0618.mp3");
  const std::string sunday = Leggi("7.pal");
  EXPECT_EQ(std::count(sunday.begin(), sunday.end(), '\n'), 61);
  EXPECT_TRUE(sunday.ends_with("\t\tF7-0618\t\r\n"));
}

}  // namespace
}  // namespace kvr5
