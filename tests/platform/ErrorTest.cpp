#include <gtest/gtest.h>

#include "platform/Error.h"

namespace kvr5 {
namespace {

TEST(Error, HoldsTheClassicWordsOfItsNumber) {
  EXPECT_EQ(Error(53).Description(), "File not found");
  EXPECT_EQ(Error(75).Description(), "Path/File access error");
  EXPECT_EQ(Error(4711).Description(), "Application-defined or object-defined error");
}

TEST(ErrorState, KeepsTheLastFailureUntilItIsCleared) {
  ErrorState state;
  EXPECT_FALSE(state.Record(Error(53)));
  EXPECT_TRUE(state.Record(Error()));
  EXPECT_EQ(state.Last().Number(), 53);
  EXPECT_FALSE(state.Record(Error(61)));
  EXPECT_EQ(state.Last().Number(), 61);
  state.Clear();
  EXPECT_FALSE(state);
}

TEST(Result, HoldsEitherAValueOrAnError) {
  const Result<int> good(7);
  const Result<int> bad(Error(6));
  EXPECT_TRUE(good);
  EXPECT_EQ(good.Value(), 7);
  EXPECT_FALSE(good.Err());
  EXPECT_FALSE(bad);
  EXPECT_EQ(bad.Err().Number(), 6);
}

}  // namespace
}  // namespace kvr5
