#include "schedule/BancoPalinsesto.h"

namespace kvr5 {
namespace {

using SlotsOfASegment = test::BancoPalinsesto;

TEST(SpotSlots, ThatHoldASpotShowAllAndTheNextOffersAdding) {
  for (int n = 2; n <= 8; ++n) {
    const SlotSpot slots = AggiornaSlotSpot(n, 1, false);
    for (int i = 0; i < 8; ++i) {
      const bool used = i < n;
      EXPECT_EQ(slots[i].picPlay, used) << n << ", " << i;
      EXPECT_EQ(slots[i].picStop, used) << n << ", " << i;
      EXPECT_EQ(slots[i].picRimuoviSpot, used) << n << ", " << i;
      EXPECT_EQ(slots[i].UpDownFile, used) << n << ", " << i;
      EXPECT_EQ(slots[i].picAggiungiSpot, i <= n) << n << ", " << i;
    }
  }
}

TEST(SpotSlots, WithOneSpotHaveNoArrows) {
  const SlotSpot slots = AggiornaSlotSpot(1, 1, false);
  EXPECT_EQ(slots[0], (UnoSlot{true, true, true, true, false}));
  EXPECT_EQ(slots[1], (UnoSlot{false, false, true, false, false}));
  for (int i = 2; i < 8; ++i) EXPECT_EQ(slots[i], UnoSlot{}) << i;
  EXPECT_EQ(slots.CopriDown, -1);
}

TEST(SpotSlots, WithoutASpotOfferTheFirstPlaceAlone) {
  const SlotSpot slots = AggiornaSlotSpot(0, 1, false);
  EXPECT_EQ(slots[0], (UnoSlot{false, false, true, false, false}));
  for (int i = 1; i < 8; ++i) EXPECT_EQ(slots[i], UnoSlot{}) << i;
}

TEST(SpotSlots, HaveNoStopWithAnExternalPlayer) {
  const SlotSpot slots = AggiornaSlotSpot(3, 1, true);
  for (int i = 0; i < 8; ++i) {
    EXPECT_FALSE(slots[i].picStop) << i;
    EXPECT_EQ(slots[i].picPlay, i < 3) << i;
  }
}

TEST(SpotSlots, TheDownArrowOfTheLastSpotIsCovered) {
  for (int n = 2; n <= 8; ++n) EXPECT_EQ(AggiornaSlotSpot(n, 1, false).CopriDown, n - 1) << n;
}

TEST(SpotSlots, WithMoreThanEightSpotsAreFull) {
  EXPECT_EQ(AggiornaSlotSpot(9, 1, false), AggiornaSlotSpot(8, 1, false));
  EXPECT_EQ(AggiornaSlotSpot(1000, 1, false), AggiornaSlotSpot(8, 1, false));
}

TEST(SpotSlots, AreHiddenWithTheirDetailOnADayWithoutSegments) {
  EXPECT_FALSE(AggiornaSlotSpot(0, 0, false).picDettaglio);
  EXPECT_TRUE(AggiornaSlotSpot(0, 1, false).picDettaglio);
}

TEST_F(SlotsOfASegment, FollowTheRowThatIsCurrent) {
  Progetto(3, 3);
  Segmento(1, "01.00");
  Spot(1, Segmento(1, "02.00"), 1, "a.mp3");
  Apri();
  EXPECT_EQ(editor.Slot(), AggiornaSlotSpot(0, 2, false));
  editor.VaiAlSegmento(2);
  EXPECT_EQ(editor.Slot(), AggiornaSlotSpot(1, 2, false));
  editor.ScegliGiorno(2);
  EXPECT_EQ(editor.Slot(), AggiornaSlotSpot(0, 0, false));
}

TEST_F(SlotsOfASegment, KnowTheExternalPlayer) {
  Progetto(3, 3);
  Spot(1, Segmento(1, "01.00"), 1, "a.mp3");
  b.C.Stato.UsaPlayerEsterno = true;
  Apri();
  EXPECT_FALSE(editor.Slot()[0].picStop);
  EXPECT_TRUE(editor.Slot()[0].picPlay);
}

}  // namespace
}  // namespace kvr5
