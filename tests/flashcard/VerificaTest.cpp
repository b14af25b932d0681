// Each kind of finding, by each way to it.
#include <sys/stat.h>

#include "BancoVerifica.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using namespace test;  // the models
using Names = std::vector<std::string>;
using VerificaRiscontri = test::Verifica;

TEST_F(VerificaRiscontri, AFileThatIsNotOnTheCardIsMissing) {
  Recorded(kBoth);
  for (const char* name : {"5.mp3", "Config.txt", "Config.cfg", "inputcfg.mdb", "Report.htm"}) {
    SCOPED_TRACE(name);
    const std::string bytes = b.Cartella.Read(std::string("card/") + name);
    fs::remove(Card(name));
    EXPECT_EQ(Verify(), Names{std::string("missing ") + name});
    fs::create_directories(Card(name));
    EXPECT_EQ(Verify(), Names{std::string("missing ") + name}) << "a folder is no file";
    fs::remove(Card(name));
    ASSERT_EQ(mkfifo(Card(name).c_str(), 0600), 0);
    EXPECT_EQ(Verify(), Names{std::string("missing ") + name}) << "nor is a pipe";
    fs::remove(Card(name));
    OnCard(name, bytes);
  }
  bench.Attributi["5.mp3"] = {.Hidden = true};
  EXPECT_EQ(Verify(), Names{"missing 5.mp3"}) << "the player sees no hidden file";
}

TEST_F(VerificaRiscontri, AFileThatAListNamesToIsMissingAndAnEntry) {
  Recorded(kPlaylists);
  fs::remove(Card("P01-002.mp3"));
  EXPECT_EQ(Verify(), (Names{"missing P01-002.mp3", "entry P01-002.mp3"}));
}

TEST_F(VerificaRiscontri, AByteALengthAndAnEmptyFileAreDifferent) {
  Recorded(kInputs);
  const std::string whole = b.Cartella.Read("card/5.mp3");
  for (const std::size_t at : {std::size_t{4}, whole.size() / 2, whole.size() - 1}) {
    std::string bytes = whole;
    bytes[at] = static_cast<char>(bytes[at] ^ 1);
    OnCard("5.mp3", bytes);
    EXPECT_EQ(Verify(), Names{"different 5.mp3"}) << at;
  }
  OnCard("5.mp3", whole.substr(0, whole.size() - 1));
  EXPECT_EQ(Verify(), Names{"different 5.mp3"});
  OnCard("5.mp3", whole + '\0');
  EXPECT_EQ(Verify(), Names{"different 5.mp3"});
  OnCard("5.mp3", "");
  EXPECT_EQ(Verify(), (Names{"different 5.mp3", "refused 5.mp3"}));
  OnCard("5.mp3", whole);
  EXPECT_EQ(Verify(), Names{});
}

TEST_F(VerificaRiscontri, AProjectThatWasChangedSinceIsDifferentFromItsCard) {
  Recorded(kInputs);
  b.ScriviMp3("music/b.mp3", 77, 12);
  Put("Config.txt", b.Cartella.Read(InProject("Config.txt")) + "X=1\r\n");
  EXPECT_EQ(Verify(), (Names{"different Config.txt", "different 128.mp3"}));
  b.AggiungiRiga("inputcfg.mdb", 1, 7, "c.mp3", Music(), "7.mp3");
  EXPECT_EQ(Verify(), (Names{"different inputcfg.mdb", "different Config.txt", "missing 7.mp3",
                             "different 128.mp3"}))
      << "in the order of a recording";
}

TEST_F(VerificaRiscontri, WhatARecordingWouldNotPutThereIsAStray) {
  Recorded(kInputs);
  for (const char* name : {"test.txt", "7.mp3", "palin.txt", "scheduler.mdb", "Old.m3u",
                           "playlist.mdb-journal", "~abcdefg.kv5", "noending"}) {
    OnCard(name, "");
  }
  EXPECT_EQ(Verify(), (Names{"stray 7.mp3", "stray noending", "stray Old.m3u", "stray palin.txt",
                             "stray playlist.mdb-journal", "stray scheduler.mdb", "stray test.txt",
                             "stray ~abcdefg.kv5"}));
  EXPECT_EQ(outcome.Quanti(Difetto::Estraneo), 8U);
}

TEST_F(VerificaRiscontri, FoldersHiddenAndSystemFilesAndPipesAreNoStrays) {
  Recorded(kInputs);
  OnCard(".hidden", "x");
  OnCard("System Volume Information/x", "x");
  OnCard("more/7.mp3", "x");
  OnCard("desktop.ini", "x");
  OnCard("io.sys", "x");
  bench.Attributi = {{"desktop.ini", {.Hidden = true}}, {"io.sys", {.System = true}}};
  ASSERT_EQ(mkfifo(Card("pipe").c_str(), 0600), 0);
  EXPECT_EQ(Verify(), Names{});
}

TEST_F(VerificaRiscontri, AReadOnlyFileOfTheCardIsAsGoodAsAny) {
  Recorded(kInputs);
  fs::permissions(Card("5.mp3"), fs::perms::owner_read);
  OnCard("7.mp3", "x");
  fs::permissions(Card("7.mp3"), fs::perms::owner_read);
  EXPECT_EQ(Verify(), Names{"stray 7.mp3"});
}

TEST_F(VerificaRiscontri, AStrayWhoseNameNoPathCanHoldIsTold) {
  Recorded(kInputs);
  std::ofstream(b.Cartella.Host() / "card" / "caf\xE8.mp3") << "x";
  EXPECT_EQ(Verify(), Names{"stray caf\uFFFD.mp3"});
}

TEST_F(VerificaRiscontri, NamesAreComparedWithoutRegardToCase) {
  Recorded(kBoth);
  for (const auto& [from, to] :
       std::vector<std::pair<std::string, std::string>>{{"5.mp3", "5.MP3"},
                                                        {"Config.txt", "CONFIG.TXT"},
                                                        {"P01-001.mp3", "p01-001.Mp3"},
                                                        {"inputcfg.mdb", "INPUTCFG.MDB"},
                                                        {"PLAYLIST.m3u", "playlist.M3U"}}) {
    fs::rename(Card(from), Card(to));
  }
  EXPECT_EQ(Verify(), Names{});
}

TEST_F(VerificaRiscontri, OfTwoFilesWhoseNamesDifferByCaseOneIsTheFileAndOneAStray) {
  Recorded(kInputs);
  OnCard("5.MP3", "of another player, on a card that minds the case");
  EXPECT_EQ(Verify(), Names{"stray 5.MP3"});
}

TEST_F(VerificaRiscontri, ANameInAListWithoutAFileIsAnEntryOnce) {
  Recorded(kPlaylists);
  const std::string list = "P01-001\r\nX1\r\n\r\n   \r\nX1\r\nX2.mp3\r\nx1";
  OnCard("PLAYLIST.m3u", list);
  Put("PLAYLIST.m3u", list);
  EXPECT_EQ(Verify(), (Names{"entry X1.mp3", "entry X2.mp3"}));
  OnCard("Z.m3u", "X2\nX3\n");
  EXPECT_EQ(Verify(), (Names{"entry X1.mp3", "entry X2.mp3", "entry X3.mp3", "stray Z.m3u"}))
      << "a list that is a stray is read too; what another names already isn't told again";
}

TEST_F(VerificaRiscontri, ListsForTheComputerAreNotLookedAt) {
  Recorded(kPlaylists);
  ASSERT_TRUE(b.Cartella.Exists("card/PLAYLIST_LOCAL_.m3u"));
  EXPECT_EQ(Verify(), Names{});
  const std::string list = "C:\\Music\\gone.mp3\r\nX1\r\n";
  OnCard("PLAYLIST_LOCAL_.m3u", list);
  Put("PLAYLIST_LOCAL_.m3u", list);
  EXPECT_EQ(Verify(), Names{});
}

TEST_F(VerificaRiscontri, ASchedulesSpotsAreEntriesOfBothItsFiles) {
  Recorded(kSchedule);
  for (const char* name : {"PALIN.TXT", "1.pal"}) {
    const std::string lines = std::string("00:30\tF0-0011\t\tS") + name[0] + "\t\r\n08:00\r\n\r\n";
    OnCard(name, lines);
    Put(name, lines);
  }
  EXPECT_EQ(Verify(), (Names{"entry S1.mp3", "entry SP.mp3"}));
}

TEST_F(VerificaRiscontri, AnEntryIsMetByAFileInAnyCaseButByNoFolder) {
  Recorded(kPlaylists);
  fs::rename(Card("P01-001.mp3"), Card("p01-001.MP3"));
  EXPECT_EQ(Verify(), Names{});
  fs::remove(Card("p01-001.MP3"));
  fs::create_directories(Card("P01-001.mp3"));
  EXPECT_EQ(Verify(), (Names{"missing P01-001.mp3", "entry P01-001.mp3"}));
}

TEST_F(VerificaRiscontri, AnAliasWithLettersOfTheCodePageIsFound) {
  Project(kPlaylists);
  b.AggiungiRiga("playlist.mdb", 2, 1, "e.mp3", Music(), "È01.mp3");
  Put("2.m3u",
      "\xC8"
      "01\r\n");
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Verify(), Names{});
  fs::remove(Card("È01.mp3"));
  EXPECT_EQ(Verify(), (Names{"missing È01.mp3", "entry È01.mp3"}));
}

TEST_F(VerificaRiscontri, WhatThePlayerDoesNotTakeIsRefusedByTheRuleOfItsPlace) {
  std::string mpeg2;  // MPEG 2 Layer III, 80 kbit/s, 22,050 Hz: for lists, not for inputs
  for (int i = 0; i < 8; ++i) mpeg2 += std::string("\xFF\xF3\x90\x00", 4) + std::string(257, 'm');
  b.Cartella.Write("music/two.mp3", mpeg2);
  b.Cartella.Write("music/none.mp3", "no music at all");
  Project(kBoth);
  b.AggiungiRiga("inputcfg.mdb", 1, 9, "two.mp3", Music(), "9.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 10, "none.mp3", Music(), "10.mp3");
  b.Cartella.Write("music/three.mp3", mpeg2 + "x");
  b.AggiungiRiga("playlist.mdb", 1, 3, "three.mp3", Music(), "P01-003.mp3");
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  EXPECT_EQ(Verify(), (Names{"refused 9.mp3", "refused 10.mp3"}));
}

TEST_F(VerificaRiscontri, OnlyFilesOfRowsAndTheAnalyzersAreHeldToThePlayersRules) {
  Project(kInputs);
  Put("logo.jpg", "no music");
  b.Cartella.Write("program/Analyzer.mp3", "no music");
  s.Analyzer = 1;
  ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
  OnCard("stray.mp3", "no music");
  EXPECT_EQ(Verify(), (Names{"refused Analyzer.mp3", "stray stray.mp3"}));
}

TEST_F(VerificaRiscontri, ThePlayersFileIsWhatIsOnTheCard) {
  Recorded(kInputs);
  OnCard("5.mp3", std::string(b.Cartella.Read("card/5.mp3").size(), 'z'));
  EXPECT_EQ(Verify(), (Names{"different 5.mp3", "refused 5.mp3"}));
}

TEST_F(VerificaRiscontri, AFileOfTheCardThatCannotBeReadIsUncheckedAndNotRefused) {
  Recorded(kInputs);
  for (const std::uint64_t from : {0U, 3000U}) {
    bench.Guasto->FailReadsAfter(b.Percorso("card/5.mp3"), from, errors::DeviceIo);
    EXPECT_EQ(Verify(), Names{"unchecked 5.mp3"}) << from;
  }
}

TEST_F(VerificaRiscontri, AFileThatCannotBeReadIsNotRefusedWhateverElseIsWrongWithIt) {
  Recorded(kInputs);
  b.ScriviMp3("music/a.mp3", 1, 30);  // longer now
  bench.Guasto->FailReadsAfter(b.Percorso("card/5.mp3"), 0, errors::DeviceIo);
  Verify();
  EXPECT_EQ(outcome.Quanti(Difetto::Rifiutato), 0U) << "longer in the project";
  fs::remove(b.Cartella.Host() / "music/a.mp3");
  Verify();
  EXPECT_EQ(outcome.Quanti(Difetto::Rifiutato), 0U) << "gone from the project";
}

TEST_F(VerificaRiscontri, AListOfTheCardThatCannotBeReadIsUncheckedOnce) {
  Recorded(kPlaylists);
  bench.Guasto->FailReadsAfter(b.Percorso("card/PLAYLIST.m3u"), 0, errors::DeviceIo);
  EXPECT_EQ(Verify(), Names{"unchecked PLAYLIST.m3u"});
}

TEST_F(VerificaRiscontri, AStrayListThatCannotBeReadIsUncheckedAndAStray) {
  Recorded(kPlaylists);
  OnCard("9.m3u", "X1\r\n");
  bench.Guasto->FailReadsAfter(b.Percorso("card/9.m3u"), 0, errors::DeviceIo);
  EXPECT_EQ(Verify(), (Names{"unchecked 9.m3u", "stray 9.m3u"}));
}

TEST_F(VerificaRiscontri, ASourceThatCannotBeReadIsUnchecked) {
  Recorded(kInputs);
  bench.Guasto->FailReadsAfter(b.Percorso("music/a.mp3"), 100, errors::DeviceIo);
  EXPECT_EQ(Verify(), Names{"unchecked 5.mp3"});
  bench.Guasto->Repair();
  fs::remove(b.Cartella.Host() / "music/a.mp3");
  EXPECT_EQ(Verify(), Names{"unchecked 5.mp3"}) << "gone";
  fs::create_directories(b.Cartella.Host() / "music/a.mp3");
  EXPECT_EQ(Verify(), Names{"unchecked 5.mp3"}) << "a folder";
  fs::remove(b.Cartella.Host() / "music/a.mp3");
  ASSERT_EQ(mkfifo((b.Cartella.Host() / "music/a.mp3").c_str(), 0600), 0);
  EXPECT_EQ(Verify(), Names{"unchecked 5.mp3"}) << "a pipe is not waited for";
  fs::remove(Card("5.mp3"));
  EXPECT_EQ(Verify(), Names{"missing 5.mp3"});
}

TEST_F(VerificaRiscontri, AProjectsOwnFileThatIsGoneIsUncheckedWhereTheCardHasIt) {
  Recorded(kInputs);
  fs::remove(b.Cartella.Host() / InProject("Config.txt"));
  EXPECT_EQ(Verify(), Names{"unchecked Config.txt"});
  fs::remove(b.Cartella.Host() / InProject("Report.htm"));
  EXPECT_EQ(Verify(), (Names{"unchecked Config.txt", "stray Report.htm"}))
      << "a recording copies reports only where there are some";
}

TEST_F(VerificaRiscontri, ATrackWhoseFileIsGoneIsUncheckedOrMissing) {
  Recorded(kPlaylists);
  fs::remove(b.Cartella.Host() / "music/c.mp3");
  EXPECT_EQ(Verify(), Names{"unchecked P01-001.mp3"});
  fs::remove(Card("P01-001.mp3"));
  EXPECT_EQ(Verify(), (Names{"missing P01-001.mp3", "entry P01-001.mp3"}));
}

}  // namespace
}  // namespace kvr5
