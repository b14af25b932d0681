#include <gtest/gtest.h>

#include <limits>

#include "core/FinestraProgresso.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

class Progress : public testing::Test {
 protected:
  Banco b;
  FinestraProgresso p{b.C};
};

TEST_F(Progress, SevenStagesEndAtTheFullBarAndOneHundredPercent) {
  p.Operazione("work");
  p.ValoreMassimo = 7;
  p.Progresso(1);
  EXPECT_EQ(p.TestoPercento(), "") << "the labels are left alone";
  for (int i = 0; i < 6; ++i) p.Step(0, false);
  EXPECT_EQ(p.LarghezzaBarra(), 5880);
  EXPECT_EQ(p.TestoPercento(), "100%");
}

TEST_F(Progress, ThePercentageDropsItsFraction) {
  p.ValoreMassimo = 7;
  p.Progresso(1);
  p.Step(0, false);
  EXPECT_EQ(p.TestoPercento(), "28%");
  EXPECT_EQ(p.LarghezzaBarra(), 1680);
}

TEST_F(Progress, ThePercentageIsExactWhereFractionsOfTwoAreNot) {
  p.ValoreMassimo = 100;
  for (const int value : {29, 57, 58}) {
    p.Progresso(value - 1);
    p.Step(0, false);
    EXPECT_EQ(p.TestoPercento(), std::to_string(value) + "%");
  }
}

TEST_F(Progress, AStepWithoutANumberHidesTheCounterAndStillMoves) {
  p.ValoreMassimo = 4;
  EXPECT_TRUE(p.NumFileVisibile());
  p.Step(0, false);
  EXPECT_FALSE(p.NumFileVisibile());
  EXPECT_EQ(p.TestoPercento(), "25%");
}

TEST_F(Progress, AStepShowsItsNumberOrTheNextOne) {
  p.ValoreMassimo = 10;
  p.FileTotali = 9;
  p.Step(5, false);
  EXPECT_EQ(p.TestoNumFile(), "5/9");
  p.Step(1, true);
  EXPECT_EQ(p.TestoNumFile(), "6/9");
  p.IncrementaContatoreFile();
  EXPECT_EQ(p.TestoNumFile(), "7/9");
}

TEST_F(Progress, BeyondTheBoundsTheDisplayStaysAndTheValueCounts) {
  p.ValoreMassimo = 2;
  p.Progresso(2);
  p.Step(3, false);
  EXPECT_EQ(p.ValoreCorrente, 3);
  EXPECT_EQ(p.LarghezzaBarra(), 5880);
  EXPECT_EQ(p.TestoPercento(), "");
  EXPECT_EQ(p.TestoNumFile(), "1/1");
}

TEST_F(Progress, AMaximumOfZeroStopsThePainting) {
  p.Progresso(0);
  EXPECT_EQ(p.LarghezzaBarra(), 0);
  p.ValoreCorrente = std::numeric_limits<std::int32_t>::max();
  p.Step(0, false);
  EXPECT_EQ(p.ValoreCorrente, std::numeric_limits<std::int32_t>::max());
}

TEST_F(Progress, AStepOntoZeroOfZeroKeepsBarAndPercentageAndStillCounts) {
  p.ValoreMassimo = 7;
  p.FileTotali = 9;
  p.Step(0, false);
  ASSERT_EQ(p.LarghezzaBarra(), 840);
  ASSERT_EQ(p.TestoPercento(), "14%");
  p.ValoreMinimo = -3;
  p.ValoreMassimo = 0;
  const auto expectAsBefore = [&] {
    EXPECT_EQ(p.ValoreCorrente, 0);
    EXPECT_EQ(p.LarghezzaBarra(), 840);
    EXPECT_EQ(p.TestoPercento(), "14%");
  };
  p.ValoreCorrente = -1;
  p.Step(3, false);
  expectAsBefore();
  EXPECT_TRUE(p.NumFileVisibile());
  EXPECT_EQ(p.TestoNumFile(), "3/9");
  p.ValoreCorrente = -1;
  p.Step(1, true);
  expectAsBefore();
  EXPECT_EQ(p.TestoNumFile(), "4/9");
  p.ValoreCorrente = -1;
  p.Step(0, false);
  expectAsBefore();
  EXPECT_FALSE(p.NumFileVisibile());
}

TEST_F(Progress, LoadingClearsACancelAndAPlainMemberDoesNotLoad) {
  b.C.Stato.AnnullatoDaUtente = true;
  p.ValoreMassimo = 7;
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
  p.Operazione("first use of a control");
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
  b.C.Stato.AnnullatoDaUtente = true;
  p.Operazione("already loaded");
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
}

TEST_F(Progress, CancelRaisesTheFlagAndSaysTheSameTwice) {
  p.Operazione("work");
  for (int i = 0; i < 2; ++i) {
    p.Annulla();
    EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
    EXPECT_EQ(p.TestoOperazione(), "Noted; please wait until the work ends");
  }
}

TEST_F(Progress, CancelOnAWindowThatWasNotLoadedIsNotLost) {
  p.Annulla();
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
}

TEST_F(Progress, ShowingLoads) {
  b.C.Stato.AnnullatoDaUtente = true;
  p.Mostra();
  EXPECT_TRUE(p.Visibile());
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
  p.Nascondi();
  EXPECT_FALSE(p.Visibile());
  EXPECT_TRUE(p.Caricata()) << "a hidden window stays loaded";
}

TEST_F(Progress, AStepLetsEventsRunTwiceInsideTheBoundsAndNotAtAllBeyond) {
  p.ValoreMassimo = 1;
  p.Step(0, false);
  EXPECT_EQ(b.Messaggi.Volte, 2);
  p.Step(0, false);
  EXPECT_EQ(b.Messaggi.Volte, 2);
  p.IncrementaContatoreFile();
  EXPECT_EQ(b.Messaggi.Volte, 3);
  p.Annulla();
  EXPECT_EQ(b.Messaggi.Volte, 4);
}

TEST_F(Progress, BelowTheMinimumTheBarStays) {
  p.ValoreMinimo = 5;
  p.ValoreMassimo = 10;
  p.Progresso(4);
  EXPECT_EQ(p.ValoreCorrente, 4);
  EXPECT_EQ(p.LarghezzaBarra(), 0);
  p.Progresso(5);
  EXPECT_EQ(p.LarghezzaBarra(), 2940);
}

TEST_F(Progress, ACounterThatWasHiddenIsShownAgain) {
  p.ValoreMassimo = 9;
  p.Step(0, false);
  EXPECT_FALSE(p.NumFileVisibile());
  p.IncrementaContatoreFile();
  EXPECT_TRUE(p.NumFileVisibile());
  p.Step(0, false);
  p.Step(2, false);
  EXPECT_TRUE(p.NumFileVisibile());
}

TEST_F(Progress, AnExtremeRatioIsShownWithoutHarm) {
  p.ValoreMinimo = std::numeric_limits<std::int32_t>::min();
  p.ValoreMassimo = 1;
  p.ValoreCorrente = std::numeric_limits<std::int32_t>::min();
  p.Step(0, false);
  EXPECT_EQ(p.TestoPercento(), "-214748364700%");
}

TEST_F(Progress, TheTextBlinksAtEachTickOfALoadedWindow) {
  p.Tick();
  EXPECT_TRUE(p.TestoAcceso()) << "the timer runs from the load on";
  p.Operazione("work");
  p.Tick();
  EXPECT_FALSE(p.TestoAcceso());
  p.Tick();
  EXPECT_TRUE(p.TestoAcceso());
  p.Tick();
  p.Scarica();
  EXPECT_TRUE(p.TestoAcceso());
}

TEST_F(Progress, TheBarIsDrawnInWholePixelsOf392) {
  p.ValoreMassimo = 7;
  EXPECT_EQ(p.PixelBarra(), 0);
  p.Progresso(1);
  EXPECT_EQ(p.PixelBarra(), 56);
  p.Progresso(7);
  EXPECT_EQ(p.PixelBarra(), 392);
  p.ValoreMassimo = 1000;
  p.Progresso(1);
  EXPECT_EQ(p.PixelBarra(), 0);
  p.Progresso(2);
  EXPECT_EQ(p.PixelBarra(), 1);
}

TEST_F(Progress, ABarOfBoundsBelowZeroIsDrawnInsideItsFrame) {
  p.ValoreMinimo = -9;
  p.ValoreMassimo = 7;
  p.Progresso(-3);
  EXPECT_EQ(p.PixelBarra(), 0);
  p.ValoreMassimo = -1;
  p.Progresso(-3);
  EXPECT_EQ(p.PixelBarra(), 392);
}

TEST_F(Progress, UnloadingGivesEverythingItsInitialValue) {
  const std::string operation = p.TestoOperazione();
  const std::string percentage = p.TestoPercento();
  p.Operazione("work");
  p.ValoreMinimo = 1;
  p.ValoreMassimo = 7;
  p.FileTotali = 3;
  p.Progresso(4);
  p.Step(2, false);
  p.Step(0, false);
  p.Mostra();
  ASSERT_EQ(p.ValoreCorrente, 6);
  ASSERT_EQ(p.FileCorrente, 2);
  ASSERT_EQ(p.TestoPercento(), "85%");
  ASSERT_FALSE(p.NumFileVisibile());
  p.Scarica();
  EXPECT_FALSE(p.Caricata());
  EXPECT_FALSE(p.Visibile());
  EXPECT_EQ(p.ValoreMinimo, 0);
  EXPECT_EQ(p.ValoreMassimo, 0);
  EXPECT_EQ(p.ValoreCorrente, 0);
  EXPECT_EQ(p.FileTotali, 0);
  EXPECT_EQ(p.FileCorrente, 0);
  EXPECT_EQ(p.LarghezzaBarra(), 0);
  EXPECT_EQ(operation, "Operat");
  EXPECT_EQ(p.TestoOperazione(), operation);
  EXPECT_EQ(p.TestoPercento(), percentage);
  EXPECT_EQ(p.TestoNumFile(), "1/1");
  EXPECT_TRUE(p.NumFileVisibile());
  p.Scarica();
  EXPECT_FALSE(p.Caricata()) << "a second unload doesn't load it";
}

}  // namespace
}  // namespace kvr5
