#include "schedule/screens/BancoPalinsestoSchermo.h"

// The days of a weekly schedule.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Days : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override {
    Progetto(3, 3);
    Segmento(1, "08.00", {"mon.mp3"});
    Segmento(3, "09.00", {"wed.mp3"});
    Segmento(3, "07.00", {"early.mp3"});
    Segmento(0, "10.00", {"none.mp3"});
    Segmento(8, "11.00", {"eight.mp3"});
  }
};

TEST_F(Days, AreChangedByAClickOnTheirEntry) {
  Apri();
  test::ScegliColMouse(Giorni(), 2);
  EXPECT_EQ(Giorno(), 3);
  EXPECT_THAT(Griglia(), ElementsAre("07:00 early.mp3", "09:00 wed.mp3"));
  EXPECT_EQ(Scelto(), 0);
  EXPECT_EQ(Orario(), "07:00");
  EXPECT_THAT(Dettaglio(), ElementsAre("early.mp3"));
  EXPECT_EQ(Testo("lblVociInElenco"), "Segments : 2");
  test::ScegliColMouse(Giorni(), 0);
  EXPECT_THAT(Griglia(), ElementsAre("08:00 mon.mp3"));
  EXPECT_EQ(Testo("lblModifiche"), "");
}

TEST_F(Days, TheSameEntryOnceMoreReadsTheDayAnew) {
  Apri();
  test::ScegliVoce(Giorni(), "Wednesday");
  ClicSegmento(1);
  ASSERT_EQ(Scelto(), 1);
  test::ScegliColMouse(Giorni(), 2);
  EXPECT_EQ(Giorno(), 3);
  EXPECT_EQ(Scelto(), 0) << "as at any click on it";
}

TEST_F(Days, KeepSegmentsOfTheirOwn) {
  Apri();
  test::ScegliVoce(Giorni(), "Tuesday");
  Clic("picAggiungiSegmento");
  EXPECT_THAT(Griglia(), ElementsAre("00:00"));
  Musica({"tue.mp3"});
  Attiva();
  DoppioFile("tue.mp3");
  EXPECT_THAT(Griglia(), ElementsAre("00:00 tue.mp3"));
  test::ScegliVoce(Giorni(), "Monday");
  EXPECT_THAT(Griglia(), ElementsAre("08:00 mon.mp3"));
  test::ScegliVoce(Giorni(), "Tuesday");
  EXPECT_THAT(Griglia(), ElementsAre("00:00 tue.mp3"));
  EXPECT_THAT(Teste(),
              ElementsAre("1 08:00", "3 09:00", "3 07:00", "0 10:00", "8 11:00", "2 00:00"));
}

TEST_F(Days, WithoutASegmentShowAnEmptyGridAndNoDetail) {
  Apri();
  ASSERT_TRUE(SiVede("picDettaglio"));
  const QRect grid = Grid().geometry();
  test::ScegliVoce(Giorni(), "Sunday");
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Scelto(), -1);
  EXPECT_FALSE(SiVede("picDettaglio"));
  EXPECT_FALSE(SiVede("grdDettaglio"));
  EXPECT_TRUE(SiVede("grdSegmenti"));
  EXPECT_THAT(SlotTutti(), IsEmpty()) << "no slot buttons";
  EXPECT_EQ(Testo("lblVociInElenco"), "Segments : 0");
  EXPECT_FALSE(form->Segmenti->picCopiaSegmento->isEnabled());
  EXPECT_FALSE(form->Segmenti->picRimuoviSegmento->isEnabled());
  EXPECT_EQ(Grid().geometry(), grid) << "nothing jumps when the detail goes";
  test::ScegliVoce(Giorni(), "Monday");
  EXPECT_TRUE(SiVede("picDettaglio"));
  EXPECT_TRUE(form->Segmenti->picRimuoviSegmento->isEnabled());
}

TEST_F(Days, AreNotObeyedWhereTheirListIsHidden) {
  Progetto(3, 2);
  Segmento(0, "10.00");
  Segmento(2, "11.00");
  Apri();
  test::ScegliVoce(Giorni(), "Tuesday");
  EXPECT_EQ(Giorno(), 0);
  EXPECT_THAT(Griglia(), ElementsAre("10:00"));
}

TEST_F(Days, AreNotChangedByTheWheelThatPassesOverTheirList) {
  Apri();
  const QPoint place = Giorni().rect().center();
  QWheelEvent wheel(place, Giorni().mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&Giorni(), &wheel);
  EXPECT_EQ(Giorno(), 1);
  EXPECT_EQ(Giorni().currentIndex(), 0);
}

TEST_F(Days, StoreTheTimeThatWasTypedBeforeTheyChange) {
  Apri();
  Digita(Min(), "45");
  Giorni().setFocus(Qt::TabFocusReason);
  test::ScegliVoce(Giorni(), "Wednesday");
  EXPECT_THAT(Griglia(), ElementsAre("07:00 early.mp3", "09:00 wed.mp3"));
  test::ScegliVoce(Giorni(), "Monday");
  EXPECT_THAT(Griglia(), ElementsAre("08:45 mon.mp3"));
}

}  // namespace
}  // namespace kvr5
