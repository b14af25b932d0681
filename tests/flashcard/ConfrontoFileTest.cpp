#include <gtest/gtest.h>
#include <sys/stat.h>

#include <numeric>

#include "flashcard/ConfrontoFile.h"
#include "projects/BancoLettura.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPiece = std::size_t{128} << 10U;

/// An open file that writes down when its content was to be read past the host's memory.
class Ricordo : public File {
 public:
  Ricordo(std::unique_ptr<File> inner, std::string name, std::vector<std::string>& log)
      : inner_(std::move(inner)), name_(std::move(name)), log_(log) {}
  Result<std::size_t> Read(std::span<char> buffer) override {
    log_.push_back("read " + name_);
    return inner_->Read(buffer);
  }
  Result<std::size_t> ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    return inner_->ReadAt(offset, buffer);
  }
  Error Write(std::string_view bytes) override { return inner_->Write(bytes); }
  void ForgetCached() override { log_.push_back("forget " + name_); }
  Error Flush() override { return inner_->Flush(); }
  Error Close() override { return inner_->Close(); }
  Result<std::uint64_t> Size() override { return inner_->Size(); }

 private:
  std::unique_ptr<File> inner_;
  std::string name_;
  std::vector<std::string>& log_;
};

class DiscoConRicordo : public HostFileSystem {
 public:
  using HostFileSystem::HostFileSystem;
  Result<std::unique_ptr<File>> Open(std::string_view path, OpenMode mode) override {
    auto file = HostFileSystem::Open(path, mode);
    if (!file) return file;
    return std::unique_ptr<File>(std::make_unique<Ricordo>(
        std::move(file.Value()), std::string(path.substr(path.rfind('\\') + 1)), Log));
  }
  std::vector<std::string> Log;
};

class Confronto : public testing::Test {
 protected:
  void Write(const std::string& first, const std::string& second) {
    b.Cartella.Write("first", first);
    b.Cartella.Write("second", second);
  }
  EsitoConfronto Compare() {
    steps.clear();
    return ConfrontaFile(b.C.Files, b.Percorso("first"), b.Percorso("second"),
                         [this](std::size_t bytes) {
                           steps.push_back(bytes);
                           if (onStep) onStep();
                           return steps.size() != stopAt;
                         });
  }
  std::size_t Heard() const { return std::accumulate(steps.begin(), steps.end(), std::size_t{0}); }

  test::BancoDiScheda bench;
  test::Banco& b = bench.B;
  std::vector<std::size_t> steps;
  std::size_t stopAt = 0;
  std::function<void()> onStep;
};

TEST_F(Confronto, EqualFilesOfAnyLengthAreEqualAndEachByteIsHeardOf) {
  for (const std::size_t size :
       {std::size_t{0}, std::size_t{1}, kPiece - 1, kPiece, kPiece + 1, 3 * kPiece + 7}) {
    const std::string bytes(size, 'x');
    Write(bytes, bytes);
    EXPECT_EQ(Compare(), EsitoConfronto::Uguali) << size;
    EXPECT_EQ(Heard(), size);
    for (const std::size_t step : steps) EXPECT_TRUE(step > 0 && step <= kPiece);
  }
}

TEST_F(Confronto, OneOtherByteAnywhereIsADifference) {
  const std::string bytes(2 * kPiece + 100, 'x');
  for (const std::size_t at :
       {std::size_t{0}, kPiece - 1, kPiece, 2 * kPiece - 1, 2 * kPiece, bytes.size() - 1}) {
    std::string other = bytes;
    other[at] = '\0';
    Write(bytes, other);
    EXPECT_EQ(Compare(), EsitoConfronto::Diversi) << at;
    Write(other, bytes);
    EXPECT_EQ(Compare(), EsitoConfronto::Diversi) << at;
  }
}

TEST_F(Confronto, OfFilesOfDifferentLengthNothingIsRead) {
  Write(std::string(kPiece, 'x'), std::string(kPiece + 1, 'x'));
  for (const char* name : {"first", "second"}) {
    bench.Guasto->FailReadsAfter(b.Percorso(name), 0, errors::DeviceIo);
    EXPECT_EQ(Compare(), EsitoConfronto::Diversi);
    EXPECT_TRUE(steps.empty());
  }
  bench.Guasto->Repair();
  Write("", "x");
  EXPECT_EQ(Compare(), EsitoConfronto::Diversi);
  Write("x", "");
  EXPECT_EQ(Compare(), EsitoConfronto::Diversi);
}

TEST_F(Confronto, AFileThatIsNotThereOrNoneCannotBeRead) {
  Write("x", "x");
  for (const std::string& name : {std::string("first"), std::string("second")}) {
    SCOPED_TRACE(name);
    const auto expected =
        name == "first" ? EsitoConfronto::PrimoIlleggibile : EsitoConfronto::SecondoIlleggibile;
    const fs::path path = b.Cartella.Host() / name;
    fs::remove(path);
    EXPECT_EQ(Compare(), expected);
    fs::create_directories(path);
    EXPECT_EQ(Compare(), expected);
    fs::remove(path);
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(Compare(), expected) << "a pipe is not waited for";
    fs::remove(path);
    b.Cartella.Write(name, "x");
  }
  EXPECT_EQ(Compare(), EsitoConfronto::Uguali);
}

TEST_F(Confronto, AReadThatFailsAnywhereIsToldOfItsFile) {
  const std::string bytes(2 * kPiece + 100, 'x');
  Write(bytes, bytes);
  for (const std::uint64_t at : {std::uint64_t{0}, std::uint64_t{kPiece}, std::uint64_t{kPiece + 5},
                                 std::uint64_t{2 * kPiece + 50}}) {
    bench.Guasto->FailReadsAfter(b.Percorso("first"), at, errors::DeviceIo);
    EXPECT_EQ(Compare(), EsitoConfronto::PrimoIlleggibile) << at;
    bench.Guasto->FailReadsAfter(b.Percorso("second"), at, errors::DeviceIo);
    EXPECT_EQ(Compare(), EsitoConfronto::SecondoIlleggibile) << at;
  }
}

TEST_F(Confronto, EachOperationThatFailsIsToldOfItsFileAndNeverPassesForEqual) {
  const std::string bytes(kPiece + 100, 'x');
  Write(bytes, bytes);
  for (const std::string& name : {std::string("first"), std::string("second")}) {
    const auto expected =
        name == "first" ? EsitoConfronto::PrimoIlleggibile : EsitoConfronto::SecondoIlleggibile;
    for (std::size_t index = 0;; ++index) {
      bench.Guasto->FailOperation(b.Percorso(name), index, errors::DeviceIo);
      const auto outcome = Compare();
      if (bench.Guasto->FailedOperation().empty()) break;
      EXPECT_EQ(outcome, expected) << name << " " << bench.Guasto->FailedOperation();
      ASSERT_LT(index, 50U);
    }
  }
}

TEST_F(Confronto, AStepThatSaysSoEndsIt) {
  const std::string bytes(3 * kPiece, 'x');
  Write(bytes, bytes);
  for (stopAt = 1; stopAt <= 3; ++stopAt) {
    EXPECT_EQ(Compare(), EsitoConfronto::Interrotto);
    EXPECT_EQ(steps.size(), stopAt);
  }
}

TEST_F(Confronto, AFileThatEndsBeforeItsLengthIsDifferent) {
  const std::string bytes(2 * kPiece, 'x');
  for (const char* name : {"first", "second"}) {
    Write(bytes, bytes);
    onStep = [&] { fs::resize_file(b.Cartella.Host() / name, kPiece + 10); };
    EXPECT_EQ(Compare(), EsitoConfronto::Diversi) << name;
  }
}

TEST_F(Confronto, TheFirstFileIsReadPastTheHostsMemoryFromItsBeginning) {
  Write("x", "x");
  DiscoConRicordo disk(b.Percorsi);
  EXPECT_EQ(ConfrontaFile(disk, b.Percorso("first"), b.Percorso("second"),
                          [](std::size_t) { return true; }),
            EsitoConfronto::Uguali);
  ASSERT_FALSE(disk.Log.empty());
  EXPECT_EQ(disk.Log.front(), "forget first");
}

TEST_F(Confronto, AFileIsEqualToItself) {
  Write("x", "x");
  EXPECT_EQ(ConfrontaFile(b.C.Files, b.Percorso("first"), b.Percorso("FIRST"),
                          [](std::size_t) { return true; }),
            EsitoConfronto::Uguali);
}

}  // namespace
}  // namespace kvr5
