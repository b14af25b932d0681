#include "schedule/BancoPalinsesto.h"
#include "schedule/RighePalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the screen is given to draw.
class ScheduleRows : public test::BancoPalinsesto {
 protected:
  void SetUp() override { Progetto(3, 3); }
  static std::string Time(const std::optional<Ora>& time) {
    return time ? OraConPunto(time) : "never";
  }
  /// "1 08.30 a.mp3 b.mp3", with "=" behind a time that another has.
  Righe Rows() {
    Righe rows;
    for (const RigaSegmento& each : RigheDellaGriglia(editor)) {
      std::string row = std::to_string(each.ID) + " " + Time(each.Inizio);
      if (each.StessaOra) row += "=";
      for (const RigaSpot& spot : each.Spot) row += " " + spot.Brano.FileName;
      rows.push_back(row);
    }
    return rows;
  }
  /// The segments of a day of the week, "1 08.30 2" with the number of their spots.
  Righe Of(std::int16_t day) {
    Righe rows;
    for (const SegmentoVisto& each : week.Del(day)) {
      EXPECT_EQ(each.Giorno, day);
      rows.push_back(std::to_string(each.ID) + " " + Time(each.Inizio) +
                     (each.StessaOra ? "= " : " ") + std::to_string(each.Spot));
    }
    return rows;
  }

  SettimanaPalinsesto week;
};

TEST_F(ScheduleRows, AreThoseOfTheGridWithTheirSpots) {
  Segmento(1, "12.00");
  Segmento(1, "08.30");
  Segmento(2, "07.00");
  Spot(1, 1, 2, "b.mp3");
  Spot(1, 1, 1, "a.mp3");
  Spot(2, 3, 1, "other.mp3");
  Apri();
  EXPECT_THAT(Rows(), ElementsAre("2 08.30", "1 12.00 a.mp3 b.mp3"));
}

TEST_F(ScheduleRows, TellWhatEachSpotIs) {
  Segmento(1, "12.00");
  Spot(1, 1, 1, "a.mp3", "C:\\Music\\", "F1-0011.mp3");
  Apri();
  const auto rows = RigheDellaGriglia(editor);
  ASSERT_EQ(rows.size(), 1U);
  ASSERT_EQ(rows[0].Spot.size(), 1U);
  const RigaSpot& spot = rows[0].Spot[0];
  EXPECT_EQ(spot.ID, 1);
  EXPECT_EQ(spot.Brano.FileName, "a.mp3");
  EXPECT_EQ(spot.Brano.FilePath, "C:\\Music\\");
  EXPECT_EQ(spot.Brano.Alias, "F1-0011.mp3");
  EXPECT_EQ(spot.Brano.Pos, 1);
}

TEST_F(ScheduleRows, MarkEqualTimes) {
  for (const char* time : {"08.30", "09.00", "08.30", "08.31"}) Segmento(1, time);
  Segmento(2, "09.00");
  Apri();
  EXPECT_THAT(Rows(), ElementsAre("1 08.30=", "3 08.30=", "4 08.31", "2 09.00"));
}

TEST_F(ScheduleRows, WithoutATimeAreEqualToNone) {
  Segmento(1, "");
  Segmento(1, "");
  Segmento(1, "00.00");
  Apri();
  EXPECT_THAT(Rows(), ElementsAre("1 never", "2 never", "3 00.00"));
}

TEST_F(ScheduleRows, OfTimesThatAreNoneAreShownWithoutOne) {
  for (int i = 0; i < 4; ++i) Segmento(1, "08.30");
  Sql("UPDATE HEAD SET StartTime='25:00:00' WHERE ID=1");
  Sql("UPDATE HEAD SET StartTime='noon' WHERE ID=2");
  Sql("UPDATE HEAD SET StartTime='2019-03-04 08:30:00' WHERE ID=3");
  Apri();
  EXPECT_THAT(Rows(), testing::UnorderedElementsAre("1 never", "2 never", "3 08.30=", "4 08.30="));
}

TEST_F(ScheduleRows, LeaveTheGridWhereItIs) {
  for (const char* time : {"01.00", "02.00", "03.00"}) Segmento(1, time);
  Apri();
  editor.VaiAlSegmento(2);
  RigheDellaGriglia(editor);
  EXPECT_EQ(editor.rsSegmenti().Number("ID"), 2);
  EXPECT_FALSE(editor.rsSegmenti().MoveLast());
  EXPECT_FALSE(editor.rsSegmenti().MoveNext());
  RigheDellaGriglia(editor);
  EXPECT_TRUE(editor.rsSegmenti().Eof());
}

TEST_F(ScheduleRows, LackTheSpotsOfADuplicateOnADay) {
  Spot(1, Segmento(1, "08.30"), 1, "a.mp3");
  Apri();
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  EXPECT_THAT(Rows(), ElementsAre("1 08.30= a.mp3", "2 08.30="));
}

TEST_F(ScheduleRows, OfAnEmptyDayAndAClosedEditorAreNone) {
  Apri();
  EXPECT_THAT(Rows(), IsEmpty());
  editor.Chiudi();
  EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(ScheduleRows, OfTheWeekAreThoseOfAllDaysByTime) {
  Segmento(7, "12.00");
  Segmento(7, "08.30");
  Segmento(0, "01.00");
  Segmento(1, "08.30");
  Segmento(1, "08.30");
  Spot(7, 1, 1, "a.mp3");
  Spot(7, 1, 2, "b.mp3");
  Spot(0, 2, 1, "hidden.mp3");
  Apri();
  week.Leggi(editor);
  EXPECT_THAT(Of(7), ElementsAre("2 08.30 0", "1 12.00 2"));
  EXPECT_THAT(Of(0), ElementsAre("3 01.00 0"));
  EXPECT_THAT(Of(1), ElementsAre("4 08.30= 0", "5 08.30= 0"));
  EXPECT_THAT(Of(2), IsEmpty());
}

TEST_F(ScheduleRows, OfTheWeekLackDaysThatItHasNot) {
  for (const int day : {-1, 8, 99}) Segmento(day, "01.00");
  Segmento(1, "02.00");
  Sql("UPDATE HEAD SET NScheduler=NULL WHERE ID=1");
  Apri();
  week.Leggi(editor);
  for (std::int16_t day = 0; day <= 7; ++day) EXPECT_EQ(Of(day).size(), day == 1 ? 1U : 0U) << day;
}

TEST_F(ScheduleRows, OfTheWeekAreRenewedByTheDayThatIsEdited) {
  Segmento(2, "02.00");
  Apri();
  week.Leggi(editor);
  AggiungiSegmento(editor);
  Aggiungi(0, "a.mp3");
  week.Rinnova(1, RigheDellaGriglia(editor));
  EXPECT_THAT(Of(1), ElementsAre("2 00.00 1"));
  EXPECT_THAT(Of(2), ElementsAre("1 02.00 0"));
}

TEST_F(ScheduleRows, OfTheWeekRenewedAreTheSameAsReadAnew) {
  for (const char* time : {"08.30", "08.30", "07.00"}) Segmento(1, time);
  Spot(1, 2, 1, "a.mp3");
  Apri();
  week.Leggi(editor);
  const auto read = week.Del(1);
  week.Rinnova(1, RigheDellaGriglia(editor));
  EXPECT_EQ(week.Del(1), read);
}

TEST_F(ScheduleRows, OfTheWeekAreGoneOnceItIsReadFromAClosedEditor) {
  Segmento(1, "08.30");
  Apri();
  week.Leggi(editor);
  EXPECT_EQ(Of(1).size(), 1U);
  editor.Chiudi();
  week.Leggi(editor);
  EXPECT_THAT(Of(1), IsEmpty());
}

}  // namespace
}  // namespace kvr5
