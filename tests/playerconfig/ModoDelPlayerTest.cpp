#include <gtest/gtest.h>

#include "playerconfig/ModoDelPlayer.h"

namespace kvr5 {
namespace {

TEST(ModeOfThePlayer, StandsBetweenTheFirstBracketAndTheOneThatClosesIt) {
  EXPECT_EQ(ModoDelPlayer("KVR5 (Inputs)"), "Inputs");
  EXPECT_EQ(ModoDelPlayer("KVR5 (Playlist 3 contacts)"), "Playlist 3 contacts");
  EXPECT_EQ(ModoDelPlayer("KVR5 ( Inputs ) (two)"), "Inputs");
  EXPECT_EQ(ModoDelPlayer(") a (b) c"), "b");
  EXPECT_EQ(ModoDelPlayer("Zub Player (Inputs)"), "Inputs");
  EXPECT_EQ(ModoDelPlayer("()"), "");
}

TEST(ModeOfThePlayer, FollowsTheModelsNameWhereThereIsNoBracket) {
  EXPECT_EQ(ModoDelPlayer("Zub Player Inputs "), "Inputs");
  EXPECT_EQ(ModoDelPlayer("My Zub Player"), "");
  EXPECT_EQ(ModoDelPlayer("Zub Player a) b"), "a) b");
}

TEST(ModeOfThePlayer, IsEmptyInAnyOtherCaption) {
  EXPECT_EQ(ModoDelPlayer(""), "");
  EXPECT_EQ(ModoDelPlayer("Veskadro"), "");
  EXPECT_EQ(ModoDelPlayer("zub player Inputs"), "");
  EXPECT_EQ(ModoDelPlayer("KVR5 (Inputs"), "") << "never closed";
}

TEST(ModeOfThePlayer, IsLabelledOnAllButTheLabelsOfModelTwo) {
  const auto labels = EtichetteDelModo("KVR5 (Inputs)", "Modalità");
  for (const auto* label : {&labels.lblModoPanel, &labels.lblModoPanelBig, &labels.lblModoOstrel,
                            &labels.lblModoOstrelBig}) {
    EXPECT_EQ(*label, "Modalità:Inputs");
  }
  EXPECT_EQ(labels.lblModoZub, "Inputs");
  EXPECT_EQ(labels.lblModoZubBig, "Inputs");
}

TEST(ModeOfThePlayer, WithoutAModeTheLabelsHoldTheWordAndNothingBehind) {
  const auto labels = EtichetteDelModo("Veskadro", "Mode");
  EXPECT_EQ(labels.lblModoPanel, "Mode:");
  EXPECT_EQ(labels.lblModoZub, "");
}

}  // namespace
}  // namespace kvr5
