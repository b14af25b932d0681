#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <algorithm>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// The picture of the week, of the day, or of the one hour.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class WeekPicture : public test::BancoPalinsestoSchermo {
 protected:
  StrisciaSettimana& Week() const { return *form->picSettimana; }
  /// The field of a day and time.
  QRect Field(int day, int hours, int minutes = 0) const {
    SegmentoVisto segment;
    segment.Giorno = static_cast<std::int16_t>(day);
    segment.Inizio = Ora{hours, minutes};
    return Week().Campo(segment);
  }
  void Click(int day, int hours, int minutes = 0) const {
    test::CliccaA(Week(), Field(day, hours, minutes).center());
  }
  std::string Tip(const QRect& field) const {
    const QPoint place = field.center();
    QHelpEvent asked(QEvent::ToolTip, place, Week().mapToGlobal(place));
    QCoreApplication::sendEvent(&Week(), &asked);
    const std::string text = QToolTip::isVisible() ? QToolTip::text().toStdString() : "";
    // By itself a tip stays for a while after it has been sent away.
    for (QWidget* each : QApplication::topLevelWidgets()) {
      if (each->windowType() == Qt::ToolTip) each->hide();
    }
    return text;
  }
  QImage Picture(const QRect& field) const { return Week().grab(field).toImage(); }
};

class OfTheWeek : public WeekPicture {
 protected:
  void SetUp() override {
    Progetto(3, 3);
    Segmento(1, "08.30", {"a.mp3"});
    Segmento(1, "08.45", {"b.mp3", "c.mp3"});
    Segmento(1, "08.59");
    Segmento(3, "23.00", {"d.mp3"});
    Segmento(7, "00.00", {"e.mp3"});
    Apri();
  }
};

TEST_F(OfTheWeek, HasSevenDaysOfTwentyFourHours) {
  EXPECT_TRUE(Week().isVisible());
  std::vector<QRect> fields;
  for (int day = 1; day <= 7; ++day) {
    for (int hour = 0; hour < 24; ++hour) {
      const QRect field = Field(day, hour);
      EXPECT_GE(field.width(), 14) << "two figures fit in";
      EXPECT_TRUE(Week().rect().contains(field));
      EXPECT_EQ(Field(day, hour, 59), field) << "an hour is one field";
      EXPECT_TRUE(std::ranges::none_of(
          fields, [&](const QRect& each) { return each.contains(field.center()); }));
      fields.push_back(field);
    }
  }
  EXPECT_LT(Field(1, 0).top(), Field(7, 0).top());
  EXPECT_LT(Field(1, 0).left(), Field(1, 23).left());
}

TEST_F(OfTheWeek, AClickSelectsTheSegmentAndChangesTheDay) {
  Click(3, 23);
  EXPECT_EQ(Giorno(), 3);
  EXPECT_EQ(Giorni().currentIndex(), 2);
  EXPECT_THAT(Griglia(), ElementsAre("23:00 d.mp3"));
  EXPECT_EQ(Scelto(), 0);
  EXPECT_EQ(Orario(), "23:00");
  Click(7, 0);
  EXPECT_EQ(Giorno(), 7);
  EXPECT_EQ(Orario(), "00:00");
  EXPECT_EQ(Modifiche(), 0);
}

TEST_F(OfTheWeek, OneClickAfterTheOtherGoesThroughTheSegmentsOfAField) {
  Click(7, 0);
  Click(1, 8);
  EXPECT_EQ(Orario(), "08:30");
  Click(1, 8);
  EXPECT_EQ(Orario(), "08:45");
  EXPECT_EQ(Scelto(), 1);
  Click(1, 8);
  EXPECT_EQ(Orario(), "08:59");
  Click(1, 8);
  EXPECT_EQ(Orario(), "08:30") << "and around";
}

TEST_F(OfTheWeek, AClickOnAnEmptyFieldBesideOrByAnotherButtonDoesNothing) {
  Click(2, 8);
  Click(1, 9);
  test::CliccaA(Week(), {2, 2});
  test::CliccaA(Week(), Field(3, 23).center(), Qt::RightButton);
  EXPECT_EQ(Giorno(), 1);
  EXPECT_EQ(Scelto(), 0);
}

TEST_F(OfTheWeek, TellsWhatAFieldHolds) {
  const std::string tip = Tip(Field(1, 8));
  EXPECT_THAT(tip, testing::StartsWith("Monday\n"));
  EXPECT_THAT(tip, HasSubstr("08:30  1 spot"));
  EXPECT_THAT(tip, HasSubstr("08:45  2 spots"));
  EXPECT_THAT(tip, HasSubstr("08:59  no spots"));
  EXPECT_EQ(Tip(Field(3, 23)), "Wednesday\n23:00  1 spot");
  EXPECT_EQ(Tip(Field(2, 8)), "");
}

TEST_F(OfTheWeek, MarksEqualTimes) {
  EXPECT_THAT(Tip(Field(7, 0)), testing::Not(HasSubstr("same time")));
  const QImage before = Picture(Field(7, 0));
  test::ScegliVoce(Giorni(), "Sunday");
  Clic("picCopiaSegmento");
  b.Finestre.Prossimo();
  test::ScegliVoce(Giorni(), "Monday");
  EXPECT_THAT(Tip(Field(7, 0)), HasSubstr("1 spot, same time"));
  EXPECT_THAT(Tip(Field(7, 0)), HasSubstr("no spots, same time"));
  EXPECT_NE(Picture(Field(7, 0)), before);
}

TEST_F(OfTheWeek, FollowsWhatIsEditedOnEachDay) {
  const QImage empty = Picture(Field(2, 0));
  test::ScegliVoce(Giorni(), "Tuesday");
  Clic("picAggiungiSegmento");
  DigitaOrario("14", "20");
  DoppioFile("a.mp3");
  EXPECT_EQ(Tip(Field(2, 14)), "Tuesday\n14:20  1 spot");
  EXPECT_EQ(Tip(Field(2, 0)), "");
  test::ScegliVoce(Giorni(), "Monday");
  EXPECT_EQ(Tip(Field(2, 14)), "Tuesday\n14:20  1 spot") << "of a day that isn't edited, too";
  EXPECT_EQ(Picture(Field(2, 0)), empty);
  EXPECT_NE(Picture(Field(2, 14)), empty);
  Click(2, 14);
  b.Finestre.Rispondi(Risposta::Si);
  Clic("picRimuoviSegmento");
  b.Finestre.Prossimo();
  EXPECT_EQ(Tip(Field(2, 14)), "");
}

TEST_F(OfTheWeek, ShowsWhichSegmentIsSelected) {
  const QImage before = Picture(Field(3, 23));
  Click(3, 23);
  EXPECT_NE(Picture(Field(3, 23)), before);
}

TEST_F(WeekPicture, OfOneScheduleIsADayOfTwentyFourHours) {
  Progetto(3, 2);
  Segmento(0, "08.30", {"a.mp3"});
  Segmento(0, "20.00", {"b.mp3", "c.mp3"});
  Segmento(1, "10.00", {"d.mp3"});
  Apri();
  EXPECT_EQ(Field(0, 8).height(), Field(0, 23).height());
  EXPECT_EQ(Field(0, 8).top(), Field(0, 23).top());
  EXPECT_EQ(Field(0, 8), Field(0, 8, 59));
  EXPECT_EQ(Tip(Field(0, 20)), "20:00  2 spots");
  EXPECT_EQ(Tip(Field(0, 10)), "") << "of a day that this project hasn't";
  Click(0, 20);
  EXPECT_EQ(Orario(), "20:00");
  EXPECT_EQ(Giorno(), 0);
}

TEST_F(WeekPicture, OfAKvr5IsTheOneHourByItsMinutes) {
  Progetto(4, 2);
  Segmento(0, "00.07", {"a.mp3"});
  Segmento(0, "00.59", {"b.mp3"});
  Segmento(0, "00.59", {"c.mp3"});
  Apri();
  EXPECT_NE(Field(0, 0, 7), Field(0, 0, 8));
  EXPECT_TRUE(Week().rect().contains(Field(0, 0, 59)));
  EXPECT_EQ(Tip(Field(0, 0, 7)), "00:07  1 spot");
  EXPECT_EQ(Tip(Field(0, 0, 8)), "");
  Click(0, 0, 59);
  const std::int64_t first = form->Editor().SegmentoCorrente();
  EXPECT_EQ(Orario(), "00:59");
  Click(0, 0, 59);
  EXPECT_EQ(Orario(), "00:59");
  EXPECT_NE(form->Editor().SegmentoCorrente(), first);
  Click(0, 0, 7);
  EXPECT_EQ(Orario(), "00:07");
}

TEST_F(WeekPicture, WithoutADatabaseIsEmpty) {
  Progetto(3, 3);
  Togli("scheduler.mdb");
  Apri();
  Click(1, 8);
  EXPECT_EQ(Tip(Field(1, 8)), "");
  EXPECT_EQ(Scelto(), -1);
}

TEST_F(WeekPicture, LeavesASegmentWithoutATimeOut) {
  Progetto(3, 3);
  Segmento(1, "");
  Apri();
  SegmentoVisto timeless;
  timeless.Giorno = 1;
  EXPECT_TRUE(Week().Campo(timeless).isEmpty());
  for (int hour = 0; hour < 24; ++hour) EXPECT_EQ(Tip(Field(1, hour)), "");
}

}  // namespace
}  // namespace kvr5
