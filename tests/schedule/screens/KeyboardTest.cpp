#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// The editor by its keyboard alone: where the focus goes, and that nothing jumps.

namespace kvr5 {
namespace {

using testing::ElementsAre;

class ByKeys : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override {
    Progetto(3, 2);
    Segmento(0, "08.30", {"a.mp3", "b.mp3", "c.mp3"});
    Segmento(0, "09.30");
  }
  /// Presses a control by the space bar.
  void Press(QWidget& control) {
    control.setFocus(Qt::TabFocusReason);
    ASSERT_EQ(Fuoco(), &control);
    Premi(Qt::Key_Space);
    QCoreApplication::processEvents();
  }
  std::string FocusName() const {
    return Fuoco() == nullptr ? "none" : Fuoco()->objectName().toStdString();
  }
  bool InDetail() const { return Fuoco() != nullptr && form->picDettaglio->isAncestorOf(Fuoco()); }
};

TEST_F(ByKeys, ComesUpInThePane) {
  Apri();
  EXPECT_EQ(Fuoco(), &Pane());
}

TEST_F(ByKeys, TabGoesThroughTheDetailSlotBySlot) {
  Apri();
  Ore().setFocus();
  Righe order;
  for (int i = 0; i < 15; ++i) {
    order.push_back(FocusName());
    Premi(Qt::Key_Tab);
  }
  EXPECT_THAT(order, ElementsAre("txtOre", "txtMin", "grdDettaglio", "picPlay_0", "picStop_0",
                                 "picAggiungiSpot_0", "picRimuoviSpot_0", "UpDownFile_0_giu",
                                 "picPlay_1", "picStop_1", "picAggiungiSpot_1", "picRimuoviSpot_1",
                                 "UpDownFile_1_su", "UpDownFile_1_giu", "picPlay_2"));
}

TEST_F(ByKeys, ARemovedSpotLeavesTheFocusInTheSlots) {
  Apri();
  for (int left = 2; left >= 0; --left) {
    Press(Elemento("picRimuoviSpot", left));
    EXPECT_EQ(static_cast<int>(Dettaglio().size()), left);
    EXPECT_TRUE(InDetail()) << "not on " << FocusName();
  }
}

TEST_F(ByKeys, AMovedSpotLeavesTheFocusInTheSlots) {
  Apri();
  const auto& arrows = form->picDettaglio->UpDownFile;
  Press(*arrows[1]->Giu);
  EXPECT_THAT(Dettaglio(), ElementsAre("a.mp3", "c.mp3", "b.mp3"));
  EXPECT_TRUE(InDetail()) << "not on " << FocusName();
  Press(*arrows[1]->Su);
  EXPECT_THAT(Dettaglio(), ElementsAre("c.mp3", "a.mp3", "b.mp3"));
  EXPECT_TRUE(InDetail()) << "not on " << FocusName();
}

TEST_F(ByKeys, TheLastButOneSpotThatIsRemovedTakesTheArrowsAlong) {
  Apri();
  Press(Elemento("picRimuoviSpot", 0));
  Press(Elemento("picRimuoviSpot", 0));
  EXPECT_EQ(Fuoco(), &Elemento("picRimuoviSpot", 0));
  EXPECT_EQ(Slot(0), "PSAR");
}

TEST_F(ByKeys, RemovedSegmentsNeverLeaveTheFocusOnTheWayOut) {
  Apri();
  for (int i = 0; i < 2; ++i) {
    b.Finestre.Rispondi(Risposta::Si);
    Press(Trova<QWidget>("picRimuoviSegmento"));
    b.Finestre.Prossimo();
    EXPECT_TRUE(form->Segmenti->isAncestorOf(Fuoco())) << "not on " << FocusName();
  }
  EXPECT_EQ(Griglia().size(), 0U);
}

TEST_F(ByKeys, DelOnTheLastSegmentLeavesTheFocusInTheGrid) {
  Apri();
  Grid().setFocus();
  for (int i = 0; i < 2; ++i) {
    b.Finestre.Rispondi(Risposta::Si);
    Premi(Qt::Key_Delete);
    b.Finestre.Prossimo();
    EXPECT_EQ(Fuoco(), &Grid());
  }
  Premi(Qt::Key_Delete);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(ByKeys, AWholeSegmentIsMadeWithoutTheMouse) {
  Progetto(3, 2);
  Apri();
  Press(Trova<QWidget>("picAggiungiSegmento"));
  test::Scrivi(*form, "17");
  Premi(Qt::Key_Return);
  test::Scrivi(*form, "45");
  Premi(Qt::Key_Return);
  Pane().setFocus();
  Premi(Qt::Key_Down);
  Premi(Qt::Key_Up);
  Premi(Qt::Key_Return);
  Premi(Qt::Key_Down);
  Premi(Qt::Key_Return);
  EXPECT_THAT(Griglia(), ElementsAre("17:45 a.mp3 b.mp3"));
  Spots().setFocus();
  Premi(Qt::Key_Up, Qt::AltModifier);
  EXPECT_THAT(Griglia(), ElementsAre("17:45 b.mp3 a.mp3"));
  Premi(Qt::Key_Delete);
  EXPECT_THAT(Griglia(), ElementsAre("17:45 a.mp3"));
}

TEST_F(ByKeys, ALongListStaysScrolledToTheSideWhileItsRowsChange) {
  Progetto(3, 2);
  Segmento(0, "08.30", {"a.mp3", "b.mp3", "c.mp3", "d.mp3", "e.mp3", "f.mp3"});
  Segmento(0, "09.30", {"g.mp3", "h.mp3"});
  Apri();
  QScrollBar& bar = *Grid().horizontalScrollBar();
  ASSERT_GT(bar.maximum(), 0) << "there is something to scroll";
  bar.setValue(bar.maximum());
  const int before = bar.value();
  const QModelIndex seen = Grid().model()->index(1, ModelloSegmenti::Colonne - 1);
  test::CliccaA(*Grid().viewport(), Grid().visualRect(seen).center());
  EXPECT_EQ(Scelto(), 1);
  EXPECT_EQ(bar.value(), before) << "a click";
  DoppioFile("a.mp3");
  EXPECT_EQ(bar.value(), before) << "a file that was added";
  Clic("picRimuoviSpot", 0);
  EXPECT_EQ(bar.value(), before) << "one that was removed";
}

}  // namespace
}  // namespace kvr5
