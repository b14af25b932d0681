#include <gmock/gmock.h>

#include "cli/CardVerb.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using nlohmann::json;

/// "cards" with the entries of Drives.ini; what else this computer has is left out.
class CardsVerb : public test::CardVerb {
 protected:
  Objects Cards() const {
    const auto run = k.EseguiJson({"cards"});
    EXPECT_EQ(run.Stato, 0) << run.Errori;
    EXPECT_EQ(run.Errori, "");
    Objects mine;
    for (const auto& card : run.Oggetti()) {
      if (IsMine(card["mount"])) mine.push_back(card);
    }
    return mine;
  }
  Names Letters() const {
    Names letters;
    for (const auto& card : Cards()) letters.push_back(card["letter"]);
    return letters;
  }
  bool IsMine(const std::string& text) const { return text.find(k.Host("")) != std::string::npos; }
  void Folder(const std::string& name) const { std::filesystem::create_directories(k.Host(name)); }
};

TEST_F(CardsVerb, AFolderOfDrivesIniIsToldInAnObjectOfSevenKeys) {
  Drives({"E=" + k.Host("card")});
  const auto cards = Cards();
  ASSERT_EQ(cards.size(), 1U);
  const auto space = std::filesystem::space(k.Host("card"));
  json card = cards[0];
  EXPECT_TRUE(card["free"].is_number_unsigned());
  EXPECT_GT(card["free"], 0U);
  EXPECT_LE(card["free"].get<std::uintmax_t>(), space.capacity);
  card.erase("free");  // other programs write to this disk too
  EXPECT_EQ(card, (json{{"letter", "E:"},
                        {"label", ""},
                        {"filesystem", ""},
                        {"size", space.capacity},
                        {"mount", k.Host("card")},
                        {"readonly", false}}));
}

TEST_F(CardsVerb, SizeFreeSpaceAndLockAreThoseOfTheVolumeAtTheFolder) {
  const auto volume = test::SmallVolume::InMemory(k.Host("card"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  Drives({"E=" + k.Host("card")});
  k.Cartella.Write("card/x", std::string(8192, 'x'));
  auto cards = Cards();
  ASSERT_EQ(cards.size(), 1U);
  EXPECT_EQ(cards[0]["size"], 1U << 20U);
  EXPECT_EQ(cards[0]["free"], std::filesystem::space(k.Host("card")).available);
  EXPECT_LT(cards[0]["free"], (1U << 20U) - 8191U);
  EXPECT_EQ(cards[0]["readonly"], false);
  ASSERT_TRUE(volume->Protect());
  cards = Cards();
  ASSERT_EQ(cards.size(), 1U);
  EXPECT_EQ(cards[0]["readonly"], true);
}

TEST_F(CardsVerb, ForPeopleACardIsALineOfFacts) {
  const auto volume = test::SmallVolume::InMemory(k.Host("card"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  Drives({"E=" + k.Host("card")});
  EXPECT_THAT(k.Esegui({"cards"}).Righe(),
              testing::Contains("E: 1 MB, 1 MB free, " + k.Host("card") + ", lock open"));
  ASSERT_TRUE(volume->Protect());
  EXPECT_THAT(k.Esegui({"cards"}).Righe(),
              testing::Contains("E: 1 MB, 1 MB free, " + k.Host("card") + ", locked"));
}

TEST_F(CardsVerb, AFolderThatIsNotThereIsNoCard) {
  Drives({"E=" + k.Host("gone"), "F=" + k.Host("card")});
  EXPECT_EQ(Letters(), Names{"F:"});
  EXPECT_EQ(k.Esegui({"cards"}).Uscita.find(k.Host("gone")), std::string::npos);
}

TEST_F(CardsVerb, AFileInThePlaceOfTheFolderIsNoCard) {
  k.Cartella.Write("file", "x");
  Drives({"E=" + k.Host("file"), "F=" + k.Host("card")});
  EXPECT_EQ(Letters(), Names{"F:"});
}

TEST_F(CardsVerb, EntriesComeByLetterWhateverTheirOrderCaseAndForm) {
  for (const char* name : {"one", "two", "three"}) Folder(name);
  Drives({"z=" + k.Host("three"), "G=" + k.Percorso("two"), "e=" + k.Host("one") + "/"});
  const auto cards = Cards();
  ASSERT_EQ(cards.size(), 3U);
  EXPECT_EQ(cards[0]["letter"], "E:");
  EXPECT_EQ(cards[0]["mount"], k.Host("one"));
  EXPECT_EQ(cards[1]["letter"], "G:");
  EXPECT_EQ(cards[1]["mount"], k.Host("two")) << "in the host's form, whatever that of the entry";
  EXPECT_EQ(cards[2]["letter"], "Z:");
}

TEST_F(CardsVerb, LettersOfFloppiesAndOfTheSystemAndFoldersWithoutARootAreNoCards) {
  Drives({"A=" + k.Host("card"), "B=" + k.Host("card"), "C=" + k.Host("card"), "F=card",
          "EE=" + k.Host("card"), "G="});
  EXPECT_EQ(Letters(), Names{});
}

TEST_F(CardsVerb, AFolderWithALetterOfAnotherAlphabetInItsNameIsToldWhole) {
  Folder("Stick è 日");
  Drives({"E=" + k.Host("Stick è 日")});
  const auto cards = Cards();
  ASSERT_EQ(cards.size(), 1U);
  EXPECT_EQ(cards[0]["mount"], k.Host("Stick è 日"));
}

TEST_F(CardsVerb, WithoutEntriesNothingOfTheProgramIsACardAndNothingIsSaid) {
  EXPECT_EQ(Letters(), Names{});
  const auto text = k.Esegui({"cards"});
  EXPECT_EQ(text.Stato, 0);
  EXPECT_EQ(text.Errori, "") << "the dialog's box is not for a list";
  EXPECT_FALSE(IsMine(text.Uscita));
  Drives({});
  EXPECT_EQ(Letters(), Names{});
}

TEST_F(CardsVerb, TellsOfEachLetterThatTheOtherVerbsTake) {
  MakeHall();
  Drives({"K=" + k.Host("card")});
  ASSERT_EQ(Letters(), Names{"K:"});
  EXPECT_EQ(k.Esegui({"record", "Hall", Letters()[0]}).Stato, 0);
  EXPECT_EQ(k.Esegui({"verify", "Hall", Letters()[0]}).Stato, 0);
}

TEST_F(CardsVerb, TouchesNeitherCardNorProgram) {
  Drives({"E=" + k.Host("card"), "F=" + k.Host("gone")});
  k.Cartella.Write("card/a", "x");
  const auto before = test::Fotografa(k.Host(""));
  EXPECT_EQ(k.Esegui({"cards"}).Stato, 0);
  EXPECT_EQ(test::Differenze(before, test::Fotografa(k.Host(""))), Names{});
}

TEST_F(CardsVerb, TakesNoWord) {
  ExpectUsage({"cards", "E:"}, "cards");
  ExpectUsage({"cards", ""}, "cards");
  const auto help = k.Esegui({"cards", "--help"});
  EXPECT_EQ(help.Stato, 0);
  EXPECT_TRUE(help.Uscita.starts_with("usage: kvr5card [OPTION...] cards\n")) << help.Uscita;
}

}  // namespace
}  // namespace kvr5
