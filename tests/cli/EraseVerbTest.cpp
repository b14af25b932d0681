#include "cli/CardVerb.h"
#include "cli/Terminale.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using nlohmann::json;

constexpr const char* kTitle = "Erase card";
constexpr const char* kDone =
    "The card's files are deleted. Folders, hidden and read-only files stayed.";
constexpr const char* kNothing = "Nothing was deleted: this card holds no file that can be erased.";
constexpr const char* kFailed =
    "The card wasn't erased. Check that it is in and its lock is open, then repeat.";

class EraseVerb : public test::CardVerb {
 protected:
  void SetUp() override {
    for (const char* name : {"1.mp3", "Config.cfg", "without", "sub/2.mp3"}) {
      k.Cartella.Write(std::string("card/") + name, "x");
    }
  }
  static json First(const std::string& card, const std::string& answer) {
    return Told("question", kTitle, "Delete all files of the card " + card + "  ?", answer);
  }
  static json Second(const std::string& card, const std::string& answer) {
    return Told("question", kTitle,
                "Check the drive: " + card +
                    "\nFiles can't be recovered; folders, hidden and read-only files stay. "
                    "Delete now?",
                answer);
  }
  static json End(const std::string& text) { return Told("warning", kTitle, text); }
  /// An erase of a card that holds nothing to erase, and what it calls the card.
  void ExpectEmpty(const std::string& card) const {
    const auto run = k.EseguiJson({"--yes", "erase", card});
    EXPECT_EQ(run.Stato, 0) << card;
    ASSERT_EQ(run.Box().size(), 3U) << card << run.Errori;
    EXPECT_EQ(run.Box()[2], End(kNothing));
  }
  bool IsWhole() const {
    return k.Nomi("card") == Names{"1.mp3", "Config.cfg", "sub/2.mp3", "without"};
  }
};

TEST_F(EraseVerb, YesAnswersBothQuestionsAndTheRootsFilesAreGone) {
  const auto run = k.EseguiJson({"--yes", "erase", k.Host("card")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(run.Box(),
            (Objects{First(k.Host("card"), "yes"), Second(k.Host("card"), "yes"), End(kDone)}));
  EXPECT_EQ(k.Nomi("card"), Names{"sub/2.mp3"});
}

TEST_F(EraseVerb, ForPeopleEachBoxIsItsTitleAndText) {
  const auto run = k.Esegui({"--yes", "erase", k.Host("card")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(run.Errori, "Erase card: Delete all files of the card " + k.Host("card") +
                            "  ?\nErase card: Check the drive: " + k.Host("card") +
                            "\nFiles can't be recovered; folders, hidden and read-only files stay. "
                            "Delete now?\nErase card: " +
                            kDone + "\n");
}

TEST_F(EraseVerb, NoStopsAtTheFirstQuestionWithStatus1) {
  const auto before = test::Fotografa(k.Host("card"));
  const auto run = k.EseguiJson({"--no", "erase", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(run.Box(), (Objects{First(k.Host("card"), "no")}));
  EXPECT_EQ(test::Differenze(before, test::Fotografa(k.Host("card"))), Names{});
}

TEST_F(EraseVerb, WithoutATerminalTheQuestionsCountAsNo) {
  for (const char* input : {"", "y\ny\n", "yes\n"}) {
    const auto run = k.EseguiJson({"erase", k.Host("card")}, input);
    EXPECT_EQ(run.Stato, 1);
    EXPECT_EQ(run.Box(), (Objects{First(k.Host("card"), "no")}));
  }
  EXPECT_TRUE(IsWhole());
}

TEST_F(EraseVerb, OnATerminalBothAreAskedAndTheSecondMayStopIt) {
  test::Terminale person(k.Lavoro({"erase", k.Host("card")}));
  ASSERT_TRUE(person.Aspetta("  ?\r\n[y/n] ")) << person.Schermo();
  person.Scrivi("y\n");
  ASSERT_TRUE(person.Aspetta("Delete now?\r\n[y/n] ")) << person.Schermo();
  EXPECT_TRUE(IsWhole()) << "nothing goes before the second answer";
  person.Scrivi("n\n");
  EXPECT_EQ(person.Fine(), 1);
  EXPECT_TRUE(IsWhole());
}

TEST_F(EraseVerb, OnATerminalTwoYesDeleteTheFiles) {
  test::Terminale person(k.Lavoro({"erase", k.Host("card")}));
  ASSERT_TRUE(person.Aspetta("  ?\r\n[y/n] ")) << person.Schermo();
  person.Scrivi("y\n");
  ASSERT_TRUE(person.Aspetta("Delete now?\r\n[y/n] ")) << person.Schermo();
  person.Scrivi("y\n");
  EXPECT_EQ(person.Fine(), 0);
  EXPECT_NE(person.Schermo().find(kDone), std::string::npos) << person.Schermo();
  EXPECT_EQ(k.Nomi("card"), Names{"sub/2.mp3"});
}

TEST_F(EraseVerb, HiddenAndReadOnlyFilesAndFoldersStay) {
  k.Cartella.Write("card/.hidden", "x");
  k.Cartella.Write("card/kept.txt", "x");
  std::filesystem::permissions(k.Host("card/kept.txt"), std::filesystem::perms::owner_read);
  EXPECT_EQ(k.Esegui({"--yes", "erase", k.Host("card")}).Stato, 0);
  EXPECT_EQ(k.Nomi("card"), (Names{".hidden", "kept.txt", "sub/2.mp3"}));
  ExpectEmpty(k.Host("card"));
  EXPECT_EQ(k.Nomi("card"), (Names{".hidden", "kept.txt", "sub/2.mp3"}));
}

TEST_F(EraseVerb, AnEmptyCardGivesItsMessageAfterBothQuestionsAndStatus0) {
  std::filesystem::create_directories(k.Host("empty"));
  const auto run = k.EseguiJson({"--yes", "erase", k.Host("empty")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(run.Box(), (Objects{First(k.Host("empty"), "yes"), Second(k.Host("empty"), "yes"),
                                End(kNothing)}));
}

TEST_F(EraseVerb, ACardIsAFolderInEitherFormOrALetterInEitherCase) {
  std::filesystem::create_directories(k.Host("empty"));
  Drives({"E=" + k.Host("empty")});
  for (const char* card : {"E:", "e:", "E:\\", "e:\\", "E", "e"}) ExpectEmpty(card);
  ExpectEmpty(k.Percorso("empty"));
  ExpectEmpty(k.Host("empty/"));
  EXPECT_TRUE(IsWhole());
}

TEST_F(EraseVerb, ALettersFilesAreDeletedAndTheQuestionsShowTheDriveAsChosen) {
  Drives({"E=" + k.Host("card")});
  const auto run = k.EseguiJson({"--yes", "erase", "e:"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(k.Nomi("card"), Names{"sub/2.mp3"});
  EXPECT_EQ(run.Box(), (Objects{First("E:\\", "yes"), Second("E:\\", "yes"), End(kDone)}));
}

TEST_F(EraseVerb, ABareNameIsAFolderOfTheWorkingFolder) {
  GoTo("work");
  k.Cartella.Write("work/stick/a", "x");
  k.Cartella.Write("work/a", "x");
  const auto run = k.EseguiJson({"--yes", "erase", "stick"});
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Box().size(), 3U) << run.Errori;
  EXPECT_EQ(run.Box()[0], First(k.Host("work/stick"), "yes"));
  EXPECT_EQ(k.Nomi("work"), Names{"a"});
}

TEST_F(EraseVerb, ABareLetterIsAFolderOfThatNameBeforeItIsADrive) {
  GoTo("work");
  k.Cartella.Write("work/E/a", "x");
  Drives({"E=" + k.Host("card")});
  EXPECT_EQ(k.Esegui({"--yes", "erase", "E"}).Stato, 0);
  EXPECT_TRUE(IsWhole());
  EXPECT_TRUE(std::filesystem::is_empty(k.Host("work/E")));
  EXPECT_EQ(k.Esegui({"--yes", "erase", "E:"}).Stato, 0);
  EXPECT_FALSE(IsWhole());
}

TEST_F(EraseVerb, WhatIsNoCardIsStatus1) {
  Drives({"E=" + k.Host("card")});
  for (const char* card : {"X:", "c:\\", "a|b", ""}) {
    const auto run = k.EseguiJson({"--yes", "erase", card});
    EXPECT_EQ(run.Stato, 1) << card;
    EXPECT_EQ(run.Uscita, "");
    ExpectNoSuchCard(run, card);
  }
}

TEST_F(EraseVerb, AFolderThatIsNotThereAndAFileAreToldByTheRoutine) {
  k.Cartella.Write("file", "kept");
  Drives({"E=" + k.Host("gone")});
  for (const std::string& card : {k.Host("gone"), k.Host("file"), std::string("E:")}) {
    const auto run = k.EseguiJson({"--yes", "erase", card});
    EXPECT_EQ(run.Stato, 1) << card;
    ASSERT_EQ(run.Box().size(), 3U) << run.Errori;
    EXPECT_EQ(run.Box()[2], End(kFailed)) << card;
  }
  EXPECT_EQ(k.Cartella.Read("file"), "kept");
  EXPECT_FALSE(k.Cartella.Exists("gone"));
}

TEST_F(EraseVerb, AWriteProtectedCardKeepsItsFilesWithStatus1) {
  std::filesystem::create_directories(k.Host("locked"));
  const auto volume = test::SmallVolume::InMemory(k.Host("locked"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  k.Cartella.Write("locked/a", "x");
  ASSERT_TRUE(volume->Protect());
  const auto run = k.EseguiJson({"--yes", "erase", k.Host("locked")});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Box().size(), 3U) << run.Errori;
  EXPECT_EQ(run.Box()[2], End(kFailed));
  EXPECT_EQ(k.Nomi("locked"), Names{"a"});
}

TEST_F(EraseVerb, SpeaksTheLanguageThatIsChosen) {
  std::filesystem::create_directories(k.Host("empty"));
  const auto run = k.Esegui({"--lang", "Italiano", "--yes", "erase", k.Host("empty")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_NE(run.Errori, k.Esegui({"--yes", "erase", k.Host("empty")}).Errori);
  EXPECT_NE(run.Errori.find(k.Host("empty") + "  ?\n"), std::string::npos) << run.Errori;
}

TEST_F(EraseVerb, ChangesNothingButTheCard) {
  MakeHall();
  const auto before = test::Fotografa(k.Host("program"));
  EXPECT_EQ(k.Esegui({"--yes", "erase", k.Host("card")}).Stato, 0);
  EXPECT_EQ(test::Differenze(before, test::Fotografa(k.Host("program"))), Names{});
}

TEST_F(EraseVerb, TakesOneCard) {
  ExpectUsage({"--yes", "erase"}, "erase CARD");
  ExpectUsage({"--yes", "erase", k.Host("card"), k.Host("card")}, "erase CARD");
  EXPECT_TRUE(IsWhole());
}

}  // namespace
}  // namespace kvr5
