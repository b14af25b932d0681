#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "platform/db/Keyset.h"

namespace kvr5 {
namespace {

TEST(Keyset, CountsPlacesOverTheLivingRowsAlone) {
  Keyset keys;
  for (int i = 0; i < 5; ++i) keys.Append(100 + i);
  keys.Remove(0);
  keys.Remove(3);
  EXPECT_EQ(keys.Living(), 3);
  EXPECT_EQ(keys.SlotAt(1), 1U);
  EXPECT_EQ(keys.SlotAt(2), 2U);
  EXPECT_EQ(keys.SlotAt(3), 4U);
  EXPECT_EQ(keys.PlaceOf(0), 0);
  EXPECT_EQ(keys.PlaceOf(3), 2);
  EXPECT_EQ(keys.PlaceOf(4), 3);
  EXPECT_EQ(keys.Key(4), 104);
  EXPECT_FALSE(keys.Lives(3));
}

TEST(Keyset, AgreesWithAPlainListOverRandomAdditionsAndRemovals) {
  std::mt19937 random(20240501);
  for (int round = 0; round < 50; ++round) {
    Keyset keys;
    std::vector<bool> lives;
    for (int step = 0; step < 300; ++step) {
      if (lives.empty() || random() % 3 != 0) {
        keys.Append(step);
        lives.push_back(true);
      } else if (const std::size_t slot = random() % lives.size(); lives[slot]) {
        keys.Remove(slot);
        lives[slot] = false;
      }
    }
    int place = 0;
    for (std::size_t slot = 0; slot < lives.size(); ++slot) {
      ASSERT_EQ(keys.Lives(slot), lives[slot]);
      if (lives[slot]) {
        ++place;
        ASSERT_EQ(keys.SlotAt(place), slot);
      }
      ASSERT_EQ(keys.PlaceOf(slot), place);
    }
    ASSERT_EQ(keys.Living(), place);
  }
}

}  // namespace
}  // namespace kvr5
