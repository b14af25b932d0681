#include <algorithm>
#include <filesystem>
#include <optional>
#include <tuple>

#include "BancoRegistrazione.h"

// The steps of a recording in their order: what stands where at each of them.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Recording;
using Names = std::vector<std::string>;

class RecordingSteps : public Recording {
 protected:
  /// A project that has something for each row of the card's layout.
  void FullProject() {
    Project(2, 0, 0);
    for (const char* name : {"1.m3u", "PALIN.TXT", "1.pal", "Hall.htm", "logo.jpg"}) Put(name);
    fs::copy(b.Cartella.Host() / "program/source.mdb",
             b.Cartella.Host() / "program/Projects/Hall/scheduler.mdb");
    inputs.Apri();
    inputs.Assegna(1, "a.mp3", Music());
    b.AggiungiRiga("playlist.mdb", 1, 1, "b.mp3", Music(), "P01-001.mp3");
    b.AggiungiRiga("scheduler.mdb", 0, 1, "c.mp3", Music(), "F0-0011.mp3", 1);
  }
  /// The name of the file that a copy is at; "" while it counts the files of a folder.
  static std::string AtWork(const CopyState& state) {
    const auto name = state.File.substr(state.File.rfind('\\') + 1);
    return name.find('.') == std::string::npos ? "" : name;
  }
  Names Mp3OnCard() const {
    Names names = Card();
    std::erase_if(names, [](const std::string& name) { return !name.ends_with(".mp3"); });
    return names;
  }
  /// Whether this process has a file of the project open, where the host tells.
  bool HasOpen(const std::string& name) const {
    const fs::path wanted = b.Cartella.Host() / "program/Projects/Hall" / name;
    std::error_code ignored;
    const fs::directory_iterator open("/proc/self/fd", ignored);
    return std::any_of(begin(open), end(open), [&](const fs::directory_entry& entry) {
      return fs::read_symlink(entry.path(), ignored) == wanted;
    });
  }
};

TEST_F(RecordingSteps, EachFileIsCopiedAtItsStageUnderItsStagesText) {
  using Step = std::tuple<std::int32_t, std::string, std::string>;
  FullProject();
  std::vector<Step> steps;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    if (!progress.Caricata() || AtWork(state).empty()) return;
    const Step step{progress.ValoreCorrente, progress.TestoOperazione(), AtWork(state)};
    if (steps.empty() || steps.back() != step) steps.push_back(step);
  };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(steps, (std::vector<Step>{{1, "Copying the databases", "inputcfg.mdb"},
                                      {1, "Copying the databases", "playlist.mdb"},
                                      {1, "Copying the databases", "scheduler.mdb"},
                                      {2, "Copying the configuration", "Config.txt"},
                                      {2, "Copying the configuration", "Config.cfg"},
                                      {3, "Copying playlists and schedules", "1.m3u"},
                                      {3, "Copying playlists and schedules", "PALIN.TXT"},
                                      {3, "Copying playlists and schedules", "1.pal"},
                                      {4, "Copying reports and pictures", "Hall.htm"},
                                      {4, "Copying reports and pictures", "logo.jpg"}}));
}

TEST_F(RecordingSteps, TheTextOfAStageStandsWhenTheBarHasReachedIt) {
  using Step = std::pair<std::int32_t, std::string>;
  FullProject();
  std::vector<Step> steps;
  b.Messaggi.Accade = [&] {
    if (!progress.Visibile()) return;
    const Step step{progress.ValoreCorrente, progress.TestoOperazione()};
    if (steps.empty() || steps.back() != step) steps.push_back(step);
  };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(steps, (std::vector<Step>{{1, "Writing the files of the project"},
                                      {1, "Copying the databases"},
                                      {2, "Copying the configuration"},
                                      {3, "Copying playlists and schedules"},
                                      {4, "Copying reports and pictures"},
                                      {5, "Looking for the MP3 files"},
                                      {6, "Looking for the MP3 files"},
                                      {7, "Looking for the MP3 files"}}));
}

TEST_F(RecordingSteps, PlaylistRowsAreTakenByListAndPlaceHoweverTheyWereAdded) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 2, 1, "a.mp3", Music(), "P02-001.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 3, "a.mp3", Music(), "P01-003.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 2, "a.mp3", Music(), "P01-002.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 1, "b.mp3", Music(), "P01-001.mp3");
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Mp3OnCard(), (Names{"P01-001.mp3", "P01-002.mp3"}))
      << "the alias of the lowest list, and of the lowest place there";
  EXPECT_TRUE(b.Cartella.Same("card/P01-002.mp3", "music/a.mp3"));
}

TEST_F(RecordingSteps, ScheduleRowsAreTakenByScheduleAndPlaceHoweverTheyWereAdded) {
  Project(4, 2);
  b.AggiungiRiga("scheduler.mdb", 1, 1, "a.mp3", Music(), "F1-0011.mp3", 1);
  b.AggiungiRiga("scheduler.mdb", 0, 3, "a.mp3", Music(), "F0-0023.mp3", 2);
  b.AggiungiRiga("scheduler.mdb", 0, 2, "a.mp3", Music(), "F0-0032.mp3", 3);
  b.AggiungiRiga("scheduler.mdb", 0, 1, "b.mp3", Music(), "F0-0041.mp3", 4);
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Mp3OnCard(), (Names{"F0-0032.mp3", "F0-0041.mp3"}))
      << "the alias of the lowest schedule, and of the lowest place there";
  EXPECT_TRUE(b.Cartella.Same("card/F0-0032.mp3", "music/a.mp3"));
}

TEST_F(RecordingSteps, InputsAreTakenByCodeHoweverTheyWereAssigned) {
  Project(4, 1);
  inputs.Apri();
  for (const auto& [code, name] :
       {std::pair<std::int16_t, const char*>{200, "c.mp3"}, {7, "b.mp3"}, {1, "a.mp3"}}) {
    inputs.Assegna(code, name, Music());
  }
  Names order;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    const auto name = AtWork(state);
    if (name.ends_with(".mp3") && (order.empty() || order.back() != name)) order.push_back(name);
  };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(order, (Names{"a.mp3", "b.mp3", "c.mp3"}));
}

TEST_F(RecordingSteps, TheProgressWindowIsGoneBeforeTheMp3CopyWhilePeopleStillWait) {
  FullProject();
  Names seen;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    const auto name = AtWork(state);
    if (!name.ends_with(".mp3")) return;
    if (seen.empty() || seen.back() != name) seen.push_back(name);
    EXPECT_FALSE(progress.Caricata()) << name;
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Attesa) << name;
  };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(seen, (Names{"a.mp3", "b.mp3", "c.mp3"}));
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(RecordingSteps, TheProgressWindowIsGoneBeforeTheBoxOfAMissingFile) {
  Project(4, 5);
  b.AggiungiRiga("playlist.mdb", 1, 1, "gone.mp3", Music(), "P01-001.mp3");
  int boxes = 0;
  b.Finestre.SuBox = [&](const test::BoxVisto& box) {
    ++boxes;
    EXPECT_FALSE(progress.Caricata()) << box.Testo;
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Attesa) << box.Testo;
  };
  EXPECT_EQ(Record(), FineRegistrazione::FileMancante);
  b.Finestre.Prossimo();
  EXPECT_EQ(boxes, 1);
}

TEST_F(RecordingSteps, ThePointerIsBackBeforeTheBoxOfACancel) {
  Project(4, 5);
  b.Messaggi.Accade = [&] {
    if (progress.Visibile() && !s.AnnullatoDaUtente) progress.Annulla();
  };
  b.Finestre.SuBox = [&](const test::BoxVisto& box) {
    EXPECT_FALSE(progress.Caricata()) << box.Testo;
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale) << box.Testo;
  };
  EXPECT_EQ(Record(), FineRegistrazione::Annullata);
  b.Finestre.Prossimo();
}

TEST_F(RecordingSteps, ACancelFromBeforeIsForgottenAlsoWhereTheRunEndsAtOnce) {
  Project(4, 1);
  s.PercorsoMemoryCard.clear();
  choice.Cancelled = true;
  s.AnnullatoDaUtente = true;
  EXPECT_EQ(Record(), FineRegistrazione::SenzaScheda);
  EXPECT_FALSE(s.AnnullatoDaUtente) << "the dialog of the card was left";
  s.PercorsoMemoryCard = b.Percorso("gone") + "\\";
  s.AnnullatoDaUtente = true;
  EXPECT_EQ(Record(), FineRegistrazione::NonScrivibile);
  b.Finestre.Prossimo();
  EXPECT_FALSE(s.AnnullatoDaUtente) << "the card can't be written";
}

TEST_F(RecordingSteps, AnErrorFromBeforeDoesNotRefuseAGoodCard) {
  Project(4, 1);
  b.C.Errore.Record(Error(errors::DeviceIo));
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Card(), (Names{"Config.cfg", "Config.txt", "inputcfg.mdb"}));
}

TEST_F(RecordingSteps, TheInputsAreClosedWhileDatabasesAreCopiedAndOpenAgainForTheRest) {
  FullProject();
  Names closed;
  Names open;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    const auto name = AtWork(state);
    auto& names = inputs.Aperta() ? open : closed;
    if (!name.empty() && (names.empty() || names.back() != name)) names.push_back(name);
  };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(closed, (Names{"inputcfg.mdb", "playlist.mdb", "scheduler.mdb"}));
  EXPECT_EQ(open, (Names{"Config.txt", "Config.cfg", "1.m3u", "PALIN.TXT", "1.pal", "Hall.htm",
                         "logo.jpg", "a.mp3", "b.mp3", "c.mp3"}));
}

TEST_F(RecordingSteps, TheConnectionToTheInputsIsClosedTooWhileDatabasesAreCopied) {
  FullProject();
  inputs.Apri();
  if (!HasOpen("inputcfg.mdb")) GTEST_SKIP() << "this host doesn't tell which files are open";
  std::optional<bool> during;
  std::optional<bool> after;
  b.Copia.SuProgresso = [&](const CopyState& state) {
    if (AtWork(state) == "playlist.mdb") during = HasOpen("inputcfg.mdb");
    if (AtWork(state) == "Config.txt") after = HasOpen("inputcfg.mdb");
  };
  EXPECT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(during, false);
  EXPECT_EQ(after, true);
}

}  // namespace
}  // namespace kvr5
