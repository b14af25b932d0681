#include <gtest/gtest.h>

#include "core/CopiaFileShell.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

TEST(CoppieDaListe, ALeadingBarIsDroppedAndTheOthersDivide) {
  const auto pairs = CoppieDaListe("|a.mp3|b.mp3", "|C:\\1.mp3|C:\\2.mp3");
  ASSERT_EQ(pairs.size(), 2U);
  EXPECT_EQ(pairs[0].Source, "a.mp3");
  EXPECT_EQ(pairs[0].Destination, "C:\\1.mp3");
  EXPECT_EQ(pairs[1].Source, "b.mp3");
  EXPECT_EQ(pairs[1].Destination, "C:\\2.mp3");
}

TEST(CoppieDaListe, OnePathIsOnePair) {
  const auto pairs = CoppieDaListe("C:\\p\\*.m3u", "E:\\");
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(pairs[0].Source, "C:\\p\\*.m3u");
  EXPECT_EQ(pairs[0].Destination, "E:\\");
}

TEST(CoppieDaListe, ListsOfDifferentLengthGiveNothing) {
  EXPECT_TRUE(CoppieDaListe("|a|b|c", "|x|y").empty());
  EXPECT_TRUE(CoppieDaListe("", "").empty());
}

TEST(CopiaFileShell, GoesOnThroughACancelThatIsToDoNothing) {
  Banco b;
  b.Cartella.Write("a.mp3", "one");
  b.Copia.AnnullaAlla = 1;
  std::vector<bool> stoppable;
  b.Copia.SuProgresso = [&](const CopyState& state) { stoppable.push_back(state.Stoppable); };
  const auto outcome =
      CopiaFileShell(b.C, b.Percorso("a.mp3"), b.Percorso("b.mp3"), AnnulloCopia::Nulla);
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
  EXPECT_EQ(b.Cartella.Read("b.mp3"), "one");
  ASSERT_FALSE(stoppable.empty());
  EXPECT_FALSE(stoppable.front());
}

TEST(CopiaFileShell, CopiesManyPairsInOneOperationAndOverwrites) {
  Banco b;
  b.Cartella.Write("a.mp3", "one");
  b.Cartella.Write("b.mp3", "two");
  b.Cartella.Write("card/2.mp3", "old and longer");
  const auto outcome =
      CopiaFileShell(b.C, "|" + b.Percorso("a.mp3") + "|" + b.Percorso("b.mp3"),
                     "|" + b.Percorso("card/1.mp3") + "|" + b.Percorso("card/2.mp3"));
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_EQ(outcome.FilesCopied, 2U);
  EXPECT_EQ(b.Cartella.Read("card/1.mp3"), "one");
  EXPECT_EQ(b.Cartella.Read("card/2.mp3"), "two");
  EXPECT_GT(b.Messaggi.Volte, 0);
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
}

TEST(CopiaFileShell, ACancelSetsTheFlagAndLeavesWhatWasCopied) {
  Banco b;
  b.Cartella.Write("a.mp3", "one");
  b.Cartella.Write("b.mp3", "two");
  b.Copia.SuProgresso = [&](const CopyState& state) {
    if (state.FileNumber == 2) b.Copia.AnnullaAlla = 1;
  };
  CopiaFileShell(b.C, b.Percorso("a.mp3") + "|" + b.Percorso("b.mp3"),
                 b.Percorso("card/1.mp3") + "|" + b.Percorso("card/2.mp3"));
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
  EXPECT_EQ(b.Nomi("card"), std::vector<std::string>{"1.mp3"});
}

TEST(CopiaFileShell, AnEarlierCancelIsLeftForTheCaller) {
  Banco b;
  b.C.Stato.AnnullatoDaUtente = true;
  b.Cartella.Write("a.mp3", "one");
  CopiaFileShell(b.C, b.Percorso("a.mp3"), b.Percorso("card/1.mp3"));
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
}

TEST(CoppieDaListe, OneDestinationServesAll) {
  const auto pairs = CoppieDaListe("a|b", "E:\\");
  ASSERT_EQ(pairs.size(), 2U);
  EXPECT_EQ(pairs[1].Source, "b");
  EXPECT_EQ(pairs[1].Destination, "E:\\");
}

TEST(CoppieDaListe, AnEmptyPathEndsItsList) {
  const auto pairs = CoppieDaListe("a||b", "E:\\x|");
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(pairs[0].Source, "a");
  EXPECT_EQ(pairs[0].Destination, "E:\\x");
  EXPECT_TRUE(CoppieDaListe("||a", "E:\\").empty());
}

TEST(CopiaFileShell, ABarInsideAPathIsAFailedCopyThatIsTold) {
  Banco b;
  b.Cartella.Write("a.mp3", "one");
  const auto outcome =
      CopiaFileShell(b.C, "|" + b.Percorso("a.mp3") + "|C:\\x|y.mp3",
                     "|" + b.Percorso("card/1.mp3") + "|" + b.Percorso("card/2.mp3"));
  EXPECT_NE(outcome.Result, 0);
  EXPECT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Nomi("card").empty());
}

TEST(CopiaFileShell, AFailureIsToldByTheCopyWindowAndLeavesNoPendingError) {
  Banco b;
  CopiaFileShell(b.C, b.Percorso("gone.mp3"), b.Percorso("card/1.mp3"));
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::FileNotFound);
  EXPECT_FALSE(b.C.Errore);
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
}

}  // namespace
}  // namespace kvr5
