#include "schedule/BancoPalinsesto.h"

namespace kvr5 {
namespace {

using ScheduleLayout = test::BancoPalinsesto;

TEST(ScheduleLayoutTable, AnOstrelInModeTwoHasOneScheduleWithAnyHour) {
  const auto layout = DisposizionePalinsestoDi(3, 2);
  EXPECT_EQ(layout.GiornoCorrente, 0);
  EXPECT_FALSE(layout.picFraDay);
  EXPECT_FALSE(layout.OreBloccate);
  EXPECT_EQ(layout.NumeroMassimoSegmenti, 128);
}

TEST(ScheduleLayoutTable, AnOstrelInAnyOtherModeHasOneForEachDayAndComesUpOnMonday) {
  for (std::int16_t mode = 0; mode <= 12; ++mode) {
    if (mode == 2) continue;
    const auto layout = DisposizionePalinsestoDi(3, mode);
    EXPECT_EQ(layout.GiornoCorrente, 1) << mode;
    EXPECT_TRUE(layout.picFraDay) << mode;
    EXPECT_FALSE(layout.OreBloccate) << mode;
    EXPECT_EQ(layout.NumeroMassimoSegmenti, 128) << mode;
  }
}

TEST(ScheduleLayoutTable, AKvr5InModeTwoHasOneScheduleInHourZero) {
  const auto layout = DisposizionePalinsestoDi(4, 2);
  EXPECT_EQ(layout.GiornoCorrente, 0);
  EXPECT_FALSE(layout.picFraDay);
  EXPECT_TRUE(layout.OreBloccate);
  EXPECT_EQ(layout.NumeroMassimoSegmenti, 60);
}

TEST_F(ScheduleLayout, IsThatOfTheProjectOnceItIsLoaded) {
  const std::vector<std::pair<std::int16_t, std::int16_t>> kinds{{3, 2}, {3, 3}, {4, 2}};
  for (const auto& [type, mode] : kinds) {
    Progetto(type, mode);
    Apri();
    EXPECT_EQ(editor.Disposizione(), DisposizionePalinsestoDi(type, mode)) << type << "/" << mode;
    EXPECT_EQ(editor.GiornoCorrente(), mode == 3 ? 1 : 0) << type << "/" << mode;
    editor.Chiudi();
  }
}

TEST_F(ScheduleLayout, OfTheNextLoadForgetsTheDayOfTheOneBefore) {
  Progetto(3, 3);
  Apri();
  editor.ScegliGiorno(5);
  editor.Chiudi();
  Apri();
  EXPECT_EQ(editor.GiornoCorrente(), 1);
}

}  // namespace
}  // namespace kvr5
