// Every model and mode from its project to the card and back; the way of a verification.
#include <sqlite3.h>

#include "BancoVerifica.h"
#include "playerconfig/RientroDaScheda.h"
#include "projects/ApriProgetto.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using namespace test;  // the models
using Names = std::vector<std::string>;
using VerificaGiri = test::Verifica;

class VerificaModelli : public test::Verifica, public testing::WithParamInterface<Modello> {};

TEST_P(VerificaModelli, ARecordingVerifiesWithNothingFoundAndNothingChanged) {
  Recorded(GetParam());
  const Albero before = AlberoDi(b.Cartella.Host(), true);
  EXPECT_EQ(Verify(), Names{});
  EXPECT_EQ(outcome.File, b.Nomi("card").size());
  std::uint64_t bytes = 0;
  for (const auto& name : b.Nomi("card")) bytes += fs::file_size(Card(name));
  EXPECT_EQ(outcome.Byte, bytes);
  EXPECT_FALSE(outcome.Annullata || outcome.SenzaScheda);
  EXPECT_EQ(Cambiati(before, AlberoDi(b.Cartella.Host(), true)), Names{});
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_FALSE(b.C.Errore);
}

TEST_P(VerificaModelli, ARecordedCardComesBackFileByFileAndRecordsTheSameCardAgain) {
  Recorded(GetParam());
  const Albero card = AlberoDi(b.Cartella.Host() / "card");
  SceltaDaProva choice(s);
  choice.Card = s.PercorsoMemoryCard;
  SchermoDaProva screen(s);
  screen.Answer = "Foyer";
  FinestraProgresso progress(b.C);
  const auto read = CaricaDaFlash(b.C, choice, screen, progress);
  ASSERT_EQ(read.Fine, FineLettura::Copiata);
  EXPECT_EQ(screen.Asked, Names{"Hall"});
  EXPECT_EQ(Cambiati(card, AlberoDi(b.Cartella.Host() / "program/Projects/Foyer")), Names{});
  s.PlayerType = s.PlayerMode = s.PlayerConfig = 0;
  ASSERT_EQ(ApriProgetto(b.C, read.Cartella), EsitoApertura::Aperto);
  EXPECT_EQ(s.ProjectName, "Hall") << "the stored name replaces the given one";
  EXPECT_EQ(s.PlayerType, GetParam().Type);
  EXPECT_EQ(s.PlayerMode, GetParam().Mode);
  EXPECT_EQ(Verify(), Names{}) << "its own card";
  TabellaIngressi inputs(b.C);
  inputs.ApriSeCiSono();
  RientroDaScheda(b.C, inputs);
  inputs.Chiudi();
  EXPECT_EQ(Verify(), Names{}) << "after the files of the inputs have their names back";
  EmptyCard();
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Cambiati(card, AlberoDi(b.Cartella.Host() / "card")), Names{});
}

TEST_P(VerificaModelli, AnEmptyCardLacksAllThatARecordingPutsThere) {
  Recorded(GetParam());
  const Names files = b.Nomi("card");
  EmptyCard();
  const Names found = Verify();
  EXPECT_EQ(outcome.Quanti(Difetto::Mancante), found.size()) << "nothing else is found";
  Names missing;
  for (const Riscontro& each : outcome.Riscontri) missing.push_back(each.File);
  std::ranges::sort(missing);
  EXPECT_EQ(missing, files);
  EXPECT_EQ(outcome.File, 0U);
  EXPECT_EQ(outcome.Byte, 0U);
}

INSTANTIATE_TEST_SUITE_P(All, VerificaModelli, testing::ValuesIn(TuttiIModelli()),
                         [](const auto& each) {
                           const Modello& model = each.param;
                           return "Model" + std::to_string(model.Type) + "Mode" +
                                  std::to_string(model.Mode) + "Config" +
                                  std::to_string(model.Config);
                         });

TEST_F(VerificaGiri, InMode9AListForTheComputerOnTheCardIsAStray) {
  Recorded(kNamed);
  EXPECT_EQ(Verify(), Names{});
  OnCard("Morning_LOCAL_.m3u", b.Cartella.Read(InProject("Morning_LOCAL_.m3u")));
  EXPECT_EQ(Verify(), Names{"stray Morning_LOCAL_.m3u"});
}

TEST_F(VerificaGiri, InOtherModesAListForTheComputerBelongsThere) {
  Recorded(kPlaylists);
  fs::remove(Card("PLAYLIST_LOCAL_.m3u"));
  EXPECT_EQ(Verify(), Names{"missing PLAYLIST_LOCAL_.m3u"});
}

TEST_F(VerificaGiri, ASecondAliasOfOneSourceIsAnEntryOnly) {
  Project(kPlaylists);
  b.AggiungiRiga("playlist.mdb", 2, 1, "c.mp3", Music(), "P02-001.mp3");
  Put("2.m3u", "P02-001\r\n");
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Verify(), Names{"entry P02-001.mp3"});
  OnCard("P02-001.mp3", b.Cartella.Read("card/P01-001.mp3"));
  EXPECT_EQ(Verify(), Names{"stray P02-001.mp3"}) << "a recording drops it";
}

TEST_F(VerificaGiri, TwoRowsOfOneAliasAreOneFileTheLaterOnes) {
  Project(kPlaylists);
  b.AggiungiRiga("playlist.mdb", 2, 1, "e.mp3", Music(), "p01-001.MP3");
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Verify(), Names{});
  EXPECT_EQ(outcome.File, b.Nomi("card").size());
}

TEST_F(VerificaGiri, TheAnalyzersFileBelongsThereWhenTheOptionIsOn) {
  Project(kInputs);
  b.ScriviMp3("program/Analyzer.mp3", 99);
  s.Analyzer = 1;
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Verify(), Names{});
  fs::remove(b.Cartella.Host() / "program/Analyzer.mp3");
  EXPECT_EQ(Verify(), Names{"unchecked Analyzer.mp3"});
  fs::remove(Card("Analyzer.mp3"));
  EXPECT_EQ(Verify(), Names{"missing Analyzer.mp3"});
  s.Analyzer = 0;
  EXPECT_EQ(Verify(), Names{});
  b.ScriviMp3("card/Analyzer.mp3", 99);
  EXPECT_EQ(Verify(), Names{"stray Analyzer.mp3"});
}

TEST_F(VerificaGiri, ADatabaseThatCannotBeReadIsUncheckedOnceAndTheRestIsChecked) {
  Recorded(kBoth);
  OnCard("Config.txt", "other");
  for (const std::string& bytes : {std::string(), std::string(8192, '\0'),
                                   b.Cartella.Read(InProject("playlist.mdb")).substr(0, 5000)}) {
    Put("playlist.mdb", bytes);
    OnCard("playlist.mdb", bytes);
    const Names found = Verify();
    EXPECT_EQ(std::ranges::count(found, "unchecked playlist.mdb"), 1) << bytes.size();
    EXPECT_EQ(std::ranges::count(found, "different Config.txt"), 1);
    EXPECT_EQ(outcome.Quanti(Difetto::Mancante), 0U);
    EXPECT_EQ(b.Cartella.Read(InProject("playlist.mdb")), bytes);
  }
  fs::remove(b.Cartella.Host() / InProject("playlist.mdb"));
  const Names found = Verify();
  EXPECT_EQ(std::ranges::count(found, "stray playlist.mdb"), 1) << "a missing one is skipped";
  EXPECT_EQ(outcome.Quanti(Difetto::NonLetto), 0U);
}

TEST_F(VerificaGiri, ADatabaseWhoseFileCannotBeReadIsToldOnce) {
  Recorded(kPlaylists);
  Put("playlist.mdb", std::string(8192, '\0'));
  OnCard("playlist.mdb", std::string(8192, '\0'));
  bench.Guasto->FailReadsAfter(b.Percorso("card/playlist.mdb"), 0, errors::DeviceIo);
  const Names found = Verify();
  EXPECT_EQ(std::ranges::count(found, "unchecked playlist.mdb"), 1);
}

TEST_F(VerificaGiri, ALockedDatabaseIsUncheckedAndFreeAgainNothingIsFound) {
  Recorded(kPlaylists);
  {
    sqlite3* other = nullptr;
    const std::string path = b.Cartella.Host() / InProject("playlist.mdb");
    ASSERT_EQ(sqlite3_open(path.c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    // Its tracks are not told as strays, to be deleted: nobody knows which are its own.
    EXPECT_EQ(Verify(), Names{"unchecked playlist.mdb"});
    sqlite3_close(other);
  }
  EXPECT_EQ(Verify(), Names{});
}

TEST_F(VerificaGiri, AChangeThatWasInterruptedIsPutBackAndComparedAsItWas) {
  Recorded(kPlaylists);
  const std::string whole = b.Cartella.Read(InProject("playlist.mdb"));
  b.InterrompiModifica("playlist.mdb");
  EXPECT_EQ(Verify(), Names{});
  EXPECT_TRUE(b.Cartella.Read(InProject("playlist.mdb")) == whole);
  EXPECT_FALSE(b.Cartella.Exists(InProject("playlist.mdb-journal")));
}

TEST_F(VerificaGiri, ACardThatIsNotThereIsToldAsSuchAlone) {
  Recorded(kInputs);
  for (const std::string& card :
       {b.Percorso("gone") + "\\", std::string("X:\\"), b.Percorso("card/Config.txt")}) {
    s.PercorsoMemoryCard = card;
    EXPECT_EQ(Verify(), Names{});
    EXPECT_TRUE(outcome.SenzaScheda) << card;
    EXPECT_TRUE(watch.States.empty());
    EXPECT_EQ(outcome.File, 0U);
  }
  EXPECT_FALSE(b.Cartella.Exists("gone"));
}

TEST_F(VerificaGiri, ARootWithoutItsBarIsTheSameCard) {
  Recorded(kInputs);
  s.PercorsoMemoryCard = b.Percorso("card");
  EXPECT_EQ(Verify(), Names{});
  EXPECT_EQ(outcome.File, b.Nomi("card").size());
}

TEST_F(VerificaGiri, TheFiguresGrowFromFileToFileUpToTheWhole) {
  Project(kBoth);
  b.Cartella.Write("music/a.mp3", b.Cartella.Read("music/a.mp3") + std::string(3'500'000, 'm'));
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  fs::remove(Card("128.mp3"));
  OnCard("Config.txt", "shorter");
  Verify();
  std::uint64_t total = 0;
  for (const auto& name : b.Nomi("card")) total += fs::file_size(Card(name));
  std::uint64_t done = 0;
  std::uint64_t before = 0;   // bytes of the files before the one at work
  std::uint64_t largest = 0;  // of the pieces
  std::size_t number = 0;
  for (const CopyState& state : watch.States) {
    EXPECT_EQ(state.BytesTotal, total);
    EXPECT_EQ(state.FileCount, b.Nomi("card").size() + 1) << "the missing one counts too";
    EXPECT_LE(state.BytesDone, total);
    EXPECT_GE(state.BytesDone, done);
    largest = std::max(largest, state.BytesDone - done);
    EXPECT_TRUE(state.FileNumber == number || state.FileNumber == number + 1);
    EXPECT_TRUE(state.File.starts_with(s.PercorsoMemoryCard)) << state.File;
    if (state.FileNumber != number) {
      EXPECT_EQ(state.BytesDone, before) << "one that was not read counts as done: " << state.File;
      const auto info = b.C.Files.Info(state.File);
      before += info ? info.Value().Size : 0;
    }
    done = state.BytesDone;
    number = state.FileNumber;
  }
  EXPECT_EQ(number, b.Nomi("card").size() + 1);
  EXPECT_EQ(largest, std::uint64_t{128} << 10U) << "so that a stop is heard of soon";
}

TEST_F(VerificaGiri, WhatIsOnItsWayToTheCardIsWrittenBeforeAnythingIsRead) {
  Recorded(kInputs);
  bench.Guasto->FailOperation(b.Percorso("card"), 0, errors::DeviceIo);
  EXPECT_EQ(Verify(), Names{}) << "a host that can't do so is no finding";
  EXPECT_EQ(bench.Guasto->FailedOperation(), "SyncVolume");
}

TEST_F(VerificaGiri, AHiddenSourceIsRecordedAndComparedAsAnyOther) {
  Project(kInputs);
  b.ScriviMp3("music/.quiet.mp3", 50);
  b.AggiungiRiga("inputcfg.mdb", 1, 7, ".quiet.mp3", Music(), "7.mp3");
  bench.Attributi["Config.txt"] = {.Hidden = true};
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  bench.Attributi.clear();
  ASSERT_TRUE(b.Cartella.Exists("card/7.mp3") && b.Cartella.Exists("card/Config.txt"));
  EXPECT_EQ(Verify(), Names{});
}

TEST_F(VerificaGiri, ACancelAtAnyCallEndsItWithTheFindingsUpToThere) {
  Project(kBoth);
  b.Cartella.Write("music/a.mp3", b.Cartella.Read("music/a.mp3") + std::string(2'500'000, 'm'));
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  OnCard("Config.txt", "other");
  fs::remove(Card("5.mp3"));
  fs::remove(Card("P01-002.mp3"));
  OnCard("zz.txt", "stray");
  const Names all = Verify();
  const std::size_t calls = watch.States.size();
  ASSERT_EQ(all.size(), 5U);
  ASSERT_GT(calls, 12U);
  const Albero before = AlberoDi(b.Cartella.Host(), true);
  for (std::size_t stop = 1; stop <= calls; ++stop) {
    SCOPED_TRACE(stop);
    watch.StopAt = stop;
    const Names found = Verify();
    EXPECT_TRUE(outcome.Annullata);
    EXPECT_EQ(watch.States.size(), stop) << "it is not asked again";
    ASSERT_LE(found.size(), all.size());
    EXPECT_TRUE(std::equal(found.begin(), found.end(), all.begin()));
    EXPECT_EQ(outcome.Quanti(Difetto::Estraneo) + outcome.Quanti(Difetto::VoceVuota), 0U)
        << "lists and strays come last";
  }
  watch.StopAt = 0;
  EXPECT_EQ(Verify(), all);
  EXPECT_FALSE(outcome.Annullata);
  EXPECT_EQ(Cambiati(before, AlberoDi(b.Cartella.Host(), true)), Names{});
}

TEST_F(VerificaGiri, ACardPulledOutOnTheWayNeverPassesForAGoodOne) {
  Recorded(kPlaylists);
  const Albero before = AlberoDi(b.Cartella.Host(), true);
  std::size_t good = 0;
  for (std::size_t left = 0; left < 200; ++left) {
    bench.Guasto->VanishAfter(b.Percorso("card"), left);
    const Names found = Verify();
    bench.Guasto->Repair();
    const bool passed = found.empty() && !outcome.SenzaScheda;
    if (passed) ++good;
    EXPECT_TRUE(passed || good == 0) << left;
    EXPECT_TRUE(!passed || outcome.File == b.Nomi("card").size()) << left;
  }
  EXPECT_GT(good, 0U) << "it stayed long enough at last";
  EXPECT_EQ(Cambiati(before, AlberoDi(b.Cartella.Host(), true)), Names{});
}

TEST_F(VerificaGiri, TheWordsOfTheKindsAreTheCompanions) {
  Names words;
  for (const auto kind : {Difetto::Mancante, Difetto::Diverso, Difetto::Estraneo,
                          Difetto::VoceVuota, Difetto::Rifiutato, Difetto::NonLetto}) {
    words.emplace_back(NomeDifetto(kind));
  }
  EXPECT_EQ(words, (Names{"missing", "different", "stray", "entry", "refused", "unchecked"}));
}

}  // namespace
}  // namespace kvr5
