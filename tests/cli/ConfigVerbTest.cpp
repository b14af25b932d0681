#include "cli/Verbi.h"

namespace kvr5 {
namespace {

using nlohmann::json;

class ConfigVerb : public test::Verbi {
 protected:
  std::string Value(const std::string& key) const {
    return k.EseguiJson({"config", "Hall", "get", key}).Oggetti().at(0)["value"];
  }
};

TEST_F(ConfigVerb, GetsValuesWithTheirWords) {
  New();
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "get", "lout", "MIRS"}).Oggetti(),
            (std::vector<json>{{{"key", "LOUT"}, {"value", "14"}, {"shown", "0 dB"}},
                               {{"key", "MIRS"}, {"value", "1"}, {"shown", "1 - Restart"}}}));
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "get"}).Oggetti().size(), 34U);
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "get", "ZZZZ"}).Stato, 1);
}

TEST_F(ConfigVerb, SetsValuesInPlace) {
  New();
  EXPECT_EQ(k.Esegui({"config", "Hall", "set", "LOUT=20", "tpcm=007", "PYDL=240"}).Stato, 0);
  const auto text = k.Cartella.Read("program/Projects/Hall/Config.txt");
  EXPECT_NE(text.find("\r\nLOUT=20\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\r\nTPCM=007\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\nPYDL=240\r\n"), std::string::npos);
}

TEST_F(ConfigVerb, OneRefusedValueAndNothingOfTheCallIsWritten) {
  New("2");
  const auto before = k.Cartella.Read("program/Projects/Hall/Config.txt");
  for (const char* bad : {"LOUT=21", "TFIN=0", "TAVC=5", "ZZZZ=1", "MOMN=1", "IMOD=1", "TPCM=5",
                          "PYDL=0", "MPLL=6", "CMAD=1", "LTRE="}) {
    const auto run = k.EseguiJson({"config", "Hall", "set", "LBAS=3", bad, "LLOU=3"});
    EXPECT_EQ(run.Stato, 1) << bad;
    EXPECT_EQ(run.Box().size(), 1U) << bad;
    EXPECT_EQ(run.Uscita, "");
    EXPECT_EQ(k.Cartella.Read("program/Projects/Hall/Config.txt"), before) << bad;
  }
}

TEST_F(ConfigVerb, OfAReadOnlyFileIsStatus1) {
  New();
  std::filesystem::permissions(Project() + "/Config.txt", std::filesystem::perms::owner_read);
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "LOUT=1"}).Stato, 1);
}

TEST_F(ConfigVerb, TurningTheInputsActiveLowWarnsAsTheScreenDoes) {
  New();
  const auto run = k.EseguiJson({"config", "Hall", "set", "IMOD=1"});
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_EQ(run.Box()[0]["title"], "Please note");
  EXPECT_EQ(run.Box()[0]["answer"], "ok");
  EXPECT_EQ(Value("IMOD"), "1");
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "IMOD=1"}).Errori, "") << "it is low already";
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "IMOD=0"}).Errori, "");
}

TEST_F(ConfigVerb, ARefusedValueTellsWhatTheScreenCanHold) {
  New();
  const auto why = [&](const char* change) {
    return k.EseguiJson({"config", "Hall", "set", change}).Box().at(0)["text"].get<std::string>();
  };
  EXPECT_TRUE(why("LOUT=21").ends_with("only 0 to 20"));
  EXPECT_TRUE(why("PYDL=15").ends_with("only 0, 1, 2, 3, 4, 5, 10, 20, 30, 60, 120, 180, 240"));
}

TEST_F(ConfigVerb, TickingBridgeModeHoldsOmonAt1) {
  New();
  const auto run = k.EseguiJson({"config", "Hall", "set", "INVR=1"});
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Oggetti().size(), 2U) << "the change that it brings along is told";
  EXPECT_EQ(run.Oggetti()[1]["key"], "OMON");
  EXPECT_EQ(run.Oggetti()[1]["value"], "1");
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "OMON=0"}).Stato, 1) << "its list is locked";
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "OMON=1"}).Stato, 0);
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "INVR=0", "OMON=0"}).Stato, 0);
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "OMON=0", "INVR=1"}).Stato, 1);
  EXPECT_EQ(Value("INVR"), "0");
}

TEST_F(ConfigVerb, BridgeModeThatTheFileHasLeavesItsOmonAlone) {
  New();
  auto text = k.Cartella.Read("program/Projects/Hall/Config.txt");
  text.replace(text.find("INVR=0"), 6, "INVR=2");
  k.Cartella.Write("program/Projects/Hall/Config.txt", text);
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "INVR=1"}).Oggetti().size(), 1U);
  EXPECT_EQ(Value("OMON"), "0");
}

TEST_F(ConfigVerb, TheLoopModeThatNoScreenReadsHasTheWordsOfItsNumber) {
  New();
  const auto shown = [&](const std::string& value) {
    k.Cartella.Write("program/Projects/Hall/Config.txt", "[Config]\r\nMPLL=" + value + "\r\n");
    return k.EseguiJson({"config", "Hall", "get", "MPLL"}).Oggetti().at(0)["shown"];
  };
  EXPECT_EQ(shown("5"), "8 - Loop");
  EXPECT_EQ(shown("6"), "9 - No loop");
  EXPECT_EQ(shown("7"), "");
}

TEST_F(ConfigVerb, ATextThatNoReadingGivesBackIsRefused) {
  New();
  const std::string longest = std::string(98, '0') + "7";
  EXPECT_EQ(k.Esegui({"config", "Hall", "set", "TPCM=" + longest}).Stato, 0);
  EXPECT_EQ(Value("TPCM"), longest);
  EXPECT_EQ(k.Esegui({"config", "Hall", "set", "TPCM=0" + longest}).Stato, 1);
}

}  // namespace
}  // namespace kvr5
