#include "cli/Verbi.h"
#include "platform/db/Connection.h"

namespace kvr5 {
namespace {

using nlohmann::json;

using InputsVerb = test::Verbi;

TEST_F(InputsVerb, AreSetListedAndCleared) {
  New();
  k.ScriviMp3("music/Door.MP3");
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "IN1+IN3", k.Host("music/door.mp3")}).Stato, 0);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "1", k.Percorso("music/Door.MP3")}).Stato, 0);
  EXPECT_EQ(k.EseguiJson({"inputs", "Hall", "list"}).Oggetti(),
            (std::vector<json>{{{"Pos", 1},
                                {"Alias", "1.mp3"},
                                {"FileName", "Door.MP3"},
                                {"FilePath", k.Percorso("music") + "\\"}},
                               {{"Pos", 5},
                                {"Alias", "5.mp3"},
                                {"FileName", "Door.MP3"},
                                {"FilePath", k.Percorso("music") + "\\"}}}))
      << "the spelling of the disk is what is stored";
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "clear", "5"}).Stato, 0);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "clear", "5"}).Stato, 0) << "a free code";
  EXPECT_EQ(k.EseguiJson({"inputs", "Hall", "list"}).Oggetti().size(), 1U);
}

TEST_F(InputsVerb, RefuseWhatTheHubRefuses) {
  New();
  k.ScriviMp3("music/a.wav");
  k.Cartella.Write("music/junk.mp3", std::string(5000, 'x'));
  k.Cartella.Write("music/empty.mp3", "");
  k.ScriviMp3("music/bar|.mp3");
  std::filesystem::create_directories(k.Host("music/folder.mp3"));
  for (const char* name :
       {"a.wav", "junk.mp3", "empty.mp3", "gone.mp3", "folder.mp3", "bar|.mp3"}) {
    const auto run = k.EseguiJson({"inputs", "Hall", "set", "1", k.Host("music/") + name});
    EXPECT_EQ(run.Stato, 1) << name;
    EXPECT_EQ(run.Box().size(), 1U) << name;
  }
  EXPECT_TRUE(k.EseguiJson({"inputs", "Hall", "list"}).Oggetti().empty());
}

TEST_F(InputsVerb, WithRs485InUseTheInputs5And6AreRefused) {
  New();
  k.ScriviMp3("music/a.mp3");
  const auto descriptor = k.Cartella.Read("program/Projects/Hall/Config.cfg");
  k.Cartella.Write("program/Projects/Hall/Config.cfg", descriptor + "Use485=1\r\n");
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "16", k.Host("music/a.mp3")}).Stato, 1);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "IN6+IN1", k.Host("music/a.mp3")}).Stato, 1);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "clear", "IN5"}).Stato, 1);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "15", k.Host("music/a.mp3")}).Stato, 0);
}

TEST_F(InputsVerb, OfAProjectWithoutTheirDatabaseAreStatus3) {
  New("5");
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "list"}).Stato, 3);
  std::filesystem::copy(k.Host("program/source.mdb"), Project() + "/inputcfg.mdb");
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "list"}).Stato, 0) << "whatever the mode hides";
}

TEST_F(InputsVerb, AnInputNamedTwiceIsWrongUsage) {
  New();
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "clear", "IN1+IN1"}).Stato, 2);
}

TEST_F(InputsVerb, AHiddenFileIsRefusedForWhatItIs) {
  New();
  k.ScriviMp3("music/.a.mp3");
  const auto run = k.EseguiJson({"inputs", "Hall", "set", "1", k.Host("music/.a.mp3")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_TRUE(run.Box().at(0)["text"].get<std::string>().ends_with("a hidden file isn't taken"));
}

TEST_F(InputsVerb, RowsOfOtherHandsAreListedAsTheyAre) {
  k.CreaProgetto("Hall", 4, 1);
  k.AggiungiRiga("inputcfg.mdb", 1, 300, "a.mp3", "C:\\m\\", "");
  Connection connection(k.Disco);
  ASSERT_FALSE(connection.Open(k.C.Stato.CartellaProgetto + "\\inputcfg.mdb"));
  ASSERT_FALSE(connection.Execute("UPDATE [List] SET [Alias]=Null"));
  connection.Close();
  const auto rows = k.EseguiJson({"inputs", "Hall", "list"}).Oggetti();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0]["Pos"], 300);
  EXPECT_TRUE(rows[0]["Alias"].is_null());
  EXPECT_NE(k.Esegui({"inputs", "Hall", "list"}).Uscita.find("  300  "), std::string::npos);
}

TEST_F(InputsVerb, ADamagedTableNeverPassesForAWholeOne) {
  constexpr int kRows = 255;
  constexpr std::size_t kPage = 4096;
  k.CreaProgetto("Hall", 4, 1);
  for (int i = 1; i <= kRows; ++i) {
    k.AggiungiRiga("inputcfg.mdb", 1, i, "a.mp3", "C:\\music\\", std::to_string(i) + ".mp3");
  }
  const std::string path = "program/Projects/Hall/inputcfg.mdb";
  const std::string whole = k.Cartella.Read(path);
  for (std::size_t page = kPage; page + kPage <= whole.size(); page += kPage) {
    std::string damaged = whole;
    damaged.replace(page, kPage, kPage, '\xEE');
    k.Cartella.Write(path, damaged);
    const auto run = k.EseguiJson({"inputs", "Hall", "list"});
    EXPECT_TRUE(run.Stato == 1 || run.Oggetti().size() == kRows) << "page " << page / kPage;
    const auto show = k.EseguiJson({"show", "Hall"});
    EXPECT_TRUE(show.Stato == 1 || show.Oggetti().at(0)["inputs"] == kRows);
  }
}

}  // namespace
}  // namespace kvr5
