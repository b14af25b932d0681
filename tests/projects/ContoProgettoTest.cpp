#include <gtest/gtest.h>

#include "projects/ContoProgetto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

class Conto : public testing::Test {
 protected:
  void Track(int list, int pos, const std::string& name) {
    b.AggiungiRiga("playlist.mdb", list, pos, name, b.Percorso("music") + "\\", "");
  }
  /// Begins, and reads all rows.
  static void Begin(ContoProgetto& count, bool anew = true) {
    count.Comincia(anew);
    while (count.Leggi(2)) {
    }
  }
  Banco b;
};

TEST_F(Conto, RowsAreThereAtOnceAndTheFilesFollowInSteps) {
  b.CreaProgetto("Shop", 4, 5);
  b.ScriviMp3("music/a.mp3");
  b.ScriviMp3("music/b.mp3", 1);
  Track(1, 1, "a.mp3");
  Track(1, 2, "gone.mp3");
  Track(7, 1, "b.mp3");
  Track(7, 2, "A.MP3");
  ContoProgetto count(b.C);
  Begin(count);
  CifreProgetto expected;
  expected.Liste = 2;
  expected.Brani = 4;
  EXPECT_EQ(count.Cifre(), expected);
  EXPECT_TRUE(count.Passo(1));
  const auto size = b.Cartella.Read("music/a.mp3").size();
  EXPECT_EQ(count.Cifre().Byte, size);
  EXPECT_TRUE(count.Passo(1));
  EXPECT_EQ(count.Cifre().Mancanti, 1U);
  EXPECT_FALSE(count.Passo(100));
  expected.Mancanti = 1;
  expected.Byte = 2 * size;  // a source that stands twice counts once
  expected.Completo = true;
  EXPECT_EQ(count.Cifre(), expected);
  EXPECT_FALSE(count.Passo(1));
}

TEST_F(Conto, BeginsAnewWithWhatIsThereNow) {
  b.CreaProgetto("Shop", 4, 5);
  Track(1, 1, "gone.mp3");
  ContoProgetto count(b.C);
  Begin(count);
  EXPECT_FALSE(count.Passo(10));
  EXPECT_EQ(count.Cifre().Mancanti, 1U);
  b.ScriviMp3("music/gone.mp3");
  Begin(count);
  EXPECT_FALSE(count.Cifre().Completo);
  EXPECT_FALSE(count.Passo(10));
  EXPECT_EQ(count.Cifre().Mancanti, 0U);
}

TEST_F(Conto, RowsThatStayedAreNotReadAgainTheirFilesAre) {
  b.CreaProgetto("Shop", 4, 5);
  Track(1, 1, "gone.mp3");
  ContoProgetto count(b.C);
  Begin(count);
  EXPECT_FALSE(count.Passo(10));
  EXPECT_EQ(count.Cifre().Mancanti, 1U);
  b.ScriviMp3("music/gone.mp3");
  Begin(count, false);
  EXPECT_EQ(count.Cifre().Brani, 1U);
  EXPECT_FALSE(count.Passo(10));
  EXPECT_EQ(count.Cifre().Mancanti, 0U);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Shop/playlist.mdb");
  Begin(count, false);
  EXPECT_EQ(count.Cifre().Brani, 0U) << "it has changed";
}

TEST_F(Conto, ARowThatCameInTheSameSecondIsCountedToo) {
  b.CreaProgetto("Shop", 4, 5);
  Track(1, 1, "a.mp3");
  ContoProgetto count(b.C);
  Begin(count);
  const auto file = b.Cartella.Host() / "program/Projects/Shop/playlist.mdb";
  const auto date = std::filesystem::last_write_time(file);
  const auto size = std::filesystem::file_size(file);
  Track(1, 2, "b.mp3");
  ASSERT_EQ(std::filesystem::file_size(file), size);
  std::filesystem::last_write_time(file, date);
  Begin(count, false);
  EXPECT_EQ(count.Cifre().Brani, 2U);
}

TEST_F(Conto, RowsAreReadInStepsAndTheDatabaseIsFreeAfterThemOrAnInterruption) {
  b.CreaProgetto("Shop", 4, 5);
  for (int pos = 1; pos <= 9; ++pos) Track(1, pos, "a.mp3");
  ContoProgetto count(b.C);
  count.Comincia();
  EXPECT_FALSE(count.Cifre().Completo);
  EXPECT_TRUE(count.Leggi(4));
  EXPECT_TRUE(count.Leggi(4));
  EXPECT_FALSE(count.Leggi(4));
  EXPECT_EQ(count.Cifre().Brani, 9U);
  EXPECT_FALSE(count.Leggi(4)) << "there are no more";
  count.Comincia();
  EXPECT_TRUE(count.Leggi(4));
  count.Interrompi();
  EXPECT_FALSE(count.Leggi(4));
  Begin(count, false);
  EXPECT_EQ(count.Cifre().Brani, 9U) << "what was interrupted begins anew";
}

TEST_F(Conto, AnEmptyProjectIsCountedAtOnce) {
  b.CreaProgetto("Hall", 4, 1);
  ContoProgetto count(b.C);
  Begin(count);
  EXPECT_TRUE(count.Cifre().Completo);
  EXPECT_FALSE(count.Passo(1));
}

TEST_F(Conto, AnAliasCopyStandsInForASourceThatIsGone) {
  b.CreaProgetto("Hall", 4, 1);
  b.ScriviMp3("program/Projects/Hall/5.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "gone.mp3", b.Percorso("music") + "\\", "5.mp3");
  ContoProgetto count(b.C);
  Begin(count);
  EXPECT_FALSE(count.Passo(10));
  EXPECT_EQ(count.Cifre().Ingressi, 1U);
  EXPECT_EQ(count.Cifre().Mancanti, 0U);
  EXPECT_EQ(count.Cifre().Byte, b.Cartella.Read("program/Projects/Hall/5.mp3").size());
}

TEST_F(Conto, ADatabaseThatCannotBeReadIsNamed) {
  b.CreaProgetto("Shop", 4, 5);
  b.Cartella.Write("program/Projects/Shop/playlist.mdb", std::string(8192, 'x'));
  ContoProgetto count(b.C);
  Begin(count);
  EXPECT_EQ(count.Cifre().Illeggibile, "playlist.mdb");
}

}  // namespace
}  // namespace kvr5
