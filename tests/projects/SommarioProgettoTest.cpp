#include <gtest/gtest.h>

#include "platform/db/Connection.h"
#include "projects/CartellaProgetto.h"
#include "projects/SommarioProgetto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

TEST(SommarioProgetto, CountsTheListsOfAllDatabases) {
  Banco b;
  b.CreaProgetto("Z", 2, 0, 0);
  b.ScriviMp3("music/a.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", b.Percorso("music") + "\\", "5.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", b.Percorso("music") + "\\", "");
  b.AggiungiRiga("playlist.mdb", 1, 2, "gone.mp3", b.Percorso("music") + "\\", "P01-002.mp3");
  const auto summary = LeggiSommario(b.C);
  EXPECT_EQ(summary.Ingressi.size(), 1U);
  EXPECT_EQ(summary.Brani.size(), 2U);
  EXPECT_EQ(summary.Segmenti, 0U);
  EXPECT_EQ(summary.FileMancanti(), std::vector<std::string>{b.Percorso("music\\gone.mp3")});
}

TEST(SommarioProgetto, ARowWithItsAliasCopyInTheProjectIsNotMissing) {
  Banco b;
  b.CreaProgetto("S", 4, 2);
  b.ScriviMp3("program/Projects/S/F0-0011.mp3");
  b.AggiungiRiga("scheduler.mdb", 0, 1, "gone.mp3", "C:\\no\\where\\", "F0-0011.mp3", 1);
  Connection connection(b.C.Files);
  ASSERT_FALSE(connection.Open(FileDelProgetto(b.C, "scheduler.mdb")));
  ASSERT_FALSE(
      connection.Execute("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(0,#08.30#)"));
  connection.Close();
  const auto summary = LeggiSommario(b.C);
  EXPECT_EQ(summary.Segmenti, 1U);
  EXPECT_EQ(summary.Spot.size(), 1U);
  EXPECT_TRUE(summary.FileMancanti().empty());
}

TEST(SommarioProgetto, APatternThatMatchesIsNotMissingAndHasNoBytesOfItsOwn) {
  Banco b;
  b.CreaProgetto("P", 4, 5);
  b.ScriviMp3("music/a.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 1, "*.mp3", b.Percorso("music") + "\\", "");
  b.AggiungiRiga("playlist.mdb", 1, 2, "*.wav", b.Percorso("music") + "\\", "");
  const auto summary = LeggiSommario(b.C);
  ASSERT_EQ(summary.Brani.size(), 2U);
  EXPECT_FALSE(summary.Brani[0].Mancante);
  EXPECT_EQ(GrandezzaFile(b.C, summary.Brani[0]), 0U);
  EXPECT_TRUE(summary.Brani[1].Mancante);
}

TEST(SommarioProgetto, ADatabaseThatCannotBeReadCountsAsEmpty) {
  Banco b;
  b.CreaProgetto("P", 4, 5);
  for (const auto& bytes : {std::string(), std::string(8192, '\0'), std::string("text")}) {
    b.Cartella.Write("program/Projects/P/playlist.mdb", bytes);
    EXPECT_TRUE(LeggiSommario(b.C).Brani.empty());
    EXPECT_EQ(b.Cartella.Read("program/Projects/P/playlist.mdb"), bytes);
  }
}

}  // namespace
}  // namespace kvr5
