#include <gtest/gtest.h>

#include "playerconfig/Ponte.h"

namespace kvr5 {
namespace {

TEST(Ponte, TickingItHoldsOmonAt1AndUntickingGivesItBack) {
  for (const int omon : {0, 1}) {
    Ponte bridge(false, omon);
    EXPECT_TRUE(bridge.OmonLibero());
    bridge.Spunta(true);
    EXPECT_EQ(bridge.Omon(), 1);
    EXPECT_FALSE(bridge.OmonLibero());
    bridge.Spunta(false);
    EXPECT_EQ(bridge.Omon(), omon);
    EXPECT_TRUE(bridge.OmonLibero());
  }
}

TEST(Ponte, AFileThatHasItOnWithOmon0IsShownAsItIs) {
  Ponte bridge(true, 0);
  EXPECT_EQ(bridge.Omon(), 0);
  EXPECT_FALSE(bridge.OmonLibero());
  bridge.Spunta(true);
  EXPECT_EQ(bridge.Omon(), 0) << "only a click forces it";
  bridge.Spunta(false);
  EXPECT_EQ(bridge.Omon(), 0);
}

TEST(Ponte, AChoiceBeforeItIsTickedIsWhatItGoesBackTo) {
  Ponte bridge(false, 0);
  bridge.ScegliOmon(1);
  bridge.ScegliOmon(0);
  bridge.Spunta(true);
  bridge.Spunta(false);
  EXPECT_EQ(bridge.Omon(), 0);
  bridge.ScegliOmon(1);
  bridge.Spunta(true);
  bridge.Spunta(false);
  EXPECT_EQ(bridge.Omon(), 1);
}

TEST(Ponte, TheDefaultsRunNoneOfTheClicksLogic) {
  Ponte bridge(true, 1);
  bridge.Predefinisci();
  EXPECT_FALSE(bridge.Acceso());
  EXPECT_EQ(bridge.Omon(), 0);
  EXPECT_FALSE(bridge.OmonLibero()) << "until the box is clicked";
  bridge.Spunta(true);
  EXPECT_EQ(bridge.Omon(), 1);
  bridge.Spunta(false);
  EXPECT_EQ(bridge.Omon(), 0) << "what it was when the box was clicked";
  EXPECT_TRUE(bridge.OmonLibero());
}

TEST(Ponte, TheDefaultsLeaveAFreeListFree) {
  Ponte bridge(false, 1);
  bridge.Predefinisci();
  EXPECT_EQ(bridge.Omon(), 0);
  EXPECT_TRUE(bridge.OmonLibero());
}

}  // namespace
}  // namespace kvr5
