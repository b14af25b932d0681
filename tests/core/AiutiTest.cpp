#include <gtest/gtest.h>

#include "core/Aiuti.h"

namespace kvr5 {
namespace {

TEST(RiempiZeri, PadsOnTheLeftAndLeavesLongerTexts) {
  EXPECT_EQ(RiempiZeri("2", 3), "002");
  EXPECT_EQ(RiempiZeri("", 2), "00");
  EXPECT_EQ(RiempiZeri("12345", 3), "12345");
  EXPECT_EQ(RiempiZeri("485", 4), "0485");
}

TEST(AggiungiBarra, ClosesAPathOnce) {
  EXPECT_EQ(AggiungiBarra("C:\\"), "C:\\");
  EXPECT_EQ(AggiungiBarra("C:\\Music"), "C:\\Music\\");
  EXPECT_EQ(AggiungiBarra(""), "\\");
}

TEST(EstraiCartella, IsThePartUpToTheLastBackslash) {
  EXPECT_EQ(EstraiCartella("C:\\Music\\a.mp3"), "C:\\Music\\");
  EXPECT_EQ(EstraiCartella("C:\\Music\\"), "C:\\Music\\");
  EXPECT_EQ(EstraiCartella("abc"), "");
  EXPECT_EQ(EstraiCartella(""), "");
}

TEST(EstraiNomeFile, IsThePartBehindTheLastBackslash) {
  EXPECT_EQ(EstraiNomeFile("C:\\Music\\a.mp3"), "a.mp3");
  EXPECT_EQ(EstraiNomeFile("C:\\Music\\"), "");
  EXPECT_EQ(EstraiNomeFile("abc"), "abc");
  EXPECT_EQ(EstraiNomeFile(""), "");
}

TEST(TogliEstensione, CutsAtTheLastDotAndGivesNothingWithoutOne) {
  EXPECT_EQ(TogliEstensione("a.b.mp3"), "a.b");
  EXPECT_EQ(TogliEstensione(".mp3"), "");
  EXPECT_EQ(TogliEstensione("abc"), "");
  EXPECT_EQ(TogliEstensione(""), "");
}

TEST(NomeModello, KnowsFourModels) {
  EXPECT_EQ(NomeModello(1), "Veskadro");
  EXPECT_EQ(NomeModello(2), "Zub");
  EXPECT_EQ(NomeModello(3), "Ostrel");
  EXPECT_EQ(NomeModello(4), "KVR5");
  for (const std::int16_t other : std::initializer_list<std::int16_t>{-32768, -1, 0, 5, 32767})
    EXPECT_EQ(NomeModello(other), "");
}

TEST(Rifila, TakesBlanksFromBothEndsOnly) {
  EXPECT_EQ(Rifila("  a b  "), "a b");
  EXPECT_EQ(Rifila("   "), "");
  EXPECT_EQ(Rifila("\ta"), "\ta");
}

}  // namespace
}  // namespace kvr5
