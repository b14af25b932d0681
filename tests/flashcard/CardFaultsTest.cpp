// A card that fails, fills up, is protected or goes away, at every operation of a recording.
#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "flashcard/Registrazione.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using test::Banco;
using test::FaultyFileSystem;
using Contents = std::map<std::string, std::string>;

class NoChoice : public SelezioneFlash {
 public:
  void Scegli() override {}
  bool Presente() const override { return true; }
};

/// A project with two inputs, recorded once with other files, so that there is something to lose.
class CardFaults : public testing::Test {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, 1);
    b.Cartella.Write("program/Projects/Hall/1.m3u", "a list");
    b.C.Stato.PercorsoMemoryCard = Card();
    Assign(1, 2);
    ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
    before_ = OnCard();
    Assign(3, 4);
    ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
    after_ = OnCard();
    ASSERT_EQ(before_.size(), 6U);
    ASSERT_TRUE(before_ != after_);
  }

  std::string Card() const { return b.Percorso("card") + "\\"; }
  void Assign(int first, int second) {
    b.ScriviMp3("music/a.mp3", first, 30);
    b.ScriviMp3("music/b.mp3", second, 30);
    TabellaIngressi inputs(b.C);
    inputs.Apri();
    inputs.Assegna(1, "a.mp3", b.Percorso("music"));
    inputs.Assegna(5, "b.mp3", b.Percorso("music"));
    b.Cartella.Write("program/Projects/Hall/1.m3u", "list " + std::to_string(first));
  }
  FineRegistrazione Record() {
    TabellaIngressi inputs(b.C);
    FinestraProgresso progress(b.C);
    NoChoice choice;
    inputs.Apri();
    return RegistraProgettoSuFlash(b.C, inputs, progress, choice).Fine;
  }
  /// Puts the card back to what the first recording left.
  void Restore() {
    faulty->Repair();
    b.Copia.Guasti.clear();
    for (const auto& entry : std::filesystem::directory_iterator(b.Cartella.Host() / "card")) {
      std::filesystem::remove_all(entry);
    }
    for (const auto& [name, bytes] : before_) b.Cartella.Write("card/" + name, bytes);
  }
  /// For a volume that is mounted at the card's folder.
  void EmptyCard() {
    std::filesystem::remove_all(b.Cartella.Host() / "card");
    std::filesystem::create_directories(b.Cartella.Host() / "card");
  }
  Contents OnCard() const {
    Contents contents;
    for (const auto& name : b.Nomi("card")) contents[name] = b.Cartella.Read("card/" + name);
    return contents;
  }
  /// Every file under a name of the project is the old or the new one, whole.
  void ExpectNoHalfFile(const std::string& trace) {
    for (const auto& [name, bytes] : OnCard()) {
      if (!before_.contains(name)) continue;
      EXPECT_TRUE(bytes == before_.at(name) || bytes == after_.at(name)) << trace << ": " << name;
    }
  }
  void ExpectNoStray(const std::string& trace) {
    for (const auto& [name, bytes] : OnCard()) {
      EXPECT_TRUE(before_.contains(name)) << trace << " left " << name;
    }
  }
  /// Takes the boxes of a run: at most one, of a card that can't be written.
  void TakeBoxes() {
    while (!b.Finestre.Silenzio()) EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Recording not started");
  }

  std::optional<FaultyFileSystem> faulty;
  Banco b{[this](FileSystem& inner) -> FileSystem& { return faulty.emplace(inner); }};
  Contents before_;
  Contents after_;
};

TEST_F(CardFaults, AnyOneOperationMayFailWithoutAHalfFileOrAStray) {
  std::size_t failed = 0;
  for (const int error : {errors::DeviceIo, errors::DiskFull}) {
    for (std::size_t index = 0;; ++index) {
      Restore();
      faulty->FailOperation(Card(), index, error);
      Record();
      const std::string what = faulty->FailedOperation();
      TakeBoxes();
      if (what.empty()) break;
      ++failed;
      const std::string trace = what + " as operation " + std::to_string(index);
      ExpectNoHalfFile(trace);
      if (what != "Delete") ExpectNoStray(trace);
      ASSERT_LT(index, 2000U);
    }
  }
  EXPECT_GT(failed, 100U);
}

TEST_F(CardFaults, ACardPulledOutAtAnyOperationHoldsWholeFiles) {
  for (std::size_t index = 0; index < 400; index += 1 + index / 40) {
    Restore();
    faulty->VanishAfter(Card(), index);
    const auto end = Record();
    TakeBoxes();
    EXPECT_TRUE(end == FineRegistrazione::Compiuta || end == FineRegistrazione::NonScrivibile);
    faulty->Repair();
    ExpectNoHalfFile("gone after " + std::to_string(index));
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  }
}

TEST_F(CardFaults, AFullCardKeepsWhatWasThereAndIsTold) {
  std::uint64_t total = 0;
  for (const auto& [name, bytes] : before_) total += bytes.size();
  for (std::uint64_t room = total - total % 1000; room <= 2 * total; room += total / 12) {
    Restore();
    faulty->LimitRoom(Card(), room);
    Record();
    TakeBoxes();
    ExpectNoHalfFile("room " + std::to_string(room));
    ExpectNoStray("room " + std::to_string(room));
    for (const auto& failure : b.Copia.Guasti) EXPECT_EQ(failure.Cause.Number(), errors::DiskFull);
  }
}

TEST_F(CardFaults, AnEmptyCardThatIsTooSmallIsToldAtTheFileThatDoesNotFit) {
  Restore();
  for (const auto& [name, bytes] : before_) {
    std::filesystem::remove(b.Cartella.Host() / "card" / name);
  }
  faulty->LimitRoom(Card(), after_.at("inputcfg.mdb").size() + 3000);
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta) << "a copy that fails ends that copy only";
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Copia.Guasti[0].File.ends_with(".mp3"));
  EXPECT_FALSE(b.Cartella.Exists("card/1.mp3"));
  EXPECT_FALSE(b.Cartella.Exists("card/5.mp3")) << "the operation ended at the first";
  EXPECT_TRUE(b.Cartella.Exists("card/Config.txt"));
}

TEST_F(CardFaults, AProtectedCardIsToldBeforeTheFirstCopyAndStaysAsItIs) {
  Restore();
  faulty->Protect(Card());
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Recording not started");
  EXPECT_TRUE(OnCard() == before_);
  EXPECT_TRUE(b.Copia.Guasti.empty());
}

TEST_F(CardFaults, ASourceThatCannotBeReadToItsEndLeavesNoPart) {
  Restore();
  faulty->FailReadsAfter(b.Percorso("music/b.mp3"), 5000, errors::DeviceIo);
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_TRUE(b.Copia.Guasti[0].Source);
  EXPECT_TRUE(OnCard().at("5.mp3") == before_.at("5.mp3"));
  EXPECT_TRUE(OnCard().at("1.mp3") == after_.at("1.mp3")) << "what was copied before it stays";
  ExpectNoStray("unreadable source");
}

TEST_F(CardFaults, ARealFullDeviceIsToldAndKeepsNoPart) {
  EmptyCard();
  const auto volume = test::SmallVolume::InMemory(b.Cartella.Host() / "card", 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  b.ScriviMp3("music/b.mp3", 5, 4000);  // 1.6 MB
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  ASSERT_EQ(b.Copia.Guasti.size(), 1U);
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
  EXPECT_TRUE(b.Cartella.Exists("card/1.mp3"));
  EXPECT_FALSE(b.Cartella.Exists("card/5.mp3"));
  EXPECT_EQ(b.Nomi("card").size(), 5U);
}

TEST_F(CardFaults, ARealProtectedDeviceIsToldBeforeTheFirstCopy) {
  EmptyCard();
  const auto volume = test::SmallVolume::InMemory(b.Cartella.Host() / "card", 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  ASSERT_TRUE(volume->Protect());
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Recording not started");
  EXPECT_TRUE(b.Nomi("card").empty());
}

TEST_F(CardFaults, ARealVolumeWithoutRegardToCaseIsRecordedTwice) {
  EmptyCard();
  const auto volume = test::SmallVolume::ExFat(b.Cartella.Host() / "card", 8);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(OnCard() == after_);
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_TRUE(OnCard() == after_);
  EXPECT_TRUE(b.Copia.Guasti.empty());
}

}  // namespace
}  // namespace kvr5
