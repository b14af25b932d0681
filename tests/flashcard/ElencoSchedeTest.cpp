#include <gtest/gtest.h>

#include <map>

#include "flashcard/ElencoSchede.h"
#include "platform/Fold.h"
#include "support/Banco.h"
#include "support/EsecutoreFinto.h"

namespace kvr5 {
namespace {

using test::Banco;

/// Drives of a test: each entry with its type and what listing its root fails with.
class FakeDrives : public SorgenteDrive {
 public:
  void Add(const std::string& entry, std::uint32_t type = tipo_drive::Rimovibile, int error = 0) {
    entries.push_back(entry);
    const std::string root = entry.substr(0, 2) + "\\";
    types[FoldCase(root)] = type;
    listing[FoldCase(root)] = error;
  }
  std::vector<std::string> Voci() override { return entries; }
  std::uint32_t Tipo(const std::string& radice) override {
    asked += "type " + radice + " ";
    return types.at(FoldCase(radice));
  }
  Error Elenca(const std::string& radice) override {
    asked += "list " + radice + " ";
    const int error = listing.at(FoldCase(radice));
    return error == 0 ? Error() : Error(error);
  }
  std::vector<Drive> Fatti() override {
    ++looks;
    std::vector<Drive> drives;
    for (const auto& entry : entries) {
      Drive drive;
      drive.Letter = static_cast<char>(entry[0] - 'a' + 'A');
      drive.Label = "label of " + drive.Root();
      if (drive.Root() != gone) drives.push_back(drive);
    }
    return drives;
  }

  std::vector<std::string> entries;
  std::map<std::string, std::uint32_t> types;
  std::map<std::string, int> listing;
  std::string asked;
  std::string gone;  ///< the root of a card that was taken out
  int looks = 0;     ///< how often the facts were asked for
};

class CardChoice : public testing::Test {
 protected:
  void SetUp() override {
    b.Cartella.Write("words.lan",
                     "[Strings]\r\n0060001=none found\r\n0060002=card\r\n0140022=fine\r\n");
    b.C.Stato.FileLingua = b.Percorso("words.lan");
  }
  std::string Roots() {
    std::string roots;
    for (const auto& card : list.Schede()) roots += card.Radice;
    return roots;
  }
  void ExpectNoneFound() {
    EXPECT_FALSE(list.Carica());
    const auto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "card");
    EXPECT_EQ(box.Testo, "none found");
    EXPECT_TRUE(box.SiNo);
    EXPECT_EQ(box.TestoOk, "fine");
    EXPECT_TRUE(b.Finestre.Silenzio()) << "it is told once";
  }

  Banco b;
  FakeDrives drives;
  ElencoSchede list{b.C, drives};
};

TEST_F(CardChoice, WithoutAnyDriveSaysSo) {
  ExpectNoneFound();
  EXPECT_EQ(list.Testo(), "");
}

TEST_F(CardChoice, OfFixedDisksAndAFloppyFindsNone) {
  drives.Add("a:");
  drives.Add("c: [SYSTEM]", 3);
  drives.Add("n:", 4);
  drives.Add("r:", 5);
  drives.Add("x:", 0);
  b.C.Stato.SelezioneFlashAnnullata = true;
  b.C.Stato.PercorsoMemoryCard = "E:\\";
  ExpectNoneFound();
  EXPECT_FALSE(b.C.Stato.SelezioneFlashAnnullata);
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "E:\\") << "the card from before stays";
}

TEST_F(CardChoice, RefusesFloppiesByNameBeforeTheyAreTouched) {
  for (const char* floppy : {"a:", "A:", "b: [DATA]", "B:"}) drives.Add(floppy);
  drives.Add("e:");
  EXPECT_TRUE(list.Carica());
  EXPECT_EQ(Roots(), "E:\\");
  EXPECT_EQ(drives.asked, "type e:\\ list e:\\ ");
}

TEST_F(CardChoice, AReaderWithoutACardIsNotOffered) {
  drives.Add("e:", tipo_drive::Rimovibile, errors::BadFileName);
  drives.Add("f:");
  EXPECT_TRUE(list.Carica());
  EXPECT_EQ(Roots(), "F:\\");
  drives.listing["e:\\"] = 0;
  EXPECT_TRUE(list.Carica());
  EXPECT_EQ(Roots(), "E:\\F:\\") << "with a card it is";
}

TEST_F(CardChoice, AnyOtherFailureLetsTheDriveThrough) {
  for (const int error : {errors::FileNotFound, errors::DeviceIo, errors::DeviceUnavailable,
                          errors::PermissionDenied, errors::DiskNotReady, errors::PathNotFound}) {
    drives = {};
    drives.Add("e:", tipo_drive::Rimovibile, error);
    EXPECT_TRUE(list.Carica()) << error;
  }
  EXPECT_FALSE(b.C.Errore) << "a card that can't be listed is no failure of what comes next";
}

TEST_F(CardChoice, LooksAtEveryDriveAndLetsEventsRunOnceForEach) {
  drives.Add("c:", 3);
  drives.Add("e:");
  EXPECT_TRUE(list.Carica());
  EXPECT_EQ(drives.asked, "type c:\\ list c:\\ type e:\\ list e:\\ ");
  EXPECT_EQ(b.Messaggi.Volte, 2);
}

TEST_F(CardChoice, TheTextIsTheBareRootAndTheFactsStandBeside) {
  drives.Add("e: [SHOP]");
  EXPECT_TRUE(list.Carica());
  EXPECT_EQ(list.Testo(), "E:\\");
  ASSERT_TRUE(list.Schede()[0].Fatti);
  EXPECT_EQ(list.Schede()[0].Fatti->Label, "label of E:\\");
  list.Conferma("frmPlayerConfig");
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "E:\\");
}

TEST_F(CardChoice, SelectsTheFirstAndTakesTheOneThatIsClicked) {
  drives.Add("e:");
  drives.Add("f:");
  EXPECT_TRUE(list.Carica());
  EXPECT_EQ(list.Scelta(), 0U);
  list.Scegli(1);
  list.Scegli(9);
  EXPECT_EQ(list.Scelta(), 1U);
  list.Conferma("");
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
  EXPECT_FALSE(b.C.Stato.SelezioneFlashAnnullata);
}

TEST_F(CardChoice, TheHubAloneHasItsLabelRefreshed) {
  drives.Add("e:");
  EXPECT_TRUE(list.Carica());
  EXPECT_TRUE(list.Conferma("frmPlayerConfig"));
  EXPECT_TRUE(list.Conferma("FRMPLAYERCONFIG"));
  EXPECT_FALSE(list.Conferma("frmCaricaProgetto"));
  EXPECT_FALSE(list.Conferma(""));
}

TEST_F(CardChoice, ACancelKeepsTheOldCardAndRaisesTheFlag) {
  b.C.Stato.PercorsoMemoryCard = "F:\\";
  drives.Add("e:");
  EXPECT_TRUE(list.Carica());
  list.Annulla();
  EXPECT_TRUE(b.C.Stato.SelezioneFlashAnnullata);
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
  EXPECT_TRUE(list.Carica());
  EXPECT_FALSE(b.C.Stato.SelezioneFlashAnnullata) << "the next load clears it";
}

TEST_F(CardChoice, UntilACardIsConfirmedTheOldOneStaysWhateverIsSelected) {
  b.C.Stato.PercorsoMemoryCard = "F:\\";
  b.C.Stato.SelezioneFlashAnnullata = true;  // of an earlier choice
  drives.Add("e:");
  drives.Add("g:");
  EXPECT_TRUE(list.Carica());
  list.Scegli(1);
  EXPECT_FALSE(b.C.Stato.SelezioneFlashAnnullata);
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
  list.Annulla();
  EXPECT_TRUE(b.C.Stato.SelezioneFlashAnnullata) << "as the window's own button does";
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "F:\\");
}

TEST_F(CardChoice, ExploreOpensTheSelectedCard) {
  drives.Add("e:");
  drives.Add("f:");
  EXPECT_TRUE(list.Carica());
  list.Scegli(1);
  test::EsecutoreFinto host;
  list.Esplora(host);
  EXPECT_EQ(host.Aperti, std::vector<std::string>{"F:\\"});
}

TEST_F(CardChoice, ACardThatIsTakenOutLeavesTheListAndComesBackWithItsFacts) {
  for (const char* entry : {"e:", "f:", "g:"}) drives.Add(entry);
  ASSERT_TRUE(list.Carica());
  EXPECT_EQ(drives.looks, 1);
  EXPECT_FALSE(list.Aggiorna()) << "nothing has changed";
  drives.gone = "F:\\";
  EXPECT_TRUE(list.Aggiorna());
  EXPECT_EQ(drives.looks, 3) << "one look a time";
  EXPECT_EQ(Roots(), "E:\\G:\\");
  drives.gone.clear();
  EXPECT_TRUE(list.Aggiorna());
  EXPECT_EQ(Roots(), "E:\\F:\\G:\\");
  EXPECT_EQ(list.Schede()[1].Fatti->Label, "label of F:\\");
}

TEST_F(CardChoice, TheChosenCardStaysChosenWhateverHappensToItAndToTheOthers) {
  for (const char* entry : {"f:", "g:"}) drives.Add(entry);
  ASSERT_TRUE(list.Carica());
  list.Scegli(1);
  drives.gone = "G:\\";
  EXPECT_TRUE(list.Aggiorna());
  EXPECT_EQ(list.Testo(), "G:\\");
  EXPECT_TRUE(list.Schede()[1].Uscita);
  drives.Add("e:");
  EXPECT_TRUE(list.Aggiorna());
  EXPECT_EQ(Roots(), "E:\\F:\\G:\\");
  EXPECT_EQ(list.Testo(), "G:\\") << "a card that comes in front of it changes nothing";
  list.Scegli(0);
  EXPECT_TRUE(list.Aggiorna());
  EXPECT_EQ(Roots(), "E:\\F:\\") << "once another one is chosen it goes";
}

TEST_F(CardChoice, AFloppyAFixedDiskAndAnEmptyReaderNeverJoinTheList) {
  drives.Add("e:");
  ASSERT_TRUE(list.Carica());
  drives.Add("b:");
  drives.Add("f:", 3);
  drives.Add("g:", tipo_drive::Rimovibile, errors::BadFileName);
  drives.Add("h:", tipo_drive::Rimovibile, errors::DeviceIo);
  EXPECT_TRUE(list.Aggiorna());
  EXPECT_EQ(Roots(), "E:\\H:\\");
}

/// Volumes of a test under the real drive list.
class Volumes : public VolumeSource {
 public:
  std::vector<Volume> Removable() const override { return Mounted; }
  std::optional<VolumeRoom> Room(const std::string& folder) const override {
    if (!std::filesystem::exists(folder)) return {};
    return VolumeRoom{1000, 400, false};
  }
  std::vector<Volume> Mounted;
};

class CardsOfTheComputer : public CardChoice {
 protected:
  std::string Host(const std::string& name) { return (b.Cartella.Host() / name).string(); }

  Volumes volumes;
  std::string ini;
  Drives found{b.Percorsi, volumes, [this] { return ini; }};
  DriveDelComputer computer{found, b.Disco};
  ElencoSchede here{b.C, computer};
};

TEST_F(CardsOfTheComputer, AreOfferedWithTheirFacts) {
  volumes.Mounted.push_back({Host("card"), "SHOP", "vfat"});
  ASSERT_TRUE(here.Carica());
  ASSERT_EQ(here.Schede().size(), 1U);
  EXPECT_EQ(here.Testo(), "D:\\");
  ASSERT_TRUE(here.Schede()[0].Fatti);
  EXPECT_EQ(here.Schede()[0].Fatti->Label, "SHOP");
  EXPECT_EQ(here.Schede()[0].Fatti->Mount, Host("card"));
  EXPECT_EQ(here.Schede()[0].Fatti->Free, 400U);
}

TEST_F(CardsOfTheComputer, AReaderWhoseFolderIsGoneIsNotOffered) {
  ini = "[Removable]\r\nE=" + Host("reader") + "\r\n";
  EXPECT_FALSE(here.Carica());
  EXPECT_EQ(b.Finestre.Prossimo().Testo, "none found");
  std::filesystem::create_directory(b.Cartella.Host() / "reader");
  EXPECT_TRUE(here.Carica());
  EXPECT_EQ(here.Testo(), "E:\\");
}

TEST_F(CardsOfTheComputer, ACardPulledOutWhileItIsLookedAtIsNotOffered) {
  volumes.Mounted.push_back({Host("card"), "", "vfat"});
  b.Messaggi.Accade = [&] { std::filesystem::remove_all(b.Cartella.Host() / "card"); };
  EXPECT_FALSE(here.Carica());
  EXPECT_EQ(b.Finestre.Prossimo().Testo, "none found");
}

TEST_F(CardsOfTheComputer, TellTheirFactsAfresh) {
  volumes.Mounted.push_back({Host("card"), "OLD", "vfat"});
  ASSERT_TRUE(here.Carica());
  volumes.Mounted[0].Label = "NEW";
  EXPECT_TRUE(here.Aggiorna());
  ASSERT_TRUE(here.Schede()[0].Fatti);
  EXPECT_EQ(here.Schede()[0].Fatti->Label, "NEW");
  volumes.Mounted.clear();
  EXPECT_TRUE(here.Aggiorna());
  EXPECT_FALSE(here.Schede()[0].Fatti);
  EXPECT_TRUE(computer.Fatti().empty());
}

}  // namespace
}  // namespace kvr5
