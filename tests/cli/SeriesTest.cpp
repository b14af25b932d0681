#include "cli/CardVerb.h"
#include "cli/Terminale.h"
#include "support/SmallVolume.h"

// A project on one card after another.

namespace kvr5 {
namespace {

using nlohmann::json;

class Series : public test::CardVerb {
 protected:
  void SetUp() override {
    MakeHall();
    for (const char* name : {"two", "three"}) std::filesystem::create_directories(k.Host(name));
  }
  json Done(const std::string& card) const { return Card(card, 5, Bytes("card"), 0); }
  static json Card(const std::string& card, std::size_t files, std::size_t bytes, int status) {
    return {{"card", card}, {"files", files}, {"bytes", bytes}, {"status", status}};
  }
  std::size_t Bytes(const std::string& folder) const {
    std::size_t bytes = 0;
    for (const auto& name : k.Nomi(folder)) bytes += k.Cartella.Read(folder + "/" + name).size();
    return bytes;
  }
  void ExpectSame(const std::string& folder) const {
    EXPECT_EQ(k.Nomi(folder), k.Nomi("card"));
    for (const auto& name : k.Nomi("card")) {
      EXPECT_TRUE(k.Cartella.Same("card/" + name, folder + "/" + name)) << name;
    }
  }
};

TEST_F(Series, EachCardGetsTheSameAndIsToldInTheOrderGiven) {
  Drives({"E=" + k.Host("two")});
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card"), "E:", k.Percorso("three")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Errori, "");
  EXPECT_EQ(run.Oggetti(), (Objects{Done(k.Host("card")), Done("E:"), Done(k.Percorso("three"))}));
  ExpectSame("two");
  ExpectSame("three");
}

TEST_F(Series, OfAllCardsABadOneInTheMiddleAloneIsStatus1) {
  k.Cartella.Write("file", "x");
  for (const std::string& bad : {k.Host("gone"), k.Host("file"), std::string("X:")}) {
    const auto run = k.EseguiJson({"record", "Hall", k.Host("card"), bad, k.Host("three")});
    EXPECT_EQ(run.Stato, 1) << bad;
    EXPECT_EQ(run.Oggetti(),
              (Objects{Done(k.Host("card")), Card(bad, 0, 0, 1), Done(k.Host("three"))}));
    EXPECT_EQ(run.Box().size(), 1U) << run.Errori;
    ExpectSame("three");
    for (const auto& name : k.Nomi("three")) std::filesystem::remove(k.Host("three/" + name));
  }
}

TEST_F(Series, ForPeopleEachCardIsNamedAlsoTheBadOne) {
  const auto run =
      k.Esegui({"record", "Hall", k.Host("gone"), k.Host("card"), "X:", k.Host("two")});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Righe().size(), 2U) << run.Uscita;
  EXPECT_TRUE(run.Righe()[0].starts_with(k.Host("card") + ": 5 files, ")) << run.Uscita;
  EXPECT_TRUE(run.Righe()[1].starts_with(k.Host("two") + ": 5 files, ")) << run.Uscita;
  EXPECT_NE(run.Errori.find("X:"), std::string::npos) << run.Errori;
  EXPECT_NE(run.Errori.find("Recording not started: "), std::string::npos) << run.Errori;
  EXPECT_NE(run.Errori.find(k.Host("gone")), std::string::npos)
      << "of several cards nobody knows which one it was\n"
      << run.Errori;
}

TEST_F(Series, AFullCardAndALockedOneAreToldAndTheNextOnesAreDone) {
  const auto full = test::SmallVolume::InMemory(k.Host("two"), 1);
  const auto locked = test::SmallVolume::InMemory(k.Host("three"), 1);
  if (!full->IsMounted() || !locked->IsMounted()) GTEST_SKIP() << full->Why() << locked->Why();
  ASSERT_TRUE(locked->Protect());
  k.Cartella.Write("two/old.bin", std::string(1'020'000, 'x'));
  const auto run = k.EseguiJson({"record", "Hall", k.Host("two"), k.Host("three"), k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  const Objects cards = run.Oggetti();
  ASSERT_EQ(cards.size(), 3U);
  EXPECT_EQ(cards[0]["status"], 1);
  EXPECT_EQ(cards[1], Card(k.Host("three"), 0, 0, 1));
  EXPECT_EQ(cards[2], Done(k.Host("card"))) << "no failure of another card is counted here";
  const Objects boxes = run.Box();
  ASSERT_GE(boxes.size(), 2U) << run.Errori;
  EXPECT_EQ(boxes.front()["title"], "Copy stopped");
  EXPECT_EQ(boxes.back()["title"], "Recording not started");
}

TEST_F(Series, AMissingFileStopsEachCardByItself) {
  ASSERT_EQ(k.Esegui({"inputs", "Hall", "set", "7", k.Host("music/a.mp3")}).Stato, 0);
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card"), k.Host("two")});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Oggetti().size(), 2U);
  ASSERT_EQ(run.Box().size(), 2U) << run.Errori;
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(run.Oggetti()[i]["status"], 1);
    EXPECT_EQ(run.Box()[i]["title"], "MP3 files not copied");
  }
  EXPECT_EQ(k.Nomi("two"), (Names{"Config.cfg", "Config.txt", "inputcfg.mdb"}));
}

TEST_F(Series, OneCardGivenTwiceIsRecordedTwice) {
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card"), k.Host("card")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Oggetti(), (Objects{Done(k.Host("card")), Done(k.Host("card"))}));
}

TEST_F(Series, EachCardOfASeriesVerifiesReadsBackAndErasesByItself) {
  ASSERT_EQ(k.Esegui({"record", "Hall", k.Host("card"), k.Host("two"), k.Host("three")}).Stato, 0);
  for (const char* name : {"card", "two", "three"}) {
    EXPECT_EQ(k.Esegui({"verify", "Hall", k.Host(name)}).Stato, 0) << name;
    EXPECT_EQ(k.Esegui({"readback", k.Host(name), "--name", name}).Stato, 0) << name;
  }
  EXPECT_EQ(Projects(), (Names{"Hall", "card", "three", "two"}));
  EXPECT_EQ(k.Esegui({"--yes", "erase", k.Host("two")}).Stato, 0);
  EXPECT_EQ(k.Nomi("two"), Names{});
  EXPECT_EQ(k.Esegui({"verify", "Hall", k.Host("three")}).Stato, 0);
}

TEST_F(Series, CtrlCInTheSecondCardLeavesTheFirstWholeAndTheThirdUntouched) {
  // Long enough that the second card is met on its way; at which step of it is one.
  std::filesystem::resize_file(k.Host("music/a.mp3"), std::uintmax_t{1} << 29U);
  test::Terminale person(
      k.Lavoro({"record", "Hall", k.Host("card"), k.Host("two"), k.Host("three")}));
  ASSERT_TRUE(person.Aspetta(k.Host("card") + ": 5 files, ")) << person.Schermo();
  person.Scrivi("\x03");
  EXPECT_EQ(person.Fine(), 1) << person.Schermo();
  EXPECT_NE(person.Schermo().find("Not all was completed"), std::string::npos);
  EXPECT_NE(person.Schermo().find(k.Host("two") + ": not recorded whole"), std::string::npos);
  EXPECT_EQ(k.Nomi("card"), (Names{"1.mp3", "5.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
  EXPECT_EQ(k.Nomi("three"), Names{});
}

TEST_F(Series, LeavesNoSideFileInTheProjectNorInTheProgram) {
  const auto before = test::Fotografa(k.Host("program"));
  ASSERT_EQ(k.Esegui({"record", "Hall", k.Host("card"), k.Host("gone"), k.Host("two")}).Stato, 1);
  EXPECT_EQ(test::Differenze(before, test::Fotografa(k.Host("program"))), Names{});
  EXPECT_EQ(k.Nomi("card"), (Names{"1.mp3", "5.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
}

TEST_F(Series, NeedsAProjectAndACard) {
  ExpectUsage({"record"}, "record PROJECT CARD...");
  ExpectUsage({"record", "Hall"}, "record PROJECT CARD...");
  EXPECT_EQ(k.Esegui({"record", "Nowhere", k.Host("card"), k.Host("two")}).Stato, 3);
  EXPECT_EQ(k.Nomi("card"), Names{});
}

}  // namespace
}  // namespace kvr5
