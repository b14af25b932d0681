// What is erased is erased on the device before anything is said.
#include <algorithm>
#include <optional>

#include "flashcard/CancellaFlash.h"
#include "projects/BancoLettura.h"

namespace kvr5 {
namespace {

using Names = std::vector<std::string>;

/// A disk that writes down what is deleted and what is put onto the device.
class DiscoSeguito : public test::FaultyFileSystem {
 public:
  using FaultyFileSystem::FaultyFileSystem;
  Error Delete(std::string_view path) override {
    Log.push_back("delete " + std::string(LastName(path)));
    return FaultyFileSystem::Delete(path);
  }
  Error SyncVolume(std::string_view path) override {
    Log.push_back("sync " + std::string(path));
    const Error done = FaultyFileSystem::SyncVolume(path);
    return SyncFailure == 0 ? done : Error(SyncFailure);
  }

  Names Log;
  int SyncFailure = 0;
};

class SvuotamentoSulDisco : public testing::Test {
 protected:
  void SetUp() override {
    b.C.Stato.PercorsoMemoryCard = Root();
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) b.Cartella.Write(OnCard(name), "x");
  }
  std::string Root() const { return b.Percorso("card") + "\\"; }
  static std::string OnCard(const std::string& name) { return "card/" + name; }
  /// Erases with two yes; the words at the end.
  std::string Erase(FineSvuotamento& end) {
    test::SceltaDaProva choice(b.C.Stato);
    b.Finestre.Rispondi(Risposta::Si);
    b.Finestre.Rispondi(Risposta::Si);
    end = CancellaFlash(b.C, choice);
    b.Finestre.Prossimo();
    b.Finestre.Prossimo();
    return b.Finestre.Prossimo().Testo;
  }

  std::optional<DiscoSeguito> disk;
  test::Banco b{[this](FileSystem& real) -> FileSystem& { return disk.emplace(real); }};
};

TEST_F(SvuotamentoSulDisco, TheVolumeIsSyncedOnceAfterTheLastDelete) {
  FineSvuotamento end{};
  EXPECT_EQ(Erase(end),
            "The card's files are deleted. Folders, hidden and read-only files stayed.");
  EXPECT_EQ(end, FineSvuotamento::Svuotata);
  EXPECT_EQ(disk->Log, (Names{"delete a.mp3", "delete b.mp3", "delete c.mp3", "sync " + Root()}));
}

TEST_F(SvuotamentoSulDisco, DeletesThatDidNotReachTheDeviceAreAFailure) {
  disk->SyncFailure = errors::DeviceIo;
  FineSvuotamento end{};
  EXPECT_EQ(Erase(end),
            "The card wasn't erased. Check that it is in and its lock is open, then repeat.");
  EXPECT_EQ(end, FineSvuotamento::Fallita);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::DeviceIo);
}

TEST_F(SvuotamentoSulDisco, AFolderThatIsGoneAtTheFlushIsNoEmptyCard) {
  disk->SyncFailure = errors::FileNotFound;
  FineSvuotamento end{};
  EXPECT_EQ(Erase(end),
            "The card wasn't erased. Check that it is in and its lock is open, then repeat.");
  EXPECT_EQ(end, FineSvuotamento::Fallita);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::DeviceUnavailable);
}

TEST_F(SvuotamentoSulDisco, WhereADeleteFailsThoseBeforeItAreStillSynced) {
  disk->Protect(b.Percorso("card/b.mp3"));
  FineSvuotamento end{};
  Erase(end);
  EXPECT_EQ(end, FineSvuotamento::Fallita);
  EXPECT_EQ(disk->Log, (Names{"delete a.mp3", "delete b.mp3", "sync " + Root()}));
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PermissionDenied) << "the first failure is told";
}

}  // namespace
}  // namespace kvr5
