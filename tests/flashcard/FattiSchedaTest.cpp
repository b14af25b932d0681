#include <gtest/gtest.h>

#include "flashcard/FattiScheda.h"
#include "flashcard/SpazioSuDisco.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"

namespace kvr5 {
namespace {

using test::Banco;

class CardFacts : public testing::Test {
 protected:
  void SetUp() override {
    shop.Letter = 'E';
    shop.Label = "SHOP";
    shop.FileSystem = "vfat";
    shop.Mount = "/media/shop";
    shop.Size = 7'945'689'498;
    shop.Free = 6'549'825'126;
  }

  Banco b;
  Drive shop;
};

TEST_F(CardFacts, StandInOneLine) {
  EXPECT_EQ(FattiScheda(b.C, shop), "SHOP, FAT, 7.4 GB, 6.1 GB free, /media/shop, lock open");
}

TEST_F(CardFacts, TakeTheLocalesMarks) {
  b.C.Luogo.DecimalMark = ",";
  EXPECT_EQ(FattiScheda(b.C, shop), "SHOP, FAT, 7,4 GB, 6,1 GB free, /media/shop, lock open");
}

TEST_F(CardFacts, TellTheLock) {
  shop.ReadOnly = true;
  EXPECT_TRUE(FattiScheda(b.C, shop).ends_with(", locked"));
}

TEST_F(CardFacts, NameTheFileSystemAsPeopleDo) {
  shop.FileSystem = "exfat";
  EXPECT_NE(FattiScheda(b.C, shop).find(", exFAT, "), std::string::npos);
  shop.FileSystem = "ext4";
  EXPECT_NE(FattiScheda(b.C, shop).find(", ext4, "), std::string::npos);
}

TEST_F(CardFacts, LeaveOutWhatTheHostDoesNotTell) {
  shop.Label = shop.FileSystem = "";
  EXPECT_EQ(FattiScheda(b.C, shop), "7.4 GB, 6.1 GB free, /media/shop, lock open");
}

TEST_F(CardFacts, OfAnEmptyReaderSayThatNoCardIsInIt) {
  shop.HasMedium = false;
  EXPECT_EQ(FattiScheda(b.C, shop), "SHOP, no card in it");
}

TEST_F(CardFacts, TakeNoLineBreakFromALabel) {
  shop.Label = "A\r\nB";
  EXPECT_TRUE(
      FattiScheda(b.C, shop).starts_with("A\xEF\xBF\xBD\xEF\xBF\xBD"
                                         "B, "));
}

TEST_F(CardFacts, NameTheProjectOnTheCardAndItsDay) {
  b.Cartella.Write("card/Config.cfg", "[CONFIG]\r\nProjectName=Museum-Hall-2\r\n");
  auto file = b.Disco.Open(b.Percorso("card/Config.cfg"), OpenMode::Append);
  ASSERT_TRUE(file);
  ASSERT_FALSE(file.Value()->SetModified(1'000'000'000));
  ASSERT_FALSE(file.Value()->Close());
  EXPECT_EQ(ProgettoSullaScheda(b.C, b.Percorso("card")),
            "On it: Museum-Hall-2, changed 2001-09-09");
}

TEST_F(CardFacts, SayThatNoProjectIsOnTheCard) {
  EXPECT_EQ(ProgettoSullaScheda(b.C, b.Percorso("card")), "No project is on it.");
  EXPECT_EQ(ProgettoSullaScheda(b.C, "Q:\\"), "No project is on it.");
}

TEST_F(CardFacts, OfADescriptorWithoutANameStillTellTheProject) {
  b.Cartella.Write("card/Config.cfg", "garbage");
  EXPECT_TRUE(ProgettoSullaScheda(b.C, b.Percorso("card"))
                  .starts_with("On it: a project without a name, changed "));
}

TEST(CardFactsOfABadCard, AreToldWithoutHarm) {
  std::unique_ptr<test::FaultyFileSystem> owner;
  Banco b([&](FileSystem& files) -> FileSystem& {
    owner = std::make_unique<test::FaultyFileSystem>(files);
    return *owner;
  });
  b.Cartella.Write("card/Config.cfg", "[CONFIG]\r\nProjectName=x\r\n");
  owner->FailReadsAfter(b.Percorso("card"), 0, errors::DeviceIo);
  EXPECT_EQ(ProgettoSullaScheda(b.C, b.Percorso("card")), "No project is on it.");
  owner->Repair();
  owner->VanishAfter(b.Percorso("card"), 0);
  EXPECT_EQ(ProgettoSullaScheda(b.C, b.Percorso("card")), "No project is on it.");
  EXPECT_FALSE(b.C.Errore);
}

class DiskSpace : public testing::Test {
 protected:
  DiskSpace()
      : b([this](FileSystem& files) -> FileSystem& {
          owner = std::make_unique<test::FaultyFileSystem>(files);
          return *owner;
        }) {}

  std::unique_ptr<test::FaultyFileSystem> owner;
  Banco b;
};

TEST_F(DiskSpace, StandsInThreeLinesOfBytesAndGigabytes) {
  owner->LimitRoom(b.Percorso("card"), 3ULL << 30U);
  b.Cartella.Write("card/a", std::string(1 << 20, 'x'));
  EXPECT_EQ(SpazioSuDisco(b.C, b.Percorso("card")),
            "Available Space:  3220176896 bytes (3.00 G) \r\n"
            "Total Space:      3221225472 bytes (3.00 G) \r\n"
            "Free Space:       3220176896 bytes (3.00 G) ");
}

TEST_F(DiskSpace, TakesTheLocalesMark) {
  owner->LimitRoom(b.Percorso("card"), 1'610'612'736);
  b.C.Luogo.DecimalMark = ",";
  EXPECT_TRUE(SpazioSuDisco(b.C, b.Percorso("card"))
                  .starts_with("Available Space:  1610612736 bytes (1,50 G) \r\n"));
}

TEST_F(DiskSpace, OfAFolderThatIsNotThereIsNothing) {
  EXPECT_EQ(SpazioSuDisco(b.C, b.Percorso("gone")),
            "Available Space:  0 bytes (0.00 G) \r\n"
            "Total Space:      0 bytes (0.00 G) \r\n"
            "Free Space:       0 bytes (0.00 G) ");
}

TEST_F(DiskSpace, OfTheRealDiskIsOrdered) {
  const auto space = b.Disco.Space(b.Percorso("card"));
  ASSERT_TRUE(space);
  EXPECT_LE(space.Value().Available, space.Value().Free);
  EXPECT_LT(space.Value().Free, space.Value().Total);
}

}  // namespace
}  // namespace kvr5
