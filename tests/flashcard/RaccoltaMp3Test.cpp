#include <gtest/gtest.h>

#include "core/Aiuti.h"
#include "flashcard/RaccoltaMp3.h"
#include "projects/CartellaProgetto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

/// Rows of one database and the pass over them.
class Collecting : public testing::TestWithParam<Passata> {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, Mode());
    b.C.Stato.PercorsoMemoryCard = "E:\\";
    b.ScriviMp3("music/a.mp3", 1);
    b.ScriviMp3("music/b.mp3", 2);
  }
  std::int16_t Mode() const {
    if (GetParam() == Passata::Ingressi) return 1;
    return GetParam() == Passata::Palinsesto ? 2 : 5;
  }
  std::string Database() const {
    if (GetParam() == Passata::Ingressi) return "inputcfg.mdb";
    return GetParam() == Passata::Palinsesto ? "scheduler.mdb" : "playlist.mdb";
  }
  std::string Music() const { return b.Percorso("music") + "\\"; }
  std::string Project(const std::string& name = "") const {
    return b.Percorso("program/Projects/Hall") + "\\" + name;
  }
  void Row(int pos, const std::string& name, const std::string& folder, const std::string& alias) {
    b.AggiungiRiga(Database(), 1, pos, name, folder, alias);
  }
  EsitoPassata Run() {
    Connection connection(b.C.Files);
    Recordset rows;
    Ignora(connection.Open(FileDelProgetto(b.C, Database())));
    Ignora(rows.Open(connection, "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC"));
    return RaccogliMp3(b.C, GetParam(), rows, list, Database(), b.C.Stato.PercorsoMemoryCard);
  }

  Banco b;
  ListaCopia list;
};

INSTANTIATE_TEST_SUITE_P(Passes, Collecting,
                         testing::Values(Passata::Ingressi, Passata::Playlist, Passata::Palinsesto),
                         [](const auto& each) {
                           return std::string(each.param == Passata::Ingressi   ? "Inputs"
                                              : each.param == Passata::Playlist ? "Playlists"
                                                                                : "Schedule");
                         });

TEST_P(Collecting, ASourceGoesToTheCardUnderItsAlias) {
  Row(2, "b.mp3", Music(), "2.mp3");
  Row(1, "a.mp3", Music(), "1.mp3");
  EXPECT_TRUE(Run().Riuscita);
  EXPECT_EQ(list.ListaSorgenti(), "|" + Music() + "a.mp3|" + Music() + "b.mp3");
  EXPECT_EQ(list.ListaDestinazioni(), "|E:\\1.mp3|E:\\2.mp3");
}

TEST_P(Collecting, TheAliasCopyOfTheProjectComesFirstAndFilePathIsNotUsed) {
  b.ScriviMp3("program/Projects/Hall/1.mp3");
  Row(1, "gone.mp3", "C:\\no\\where\\", "1.mp3");
  EXPECT_TRUE(Run().Riuscita);
  EXPECT_EQ(list.ListaSorgenti(), "|" + Project("1.mp3"));
  EXPECT_EQ(list.ListaDestinazioni(), "|E:\\1.mp3");
}

TEST_P(Collecting, TheSameAliasCopyIsListedOnce) {
  b.ScriviMp3("program/Projects/Hall/1.mp3");
  Row(1, "a.mp3", Music(), "1.mp3");
  Row(2, "a.mp3", Music(), "1.MP3");
  EXPECT_TRUE(Run().Riuscita);
  EXPECT_EQ(list.ListaSorgenti(), "|" + Project("1.mp3"));
}

TEST_P(Collecting, ARowWithoutAnAliasIsPassedOver) {
  Row(1, "a.mp3", Music(), "");
  Row(2, "b.mp3", Music(), "2.mp3");
  EXPECT_TRUE(Run().Riuscita);
  EXPECT_EQ(list.ListaSorgenti(), "|" + Music() + "b.mp3");
}

TEST_P(Collecting, ASecondAliasOfOneSourceStopsTheInputsAndIsDroppedElsewhere) {
  Row(1, "a.mp3", Music(), "1.mp3");
  Row(2, "A.MP3", Music(), "2.mp3");
  const auto outcome = Run();
  if (GetParam() == Passata::Ingressi) {
    EXPECT_FALSE(outcome.Riuscita);
    EXPECT_EQ(outcome.FileMancante, "A.MP3") << "the name alone, as the row spells it";
  } else {
    EXPECT_TRUE(outcome.Riuscita);
  }
  EXPECT_EQ(list.ListaSorgenti(), "|" + Music() + "a.mp3");
  EXPECT_EQ(list.ListaDestinazioni(), "|E:\\1.mp3");
}

TEST_P(Collecting, AMissingSourceStopsThePassExceptForInputs) {
  Row(1, "a.mp3", Music(), "1.mp3");
  Row(2, "gone.mp3", Music(), "2.mp3");
  Row(3, "b.mp3", Music(), "3.mp3");
  const auto outcome = Run();
  if (GetParam() == Passata::Ingressi) {
    EXPECT_TRUE(outcome.Riuscita) << "this pass doesn't test its sources";
    EXPECT_EQ(list.ListaSorgenti(),
              "|" + Music() + "a.mp3|" + Music() + "gone.mp3|" + Music() + "b.mp3");
  } else {
    EXPECT_FALSE(outcome.Riuscita);
    EXPECT_EQ(outcome.FileMancante, Music() + "gone.mp3");
    EXPECT_EQ(list.ListaSorgenti(), "|" + Music() + "a.mp3");
  }
}

TEST_P(Collecting, TheTestAddsABackslashThatTheSourceDoesNotGet) {
  Row(1, "a.mp3", b.Percorso("music"), "1.mp3");  // a folder stored without its backslash
  EXPECT_TRUE(Run().Riuscita);
  EXPECT_EQ(list.ListaSorgenti(), "|" + b.Percorso("music") + "a.mp3");
}

TEST_P(Collecting, NamesMatchWithoutRegardToCase) {
  b.ScriviMp3("program/Projects/Hall/ONE.MP3");
  Row(1, "x.mp3", Music(), "one.mp3");
  Row(2, "B.MP3", Music(), "2.mp3");
  EXPECT_TRUE(Run().Riuscita);
  EXPECT_EQ(list.ListaSorgenti(), "|" + Project("one.mp3") + "|" + Music() + "B.MP3");
}

TEST_P(Collecting, AnEmptyOrUnreadableDatabaseIsPassedOver) {
  EXPECT_TRUE(Run().Riuscita);
  b.Cartella.Write("program/Projects/Hall/" + Database(), std::string(4096, '\0'));
  EXPECT_TRUE(Run().Riuscita);
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall" / Database());
  EXPECT_TRUE(Run().Riuscita);
  EXPECT_EQ(list.ListaSorgenti(), "");
}

TEST_P(Collecting, AnAliasThatLeadsOutOfTheRootStopsThePass) {
  Row(1, "a.mp3", Music(), "..\\escaped.mp3");
  const auto outcome = Run();
  EXPECT_FALSE(outcome.Riuscita);
  EXPECT_EQ(outcome.FileMancante,
            GetParam() == Passata::Ingressi ? "a.mp3" : AggiungiBarra(Music()) + "a.mp3");
  EXPECT_EQ(list.ListaSorgenti(), "");
}

TEST_P(Collecting, ABarThatWouldDivideTheListsStopsThePass) {
  Row(1, "a.mp3", Music(), "a|b.mp3");
  EXPECT_FALSE(Run().Riuscita);
  EXPECT_EQ(list.ListaSorgenti(), "");
}

TEST_P(Collecting, ADatabaseThatCannotBeReadToItsEndStopsThePass) {
  // Each input has its own file: a repeat would end that pass before.
  const bool inputs = GetParam() == Passata::Ingressi;
  for (int i = 1; i <= 200; ++i) {
    const std::string name = inputs ? "n" + std::to_string(i) + ".mp3" : "a.mp3";
    Row(i, name, Music(), std::string(60, 'x') + std::to_string(i) + ".mp3");
  }
  const std::string path = "program/Projects/Hall/" + Database();
  std::string bytes = b.Cartella.Read(path);
  for (std::size_t at = 4096 * 8; at < bytes.size(); ++at) bytes[at] = '\xEE';
  b.Cartella.Write(path, bytes);
  const auto outcome = Run();
  if (outcome.Riuscita) {
    EXPECT_EQ(list.ListaSorgenti(), "") << "refused as a whole at opening";
  } else {
    EXPECT_EQ(outcome.FileMancante, FileDelProgetto(b.C, Database()));
  }
}

TEST_P(Collecting, RowsComeByListAndPlace) {
  b.AggiungiRiga(Database(), 2, 1, "b.mp3", Music(), "21.mp3");
  b.AggiungiRiga(Database(), 1, 9, "a.mp3", Music(), "19.mp3");
  EXPECT_TRUE(Run().Riuscita);
  EXPECT_EQ(list.ListaDestinazioni(), "|E:\\19.mp3|E:\\21.mp3");
}

TEST_P(Collecting, AListMadeBeforeIsGoneOnWith) {
  list.Aggiungi(Music() + "a.mp3", "E:\\first.mp3");
  Row(1, "a.mp3", Music(), "1.mp3");
  EXPECT_EQ(Run().Riuscita, GetParam() != Passata::Ingressi);
  EXPECT_EQ(list.ListaDestinazioni(), "|E:\\first.mp3");
}

}  // namespace
}  // namespace kvr5
