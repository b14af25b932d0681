// Each fault of a card or a project at each stage of a recording: what is told, what survives,
// whether the later stages and the copy of the MP3 files run.
#include <sqlite3.h>

#include <set>

#include "BancoVerifica.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using namespace test;  // the models
using Names = std::vector<std::string>;

enum class Fault {
  Full,
  Protected,
  PulledOut,
  Unreadable,
  CancelProgress,
  CancelCopy,
  Locked,
  Unmounted
};

constexpr int kWriteTest = 0;
constexpr int kFinal = 8;  ///< the copy of the MP3 files; 1 to 7 are the stages

struct Case {
  int Stage = 0;
  Fault What = Fault::Full;
};

const char* NameOf(Fault fault) {
  constexpr std::array kNames{"Full",           "Protected",  "PulledOut", "Unreadable",
                              "CancelProgress", "CancelCopy", "Locked",    "Unmounted"};
  return kNames.at(static_cast<std::size_t>(fault));
}

/// The copies of each stage: the files that each brings.
const std::map<int, std::vector<Names>>& Copies() {
  static const std::map<int, std::vector<Names>> copies{
      {1, {{"inputcfg.mdb"}, {"playlist.mdb"}, {"scheduler.mdb"}}},
      {2, {{"Config.txt"}, {"Config.cfg"}}},
      {3, {{"1.m3u", "2.m3u"}, {"PALIN.TXT"}, {"1.pal"}}},
      {4, {{"Report.htm"}, {"logo.jpg"}}},
      {kFinal, {{"5.mp3", "F0-0011.mp3", "P01-001.mp3"}}}};
  return copies;
}

/// Where a fault of the source is: the project's own files come from another folder than the music.
bool IsMusic(int stage) {
  return stage == kFinal;
}

class MatriceGuasti : public test::Verifica, public testing::WithParamInterface<Case> {
 protected:
  void SetUp() override {
    test::Verifica::SetUp();
    b.CreaProgetto("Hall", 2, 0, 0);
    int seed = 0;
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
      b.ScriviMp3(std::string("music/") + name, ++seed);
    }
    for (const char* name : {"1.m3u", "2.m3u", "PALIN.TXT", "1.pal", "Report.htm", "logo.jpg"}) {
      b.Cartella.Write(std::string("program/Projects/Hall/") + name, name);
    }
    b.Cartella.Write("program/Projects/Hall/scheduler.mdb", b.Cartella.Read("program/source.mdb"));
    b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
    b.AggiungiRiga("playlist.mdb", 1, 1, "b.mp3", Music(), "P01-001.mp3");
    b.AggiungiRiga("scheduler.mdb", 0, 1, "c.mp3", Music(), "F0-0011.mp3", 1);
  }
  void TearDown() override { sqlite3_close(other_); }

  /// Runs a recording; the fault strikes when its stage begins.
  EsitoRegistrazione Run() {
    TabellaIngressi inputs(b.C);
    inputs.Apri();
    FinestraProgresso progress(b.C);
    SceltaDaProva choice(s);
    choice.Gone = [this] { return gone_; };
    bool shown = false;
    const auto stage = [&] {
      if (progress.Visibile()) return static_cast<int>(progress.ValoreCorrente);
      return shown ? kFinal : kWriteTest;
    };
    if (at_.Stage == kWriteTest) Strike(progress);
    b.Messaggi.Accade = [&] {
      shown = shown || progress.Visibile();
      reached_.insert(stage());
      if (!struck_ && stage() == at_.Stage) Strike(progress);
    };
    b.Copia.SuProgresso = [&](const CopyState&) {
      const bool now = at_.What == Fault::CancelCopy && !cancelled_ && stage() == at_.Stage;
      b.Copia.AnnullaAlla = now ? 1 : 0;
      cancelled_ = cancelled_ || now;
    };
    const auto ended = RegistraProgettoSuFlash(b.C, inputs, progress, choice);
    EXPECT_FALSE(progress.Caricata());
    bench.Guasto->Repair();
    return ended;
  }
  void Strike(FinestraProgresso& progress) {
    struck_ = true;
    const std::string card = s.PercorsoMemoryCard;
    switch (at_.What) {
      case Fault::Full:
        return bench.Guasto->LimitRoom(card, Used());
      case Fault::Protected:
        return bench.Guasto->Protect(card);
      case Fault::PulledOut:
        return bench.Guasto->VanishAfter(card, 0);
      case Fault::Unreadable:
        return bench.Guasto->FailReadsAfter(
            b.Percorso(IsMusic(at_.Stage) ? "music" : "program/Projects/Hall"), 0,
            errors::DeviceIo);
      case Fault::CancelProgress:
        return progress.Annulla();
      case Fault::CancelCopy:
        return;
      case Fault::Locked:
        return Lock();
      case Fault::Unmounted:  // its folder stays
        gone_ = true;
        return;
    }
  }
  std::uint64_t Used() const {
    std::uint64_t used = 0;
    for (const auto& name : b.Nomi("card")) used += fs::file_size(Card(name));
    return used;
  }
  void Lock() {
    const std::string path = b.Cartella.Host() / "program/Projects/Hall/playlist.mdb";
    ASSERT_EQ(sqlite3_open(path.c_str(), &other_), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  }

  bool StaysToTheEnd() const {
    return at_.What == Fault::Full || at_.What == Fault::Protected ||
           at_.What == Fault::PulledOut || at_.What == Fault::Unreadable ||
           at_.What == Fault::Unmounted;
  }
  bool Cancels() const {
    return at_.What == Fault::CancelProgress || at_.What == Fault::CancelCopy;
  }
  /// Whether the fault keeps the copy number `copy` of a stage from its end.
  bool Spoils(int stage, std::size_t copy) const {
    if (at_.What == Fault::CancelCopy) return stage == at_.Stage && copy == 0;
    if (at_.What == Fault::Unreadable && IsMusic(stage) != IsMusic(at_.Stage)) return false;
    return StaysToTheEnd() && stage >= at_.Stage;
  }
  /// What the card holds at the end, and how many copies failed.
  std::pair<Names, std::size_t> Expected() const {
    Names files;
    std::size_t failed = 0;
    for (const auto& [stage, copies] : Copies()) {
      for (std::size_t copy = 0; copy < copies.size(); ++copy) {
        if (Spoils(stage, copy)) {
          ++failed;
          continue;
        }
        for (const std::string& file : copies[copy]) {
          if (!IsLockedOut(file)) files.push_back(file);
        }
      }
    }
    std::ranges::sort(files);
    if (at_.What == Fault::CancelCopy) failed = 0;
    if (at_.What == Fault::Unmounted) failed = std::min<std::size_t>(failed, 1);  // told once
    return {files, failed};
  }
  /// A database that is locked when its pass comes gives no files.
  bool IsLockedOut(const std::string& file) const {
    constexpr int kPlaylistPass = 6;
    return at_.What == Fault::Locked && at_.Stage <= kPlaylistPass && file == "P01-001.mp3";
  }
  void ExpectWholeFiles() const {
    const std::map<std::string, std::string> music{
        {"5.mp3", "a.mp3"}, {"P01-001.mp3", "b.mp3"}, {"F0-0011.mp3", "c.mp3"}};
    for (const auto& name : b.Nomi("card")) {
      const auto track = music.find(name);
      const std::string source =
          track == music.end() ? "program/Projects/Hall/" + name : "music/" + track->second;
      EXPECT_TRUE(b.Cartella.Same("card/" + name, source)) << name << " is not whole";
    }
  }
  void ExpectGuasti(std::size_t count) const {
    const std::map<Fault, int> numbers{{Fault::Full, errors::DiskFull},
                                       {Fault::Protected, errors::PermissionDenied},
                                       {Fault::PulledOut, errors::PathNotFound},
                                       {Fault::Unreadable, errors::DeviceIo},
                                       {Fault::Unmounted, errors::DeviceUnavailable}};
    ASSERT_EQ(b.Copia.Guasti.size(), count);
    for (const CopyFailure& each : b.Copia.Guasti) {
      EXPECT_EQ(each.Cause.Number(), numbers.at(at_.What));
      EXPECT_EQ(each.Source, at_.What == Fault::Unreadable) << each.File;
    }
  }

  const Case at_ = GetParam();

 private:
  bool struck_ = false;
  bool cancelled_ = false;
  bool gone_ = false;
  sqlite3* other_ = nullptr;

 protected:
  std::set<int> reached_;  ///< the stages at which events ran
};

TEST_P(MatriceGuasti, EndsAsItsKindOfFaultDoesAtThisStage) {
  const bool unwritable =
      at_.Stage == kWriteTest && StaysToTheEnd() && at_.What != Fault::Unreadable;
  const auto ended = Run();
  if (unwritable) {
    EXPECT_EQ(ended.Fine, FineRegistrazione::NonScrivibile);
    const auto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "Recording not started");
    EXPECT_EQ(box.Testo,
              "Nothing was copied: this card isn't there or can't be written. Open its lock or put "
              "it back in, then repeat.");
    EXPECT_EQ(box.Colore, 0U);
    EXPECT_EQ(b.Nomi("card"), Names{}) << "no stray of the write test";
    EXPECT_TRUE(reached_.upper_bound(kWriteTest) == reached_.end()) << "no progress window";
    ExpectGuasti(0);
    return;
  }
  EXPECT_EQ(ended.Fine, Cancels() ? FineRegistrazione::Annullata : FineRegistrazione::Compiuta);
  if (Cancels()) {
    const auto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "Project");
    EXPECT_EQ(box.Testo, "Not all was completed: please repeat");
    EXPECT_EQ(box.Colore, 33023U);
  }
  EXPECT_TRUE(b.Finestre.Silenzio()) << "else it ends in silence";
  const auto [files, failed] = Expected();
  EXPECT_EQ(b.Nomi("card"), files) << "no stray, and nothing is taken back";
  ExpectWholeFiles();
  ExpectGuasti(failed);
  EXPECT_EQ(reached_, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8})) << "every stage runs";
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  EXPECT_EQ(ended.File, files.size());
  const bool skipped = IsLockedOut("P01-001.mp3");
  EXPECT_EQ(ended.NonLetti, skipped ? Names{"playlist.mdb"} : Names{});
}

std::vector<Case> AllCases() {
  std::vector<Case> cases;
  for (int stage = kWriteTest; stage <= kFinal; ++stage) {
    for (int fault = 0; fault <= static_cast<int>(Fault::Unmounted); ++fault) {
      const Case each{stage, static_cast<Fault>(fault)};
      const bool window = stage >= 1 && stage < kFinal;
      if (each.What == Fault::CancelProgress && !window) continue;
      if (each.What == Fault::CancelCopy && !Copies().contains(stage)) continue;
      cases.push_back(each);
    }
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(All, MatriceGuasti, testing::ValuesIn(AllCases()), [](const auto& each) {
  return std::string(NameOf(each.param.What)) + "AtStage" + std::to_string(each.param.Stage);
});

}  // namespace
}  // namespace kvr5
