#include <gtest/gtest.h>

#include "cli/Compagno.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using nlohmann::json;
using test::Compagno;

class RecordVerb : public testing::Test {
 protected:
  void SetUp() override {
    k.ScriviMp3("music/a.mp3", 1);
    k.ScriviMp3("music/b.mp3", 2);
    ASSERT_EQ(k.Esegui({"new", "Hall", "--mode", "1"}).Stato, 0);
    ASSERT_EQ(k.Esegui({"inputs", "Hall", "set", "IN1+IN3", k.Host("music/a.mp3")}).Stato, 0);
  }

  Compagno k;
};

TEST_F(RecordVerb, ReportsEachCardInALine) {
  std::filesystem::create_directories(k.Host("card2"));
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card"), k.Percorso("card2")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Errori, "");
  std::size_t bytes = 0;
  for (const auto& name : k.Nomi("card")) bytes += k.Cartella.Read("card/" + name).size();
  EXPECT_EQ(run.Oggetti(),
            (std::vector<json>{
                {{"card", k.Host("card")}, {"files", 4}, {"bytes", bytes}, {"status", 0}},
                {{"card", k.Percorso("card2")}, {"files", 4}, {"bytes", bytes}, {"status", 0}}}));
  EXPECT_EQ(k.Nomi("card"), k.Nomi("card2"));
  EXPECT_TRUE(k.Cartella.Same("card/5.mp3", "music/a.mp3"));
}

TEST_F(RecordVerb, ACardThatIsNotThereIsStatus1AndTheOthersAreDone) {
  const auto run = k.EseguiJson({"record", "Hall", k.Host("gone"), "X:", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Oggetti().size(), 3U);
  EXPECT_EQ(run.Oggetti()[0]["status"], 1);
  EXPECT_EQ(run.Oggetti()[1]["status"], 1);
  EXPECT_EQ(run.Oggetti()[2]["status"], 0);
  EXPECT_EQ(run.Box().at(0)["title"], "Recording not started");
  EXPECT_FALSE(k.Cartella.Exists("gone"));
}

TEST_F(RecordVerb, TheSameMp3OnTwoInputsIsStatus1AndNamed) {
  k.Esegui({"inputs", "Hall", "set", "7", k.Host("music/a.mp3")});
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Box().at(0)["title"], "MP3 files not copied");
  EXPECT_TRUE(run.Box().at(0)["text"].get<std::string>().ends_with("\na.mp3"));
  EXPECT_FALSE(k.Cartella.Exists("card/5.mp3"));
}

TEST_F(RecordVerb, AFailedCopyIsToldAndIsStatus1) {
  std::filesystem::remove(k.Host("music/a.mp3"));
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Oggetti().at(0)["status"], 1);
  EXPECT_EQ(run.Box().at(0)["title"], "Copy stopped");
  EXPECT_TRUE(run.Box().at(0)["text"].get<std::string>().ends_with(k.Host("music/a.mp3")));
  EXPECT_TRUE(k.Cartella.Exists("card/Config.txt")) << "the routine itself went on";
}

TEST_F(RecordVerb, ADriveOfDrivesIniIsACard) {
  k.Cartella.Write("program/Drives.ini", "[Removable]\r\nE=" + k.Host("card") + "\r\n");
  for (const char* card : {"E:", "e:\\", "E"}) {
    const auto run = k.EseguiJson({"record", "Hall", card});
    EXPECT_EQ(run.Stato, 0) << card << run.Errori;
    EXPECT_TRUE(k.Cartella.Exists("card/5.mp3"));
  }
}

TEST_F(RecordVerb, ALetterThatIsNoRemovableDriveIsNoCard) {
  for (const char* card : {"C:", "c:\\", "Z:", "", "a|b"}) {
    const auto run = k.EseguiJson({"record", "Hall", card});
    EXPECT_EQ(run.Stato, 1) << card;
    EXPECT_EQ(run.Oggetti(),
              (std::vector<json>{{{"card", card}, {"files", 0}, {"bytes", 0}, {"status", 1}}}));
  }
}

TEST_F(RecordVerb, LettersOfDrivesServeEveryPath) {
  k.Cartella.Write("program/Drives.ini", "[Removable]\r\nE=" + k.Host("stick") + "\r\n");
  k.ScriviMp3("stick/a.mp3", 3);
  EXPECT_EQ(k.EseguiJson({"mp3", "E:\\A.MP3"}).Oggetti().at(0)["Valid"], true);
  EXPECT_EQ(k.EseguiJson({"inputs", "Hall", "set", "9", "E:\\a.mp3"}).Stato, 0);
  EXPECT_EQ(k.EseguiJson({"inputs", "Hall", "list"}).Oggetti().at(1)["FilePath"],
            k.Percorso("stick") + "\\")
      << "stored from the root of the host";
  std::filesystem::copy(k.Host("program/Projects/Hall"), k.Host("stick/Hall"));
  EXPECT_EQ(k.EseguiJson({"show", "E:\\Hall"}).Stato, 0);
}

TEST_F(RecordVerb, ForPeopleItSaysWhatItDid) {
  const auto run = k.Esegui({"record", "Hall", k.Host("card")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_TRUE(run.Uscita.starts_with(k.Host("card") + ": 4 files, ")) << run.Uscita;
}

TEST_F(RecordVerb, ABareLetterIsAFolderOfThatNameBeforeItIsADrive) {
  k.Cartella.Write("program/Drives.ini", "[Removable]\r\nE=" + k.Host("stick") + "\r\n");
  k.Cartella.Write("stick/keep", "");
  k.Inizio = {"/usr/bin/env", "-C", k.Host("work"), KVR5_CARD, "--program", k.Host("program")};
  k.Cartella.Write("work/keep", "");
  const auto drive = k.Esegui({"record", "Hall", "E"});
  EXPECT_EQ(drive.Stato, 0);
  EXPECT_TRUE(k.Cartella.Exists("stick/Config.txt"));
  EXPECT_TRUE(drive.Uscita.starts_with("E: 4 files, ")) << drive.Uscita;
  EXPECT_TRUE(k.Esegui({"record", "Hall", "E:"}).Uscita.starts_with("E: 4 files, "));
  k.Cartella.Write("work/E/keep", "");
  EXPECT_EQ(k.Esegui({"record", "Hall", "E"}).Stato, 0);
  EXPECT_TRUE(k.Cartella.Exists("work/E/Config.txt"));
}

TEST_F(RecordVerb, ADatabaseThatCannotBeReadIsToldAndIsStatus1) {
  k.Cartella.Write("program/Projects/Hall/playlist.mdb", std::string(9000, 'x'));
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Oggetti().at(0)["status"], 1);
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().starts_with("playlist.mdb can't be read"));
  EXPECT_TRUE(k.Cartella.Exists("card/5.mp3")) << "the other passes went on";
}

TEST_F(RecordVerb, AFullCardIsToldAndKeepsNoHalfFile) {
  const auto volume = test::SmallVolume::InMemory(k.Host("card"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  k.Cartella.Write("music/a.mp3", std::string(2'000'000, 'x'));
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Oggetti().at(0)["status"], 1);
  ASSERT_EQ(run.Box().size(), 1U) << run.Errori;
  EXPECT_EQ(run.Box()[0]["title"], "Copy stopped");
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().ends_with(k.Host("card/5.mp3")));
  EXPECT_EQ(k.Nomi("card"), (std::vector<std::string>{"Config.cfg", "Config.txt", "inputcfg.mdb"}));
}

TEST_F(RecordVerb, AWriteProtectedCardIsRefusedUntouched) {
  const auto volume = test::SmallVolume::InMemory(k.Host("card"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  k.Cartella.Write("card/5.mp3", "old");
  ASSERT_TRUE(volume->Protect());
  const auto run = k.EseguiJson({"record", "Hall", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Box().size(), 1U) << run.Errori;
  EXPECT_EQ(run.Box()[0]["title"], "Recording not started");
  EXPECT_EQ(k.Nomi("card"), std::vector<std::string>{"5.mp3"});
  EXPECT_EQ(k.Cartella.Read("card/5.mp3"), "old");
}

}  // namespace
}  // namespace kvr5
