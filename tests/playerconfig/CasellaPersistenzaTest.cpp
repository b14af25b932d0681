#include <gtest/gtest.h>

#include "playerconfig/CasellaPersistenza.h"
#include "playerconfig/ConfigTxt.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

/// What a box holds when it is left with this text.
std::string Left(const char* text, const Locale& locale = {}) {
  CasellaPersistenza box({0, "0"}, locale);
  box.Cambia(text);
  box.PerdeFuoco();
  return box.Testo();
}

TEST(PersistenceBox, TakesDigitsAndControlKeysOnly) {
  CasellaPersistenza box({0, "0"}, {});
  for (char32_t c = U'0'; c <= U'9'; ++c) EXPECT_TRUE(box.Tasto(c));
  for (const char32_t c : {U'\b', U'\t', char32_t{3}}) EXPECT_TRUE(box.Tasto(c));
  for (const char32_t c :
       {U'a', U' ', U'-', U'.', U'/', U':', U'è', U'٣', char32_t{14}, char32_t{0x1F600}}) {
    EXPECT_FALSE(box.Tasto(c)) << static_cast<unsigned>(c);
  }
}

TEST(PersistenceBox, EnterIsDroppedAndLeavesTheBox) {
  CasellaPersistenza box({0, "0"}, {});
  box.Cambia("300");
  EXPECT_FALSE(box.Tasto(13));
  EXPECT_EQ(box.Testo(), "255");
}

TEST(PersistenceBox, ItsTextSelectsTheOption) {
  CasellaPersistenza box({0, "0"}, {});
  box.Cambia("5");
  EXPECT_TRUE(box.Acceso());
  box.Cambia("");
  EXPECT_TRUE(box.Acceso()) << "no number: the options stay";
  box.Cambia("abc");
  EXPECT_TRUE(box.Acceso());
  box.Cambia("0");
  EXPECT_FALSE(box.Acceso());
  box.Cambia("00");
  EXPECT_TRUE(box.Acceso()) << "any text but a single zero";
}

TEST(PersistenceBox, IsHeldInItsBoundsWhenItIsLeft) {
  EXPECT_EQ(Left("300"), "255");
  EXPECT_EQ(Left("256"), "255");
  EXPECT_EQ(Left("255"), "255");
  EXPECT_EQ(Left("abc"), "0");
  EXPECT_EQ(Left(""), "0");
  EXPECT_EQ(Left("99999999999999999999999999"), "255");
}

TEST(PersistenceBox, KeepsZerosInFrontWhenItIsLeft) {
  EXPECT_EQ(Left("007"), "007");
  EXPECT_EQ(Left("000"), "000");
  EXPECT_EQ(Left("0300"), "255");
}

TEST(PersistenceBox, LeavesOnlyDigitsBehindWhateverWasPasted) {
  EXPECT_EQ(Left("-5"), "0");
  EXPECT_EQ(Left("1e2"), "100");
  EXPECT_EQ(Left("2.5"), "2") << "halves go to the even neighbour";
  EXPECT_EQ(Left("+7"), "7");
  EXPECT_EQ(Left(" 8 "), "8");
  EXPECT_EQ(Left("1,5", {1040, 1252, ",", "."}), "2");
}

TEST(PersistenceBox, LeavingItSetsTheOptionToo) {
  CasellaPersistenza box({1, "9"}, {});
  box.Cambia("abc");
  box.PerdeFuoco();
  EXPECT_EQ(box.Stato(), (StatoParametro{0, "0"}));
}

TEST(PersistenceBox, ClickingOffPutsAZeroAndClickingOnPutsNothing) {
  CasellaPersistenza box({1, "9"}, {});
  box.ClicOff();
  EXPECT_EQ(box.Stato(), (StatoParametro{0, "0"}));
  box.ClicOn();
  EXPECT_EQ(box.Stato(), (StatoParametro{1, "0"}));
}

TEST(PersistenceBox, TheArrowsStepByOneInsideTheBounds) {
  CasellaPersistenza box({0, "0"}, {});
  box.Giu();
  EXPECT_EQ(box.Stato(), (StatoParametro{0, "0"}));
  box.Su();
  EXPECT_EQ(box.Stato(), (StatoParametro{1, "1"}));
  box.Giu();
  EXPECT_EQ(box.Stato(), (StatoParametro{0, "0"})) << "back at zero means off";
  box.Cambia("254");
  box.Su();
  box.Su();
  EXPECT_EQ(box.Testo(), "255");
  box.Cambia("900");
  box.Giu();
  EXPECT_EQ(box.Testo(), "254");
  box.Cambia("abc");
  box.Su();
  EXPECT_EQ(box.Testo(), "1");
}

TEST(PersistenceBox, GoesThroughTheFileAndBack) {
  test::Banco b;
  b.CreaProgetto("Hall", 4, 1);
  ControlliHub hub;
  CasellaPersistenza box(hub["TPCM"], b.C.Luogo);
  box.Cambia("007");
  box.PerdeFuoco();
  hub["TPCM"] = box.Stato();
  hub.AggiornaFile_ConfigTXT(b.C);
  EXPECT_EQ(LeggiChiaveConfig(b.C, "TPCM"), "007") << "as it stands";
  hub.Leggi(b.C);
  EXPECT_EQ(CasellaPersistenza(hub["TPCM"], b.C.Luogo).Stato(), (StatoParametro{1, "7"}));
}

}  // namespace
}  // namespace kvr5
