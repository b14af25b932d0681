#include <gmock/gmock.h>

#include "cli/CardVerb.h"
#include "cli/Terminale.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using nlohmann::json;

class VerifyVerb : public test::CardVerb {
 protected:
  void SetUp() override { RecordHall(); }

  static json Found(const std::string& kind, const std::string& file) {
    return {{"kind", kind}, {"file", file}};
  }
  Names Words(const std::string& project = "Hall") const {
    return {"verify", project, k.Host("card")};
  }
  /// What is found, in order, and how the line of counts ends.
  void ExpectFindings(const Objects& findings, const std::string& counts,
                      const std::string& project = "Hall") const {
    const auto run = k.EseguiJson(Words(project));
    EXPECT_EQ(run.Stato, findings.empty() ? 0 : 1);
    EXPECT_EQ(run.Oggetti(), findings);
    ASSERT_EQ(run.Box().size(), 1U) << run.Errori;
    json box = run.Box()[0];
    const std::string text = box["text"];
    EXPECT_TRUE(text.ends_with(counts)) << text;
    EXPECT_EQ(box, Told("info", "kvr5card", text));
  }
  void Change(const std::string& name, std::size_t at) const {
    std::string bytes = k.Cartella.Read(name);
    bytes.at(at) = static_cast<char>(bytes.at(at) ^ 1);
    k.Cartella.Write(name, bytes);
  }
  void Remove(const std::string& name) const { std::filesystem::remove(k.Host(name)); }
  /// A schedule named Shop whose two segments play one file, recorded on an empty card.
  void RecordShop() {
    for (const auto& name : k.Nomi("card")) Remove("card/" + name);
    New("2", "Shop");
    const std::string spot = "spot add 1 " + k.Host("music/a.mp3") + "\n";
    ASSERT_EQ(k.Esegui({"--no", "schedule", "Shop"},
                       "segment add\n" + spot + "segment add\ntime 0 30\n" + spot + "save\n")
                  .Stato,
              0);
    ASSERT_EQ(k.Esegui({"record", "Shop", k.Host("card")}).Stato, 0);
  }
};

TEST_F(VerifyVerb, AFreshCardIsAsTheProjectWithStatus0) {
  ExpectFindings({}, "; nothing found");
  const auto run = k.Esegui(Words());
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Errori, "");
  ASSERT_EQ(run.Righe().size(), 1U);
  EXPECT_TRUE(run.Righe()[0].starts_with("5 files as in the project, ")) << run.Uscita;
  EXPECT_TRUE(run.Righe()[0].ends_with("; nothing found")) << run.Uscita;
}

TEST_F(VerifyVerb, EachFindingIsALineAndTheCountsAreTheLast) {
  Remove("card/5.mp3");
  Remove("card/Config.txt");
  k.Cartella.Write("card/old.mp3", "x");
  Change("card/1.mp3", 500);
  const auto run = k.Esegui(Words());
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Errori, "");
  const Names lines = run.Righe();
  ASSERT_EQ(lines.size(), 5U) << run.Uscita;
  EXPECT_EQ((Names{lines.begin(), lines.end() - 1}),
            (Names{"missing: Config.txt", "different: 1.mp3", "missing: 5.mp3", "stray: old.mp3"}));
  EXPECT_TRUE(lines.back().starts_with("2 files as in the project, ")) << lines.back();
  EXPECT_TRUE(lines.back().ends_with("; missing 2, different 1, stray 1")) << lines.back();
}

TEST_F(VerifyVerb, AFileOfTheProjectThatIsNotOnTheCardIsMissing) {
  Remove("card/Config.cfg");
  ExpectFindings({Found("missing", "Config.cfg")}, "; missing 1");
}

TEST_F(VerifyVerb, AByteOfTheMiddleOrTheEndMakesAFileDifferent) {
  const std::size_t size = k.Cartella.Read("card/5.mp3").size();
  Change("card/5.mp3", size - 1);
  ExpectFindings({Found("different", "5.mp3")}, "; different 1");
  Change("card/5.mp3", size - 1);
  ExpectFindings({}, "; nothing found");
  k.Cartella.Write("card/5.mp3", k.Cartella.Read("card/5.mp3") + "x");
  Change("card/inputcfg.mdb", 8000);
  ExpectFindings({Found("different", "inputcfg.mdb"), Found("different", "5.mp3")},
                 "; different 2");
}

TEST_F(VerifyVerb, APlainFileThatNoRecordingPutsThereIsAStray) {
  k.Cartella.Write("card/Notes.txt", "x");
  k.Cartella.Write("card/test.txt", "");
  std::filesystem::permissions(k.Host("card/test.txt"), std::filesystem::perms::owner_read);
  k.Cartella.Write("card/.Trash", "x");
  k.Cartella.Write("card/System Volume Information/x", "x");
  ExpectFindings({Found("stray", "Notes.txt"), Found("stray", "test.txt")}, "; stray 2");
}

TEST_F(VerifyVerb, NamesAreTheSameWhateverTheirCase) {
  std::filesystem::rename(k.Host("card/Config.txt"), k.Host("card/CONFIG.TXT"));
  std::filesystem::rename(k.Host("card/5.mp3"), k.Host("card/5.MP3"));
  ExpectFindings({}, "; nothing found");
}

TEST_F(VerifyVerb, AFileThatThePlayerWouldNotTakeIsRefused) {
  k.Cartella.Write("music/a.mp3", "no music at all");
  ASSERT_EQ(k.Esegui({"record", "Hall", k.Host("card")}).Stato, 0);
  ExpectFindings({Found("refused", "5.mp3")}, "; refused 1");
}

TEST_F(VerifyVerb, AFileThatIsNoLongerInTheProjectIsMissingOrUnchecked) {
  Remove("music/a.mp3");
  Remove("music/b.mp3");
  Remove("card/1.mp3");
  ExpectFindings({Found("missing", "1.mp3"), Found("unchecked", "5.mp3")},
                 "; missing 1, unchecked 1");
}

TEST_F(VerifyVerb, ADatabaseThatCannotBeReadIsUnchecked) {
  k.Cartella.Write("program/Projects/Hall/playlist.mdb", std::string(9000, 'x'));
  std::filesystem::copy(Project() + "/playlist.mdb", k.Host("card/playlist.mdb"));
  ExpectFindings({Found("unchecked", "playlist.mdb")}, "; unchecked 1");
}

TEST_F(VerifyVerb, AFileOfTheCardThatCannotBeReadIsUnchecked) {
  k.SenzaDirittiDiRoot();
  std::filesystem::permissions(k.Host("card/5.mp3"), std::filesystem::perms::none);
  ExpectFindings({Found("unchecked", "5.mp3")}, "; unchecked 1");
}

TEST_F(VerifyVerb, ASecondAliasOfOneSourceIsAnEntryOnly) {
  RecordShop();
  ExpectFindings({Found("entry", "F0-0021.mp3")}, "; entry 1", "Shop");
  Remove("card/F0-0011.mp3");
  ExpectFindings({Found("missing", "F0-0011.mp3"), Found("entry", "F0-0011.mp3"),
                  Found("entry", "F0-0021.mp3")},
                 "; missing 1, entry 2", "Shop");
}

TEST_F(VerifyVerb, ListsForUseOnTheComputerAreNotLookedAt) {
  for (const auto& name : k.Nomi("card")) Remove("card/" + name);
  New("5", "Bar");
  ASSERT_EQ(
      k.Esegui({"--no", "playlists", "Bar"}, "add " + k.Host("music/a.mp3") + "\nsave\n").Stato, 0);
  ASSERT_EQ(k.Esegui({"record", "Bar", k.Host("card")}).Stato, 0);
  EXPECT_THAT(k.Nomi("card"), testing::Contains(testing::HasSubstr("_LOCAL_")));
  ExpectFindings({}, "; nothing found", "Bar");
  k.Cartella.Write("card/NEW_LOCAL_.m3u", "gone.mp3\r\n");
  ExpectFindings({Found("stray", "NEW_LOCAL_.m3u")}, "; stray 1", "Bar");
}

TEST_F(VerifyVerb, ALetterABareNameAndTheSystemsFormAreCardsToo) {
  Drives({"E=" + k.Host("card")});
  GoTo("");
  k.Cartella.Write("card/old", "x");
  for (const std::string& card : {std::string("E:"), std::string("e:\\"), std::string("e"),
                                  std::string("card"), k.Percorso("card"), k.Host("card/")}) {
    const auto run = k.EseguiJson({"verify", "Hall", card});
    EXPECT_EQ(run.Stato, 1) << card;
    EXPECT_EQ(run.Oggetti(), Objects{Found("stray", "old")}) << card;
  }
}

TEST_F(VerifyVerb, AProjectMayBeAFolder) {
  std::filesystem::copy(Project(), k.Host("carried"));
  ExpectFindings({}, "; nothing found", k.Host("carried"));
  ExpectFindings({}, "; nothing found", k.Percorso("carried"));
}

TEST_F(VerifyVerb, AMissingProjectOrFileOfItIsStatus3) {
  const auto none = k.EseguiJson(Words("Nowhere"));
  EXPECT_EQ(none.Stato, 3);
  EXPECT_EQ(none.Uscita, "");
  EXPECT_EQ(none.Box(), Objects{Said("there is no project Nowhere")});
  Remove("program/Projects/Hall/inputcfg.mdb");
  const auto half = k.EseguiJson(Words());
  EXPECT_EQ(half.Stato, 3);
  EXPECT_EQ(half.Uscita, "");
  ASSERT_EQ(half.Box().size(), 1U);
  EXPECT_EQ(half.Box()[0]["title"], "Project not complete");
}

TEST_F(VerifyVerb, WhatIsNoCardIsStatus1) {
  k.Cartella.Write("file", "x");
  Drives({"E=" + k.Host("gone")});
  for (const std::string& card : {k.Host("gone"), k.Host("file"), std::string("E:"),
                                  std::string("X:"), std::string("c:\\"), std::string()}) {
    ExpectNoSuchCard(k.EseguiJson({"verify", "Hall", card}), card);
  }
}

TEST_F(VerifyVerb, NothingIsChangedAnywhere) {
  k.Cartella.Write("card/old", "x");
  Change("card/5.mp3", 700);
  const auto before = test::Fotografa(k.Host(""));
  EXPECT_EQ(k.Esegui(Words()).Stato, 1);
  EXPECT_EQ(k.EseguiJson(Words()).Stato, 1);
  EXPECT_EQ(test::Differenze(before, test::Fotografa(k.Host(""))), Names{});
}

TEST_F(VerifyVerb, AWriteProtectedCardIsVerified) {
  std::filesystem::create_directories(k.Host("locked"));
  const auto volume = test::SmallVolume::InMemory(k.Host("locked"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  ASSERT_EQ(k.Esegui({"record", "Hall", k.Host("locked")}).Stato, 0);
  ASSERT_TRUE(volume->Protect());
  EXPECT_EQ(k.Esegui({"verify", "Hall", k.Host("locked")}).Stato, 0);
  Change("music/a.mp3", 600);
  EXPECT_EQ(k.EseguiJson({"verify", "Hall", k.Host("locked")}).Oggetti(),
            Objects{Found("different", "5.mp3")});
}

TEST_F(VerifyVerb, CtrlCEndsItWithStatus1AndSaysSo) {
  // Sparse: there is more to compare than anybody waits for, and none of it lies on a disk.
  for (const char* name : {"music/a.mp3", "card/5.mp3"}) {
    std::filesystem::resize_file(k.Host(name), std::uintmax_t{64} << 30U);
  }
  k.Cartella.Write("card/old", "x");
  test::Terminale person(k.Lavoro(Words(), k.Host("out")));
  ASSERT_TRUE(person.Aspetta("MB/s")) << person.Schermo();
  EXPECT_NE(person.Schermo().find("Comparing files  "), std::string::npos) << person.Schermo();
  person.Scrivi("\x03");
  EXPECT_EQ(person.Fine(), 1) << person.Schermo();
  const std::string out = k.Cartella.Read("out");
  EXPECT_TRUE(out.ends_with("; cancelled, not all was compared\n")) << out;
  EXPECT_EQ(out.find("5.mp3"), std::string::npos) << "half of it tells nothing\n" << out;
  EXPECT_EQ(out.find("stray"), std::string::npos) << out;
}

TEST_F(VerifyVerb, ProgramsGetNoProgressLine) {
  test::Terminale person(k.Lavoro({"--json", "verify", "Hall", k.Host("card")}, k.Host("out")));
  EXPECT_EQ(person.Fine(), 0);
  EXPECT_EQ(person.Schermo().find('\r'), person.Schermo().size() - 2) << person.Schermo();
}

TEST_F(VerifyVerb, TakesOneProjectAndOneCard) {
  const std::string usage = "verify PROJECT CARD";
  ExpectUsage({"verify"}, usage);
  ExpectUsage({"verify", "Hall"}, usage);
  ExpectUsage({"verify", "Hall", k.Host("card"), k.Host("card")}, usage);
  const auto help = k.Esegui({"verify", "--help"});
  EXPECT_EQ(help.Stato, 0);
  EXPECT_TRUE(help.Uscita.starts_with("usage: kvr5card [OPTION...] " + usage + "\n"));
  for (const char* kind : {"missing", "different", "stray", "entry", "refused", "unchecked"}) {
    EXPECT_NE(help.Uscita.find(kind), std::string::npos) << kind;
  }
}

}  // namespace
}  // namespace kvr5
