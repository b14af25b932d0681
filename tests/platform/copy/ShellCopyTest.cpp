#include <random>

#include "CopyTest.h"
#include "platform/FileOps.h"
#include "platform/ShellCopy.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class ShellCopyOf : public test::CopyTest {};

std::string Noise(std::size_t size) {
  std::mt19937 chance(4711);
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(chance());
  return bytes;
}

TEST_F(ShellCopyOf, PairsBringsEachFileUnderItsNewName) {
  folder_.Write("from/Song one.mp3", Noise(3'456'789));
  folder_.Write("from/b.mp3", "");
  const CopyOutcome outcome =
      Copy({{From("song ONE.mp3"), Card("0001.mp3")}, {From("b.mp3"), Card("\\0002.mp3")}});
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_EQ(outcome.FilesCopied, 2U);
  EXPECT_EQ(outcome.BytesCopied, 3'456'789U);
  EXPECT_EQ(OnCard(), (Names{"0001.mp3", "0002.mp3"}));
  EXPECT_EQ(folder_.Read("card/0001.mp3"), Noise(3'456'789));
  EXPECT_TRUE(watcher_.Failures.empty());
}

TEST_F(ShellCopyOf, AFileKeepsItsTimeOfChange) {
  folder_.Write("from/a", "x");
  EXPECT_EQ(host_.Open(From("a"), OpenMode::Append).Value()->SetModified(1'111'111'111).Number(),
            0);
  Copy({{From("a"), Card("b")}});
  EXPECT_EQ(host_.Info(Card("b")).Value().Modified, 1'111'111'111);
}

TEST_F(ShellCopyOf, AFileGoesIntoAFolder) {
  folder_.Write("from/Palin.txt", "x");
  folder_.Write("card/sub/old", "x");
  EXPECT_EQ(Copy({{From("PALIN.TXT"), Card()},
                  {From("PALIN.TXT"), Card("SUB\\")},
                  {From("PALIN.TXT"), Card("new\\deep\\")}})
                .Result,
            0);
  EXPECT_TRUE(folder_.Exists("card/Palin.txt"));
  EXPECT_TRUE(folder_.Exists("card/sub/Palin.txt"));
  EXPECT_TRUE(folder_.Exists("card/new/deep/Palin.txt"));
}

TEST_F(ShellCopyOf, AFolderInTheFilesPlaceIsAFailureThere) {
  folder_.Write("from/a.mp3", "x");
  folder_.Write("card/1.mp3/inside", "x");
  EXPECT_EQ(Copy({{From("a.mp3"), Card("1.mp3")}}).Result, errors::PathFileAccess);
  EXPECT_FALSE(folder_.Exists("card/1.mp3/a.mp3"));
  EXPECT_TRUE(folder_.Exists("card/1.mp3/inside"));
}

TEST_F(ShellCopyOf, AWildcardTakesTheMatchingFilesOfTheFolderOnly) {
  for (const char* name : {"from/a.m3u", "from/B.M3U", "from/c.txt", "from/sub/d.m3u"}) {
    folder_.Write(name, name);
  }
  EXPECT_EQ(Copy({{From("*.m3u"), Card()}}).FilesCopied, 2U);
  EXPECT_EQ(OnCard(), (Names{"a.m3u", "B.M3U"}));
  EXPECT_EQ(folder_.Read("card/B.M3U"), "from/B.M3U");
}

TEST_F(ShellCopyOf, AWildcardThatMatchesNothingIsSilent) {
  const CopyOutcome outcome = Copy({{From("*.m3u"), Card("new")}});
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_TRUE(watcher_.Failures.empty());
  EXPECT_TRUE(OnCard().empty());
}

TEST_F(ShellCopyOf, AWildcardInAMissingFolderFails) {
  EXPECT_EQ(Copy({{From("none\\*.m3u"), Card()}}).Result, 76);
  ASSERT_EQ(watcher_.Failures.size(), 1U);
  EXPECT_TRUE(watcher_.Failures[0].Source);
}

TEST_F(ShellCopyOf, AMissingFileEndsItAndLeavesWhatWasCopied) {
  folder_.Write("from/a", "A");
  folder_.Write("from/c", "C");
  for (const char* missing : {"b", "none\\b"}) {
    fs::remove(Host("card/a"));
    watcher_.Failures.clear();
    const CopyOutcome outcome =
        Copy({{From("a"), Card("a")}, {From(missing), Card("b")}, {From("c"), Card("c")}});
    EXPECT_EQ(outcome.Result, 53);
    EXPECT_EQ(outcome.FilesCopied, 1U);
    EXPECT_EQ(OnCard(), (Names{"a"}));
    ASSERT_EQ(watcher_.Failures.size(), 1U);
    EXPECT_EQ(watcher_.Failures[0].File, From(missing));
    EXPECT_EQ(watcher_.Failures[0].Cause.Number(), 53);
    EXPECT_TRUE(watcher_.Failures[0].Source);
  }
}

TEST_F(ShellCopyOf, AnOldFileIsOverwrittenWithoutAQuestion) {
  folder_.Write("from/config.cfg", "new");
  folder_.Write("card/Config.cfg", "old and longer");
  fs::permissions(Host("card/Config.cfg"), fs::perms::owner_read);
  EXPECT_EQ(Copy({{From("config.cfg"), Card("config.CFG")}}).Result, 0);
  EXPECT_EQ(OnCard(), (Names{"Config.cfg"}));
  EXPECT_EQ(folder_.Read("card/Config.cfg"), "new");
  EXPECT_FALSE(host_.Info(Card("Config.cfg")).Value().ReadOnly);
}

TEST_F(ShellCopyOf, AFileOntoItselfIsPassedOver) {
  folder_.Write("card/a", "A");
  folder_.Write("from/b", "B");
  const CopyOutcome outcome =
      Copy({{Card("a"), folder_.System("card\\A")}, {Card("a"), Card()}, {From("b"), Card("b")}});
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_EQ(outcome.FilesCopied, 1U);
  EXPECT_EQ(folder_.Read("card/a"), "A");
  EXPECT_EQ(watcher_.States.back().BytesDone, watcher_.States.back().BytesTotal);
}

TEST_F(ShellCopyOf, AFolderInTheWayOfAFileFails) {
  folder_.Write("from/a.m3u", "x");
  fs::create_directory(Host("card/a.m3u"));
  EXPECT_EQ(Copy({{From("*.m3u"), Card()}}).Result, 75);
  ASSERT_EQ(watcher_.Failures.size(), 1U);
  EXPECT_EQ(watcher_.Failures[0].File, Card("a.m3u"));
  EXPECT_FALSE(watcher_.Failures[0].Source);
  EXPECT_EQ(OnCard(), (Names{"a.m3u"}));
}

TEST_F(ShellCopyOf, ADriveThatIsTakenAwayEndsItAndIsNotMadeAgain) {
  folder_.Write("from/a", "A");
  folder_.Write("from/b", "B");
  watcher_.OnProgress = [this](const CopyState& state) {
    if (state.FileNumber == 2 && folder_.Exists("card")) fs::rename(Host("card"), Host("gone"));
    return true;
  };
  EXPECT_EQ(Copy({{From("a"), Card("sub\\a")}, {From("b"), Card("sub\\b")}}).Result, 71);
  ASSERT_EQ(watcher_.Failures.size(), 1U);
  EXPECT_EQ(watcher_.Failures[0].File, Card("sub\\b"));
  EXPECT_FALSE(watcher_.Failures[0].Source);
  EXPECT_FALSE(folder_.Exists("card"));
  EXPECT_FALSE(folder_.Exists("gone/sub/a")) << "never under its good name unflushed";
}

TEST_F(ShellCopyOf, ANameThatACardCannotHoldFails) {
  folder_.Write("from/a", "x");
  EXPECT_EQ(Copy({{From("a"), Card("a<b")}}).Result, 52);
  EXPECT_TRUE(OnCard().empty());
}

TEST_F(ShellCopyOf, PairsWorksOneAfterAnother) {
  folder_.Write("from/a", "A");
  folder_.Write("from/b", "B");
  EXPECT_EQ(Copy({{From("a"), Card("x")},
                  {From("b"), Card("X")},
                  {Card("x"), Card("y")},
                  {folder_.System("card\\y"), Card("z")},
                  {Card("*.*"), Card("sub")}})
                .Result,
            0);
  EXPECT_EQ(folder_.Read("card/x"), "B") << "the later one wins";
  EXPECT_EQ(folder_.Read("card/y"), "B") << "read after it was replaced";
  EXPECT_EQ(folder_.Read("card/z"), "B");
  EXPECT_EQ(OnCard("sub"), (Names{"x", "y", "z"}));
}

TEST_F(ShellCopyOf, PairsTellsHowFarItHasCome) {
  folder_.Write("from/a", std::string(2'500'000, 'a'));
  folder_.Write("from/b", "B");
  Copy({{From("a"), Card("a")}, {From("b"), Card("b")}});
  ASSERT_GE(watcher_.States.size(), 5U);
  const CopyState& first = watcher_.States.front();
  EXPECT_EQ(first.File, From("a"));
  EXPECT_EQ(first.FileNumber, 1U);
  EXPECT_EQ(first.FileCount, 2U);
  EXPECT_EQ(first.BytesDone, 0U);
  EXPECT_EQ(first.BytesTotal, 2'500'001U);
  std::uint64_t before = 0;
  for (const CopyState& state : watcher_.States) {
    EXPECT_GE(state.BytesDone, before);
    EXPECT_LE(state.BytesDone - before, 1U << 20U) << "events run after each piece";
    EXPECT_LE(state.BytesDone, state.BytesTotal);
    before = state.BytesDone;
  }
  EXPECT_EQ(watcher_.States.back().File, From("b"));
  EXPECT_EQ(watcher_.States.back().FileNumber, 2U);
  EXPECT_EQ(watcher_.States.back().BytesDone, 2'500'001U);
}

TEST_F(ShellCopyOf, PairsStopsAtACancelAndKeepsTheWholeFiles) {
  for (const char* name : {"a", "b", "c", "d"}) {
    folder_.Write(std::string("from/") + name, std::string(2'500'000, 'x'));
  }
  folder_.Write("card/c", "old");
  watcher_.OnProgress = [](const CopyState& state) { return state.BytesDone < 6'000'000; };
  const CopyOutcome outcome = Copy({{From("a"), Card("a")},
                                    {From("b"), Card("b")},
                                    {From("c"), Card("c")},
                                    {From("d"), Card("d")}});
  EXPECT_EQ(outcome.Result, 1223);
  EXPECT_EQ(outcome.FilesCopied, 2U);
  EXPECT_TRUE(watcher_.Failures.empty());
  EXPECT_EQ(OnCard(), (Names{"a", "b", "c"}));
  EXPECT_EQ(folder_.Read("card/b").size(), 2'500'000U);
  EXPECT_EQ(folder_.Read("card/c"), "old");
}

TEST_F(ShellCopyOf, PairsCancelledAtOnceTouchesNothing) {
  folder_.Write("from/a", "x");
  watcher_.OnProgress = [](const CopyState&) { return false; };
  EXPECT_EQ(Copy({{From("a"), Card("a")}}).Result, 1223);
  EXPECT_EQ(Copy({{From("*.*"), Card("a")}}).Result, 1223);
  EXPECT_TRUE(OnCard().empty());
  EXPECT_EQ(watcher_.States.size(), 2U);
}

TEST_F(ShellCopyOf, NothingIsNothing) {
  EXPECT_EQ(Copy({}).Result, 0);
  EXPECT_TRUE(watcher_.States.empty());
}

TEST_F(ShellCopyOf, ManyFilesKeepsFewOpen) {
  std::vector<CopyPair> pairs;
  for (int i = 0; i < 300; ++i) {
    const std::string name = std::to_string(i) + ".mp3";
    folder_.Write("from/" + name, name);
    pairs.push_back({From(name), Card(name)});
  }
  EXPECT_EQ(Copy(pairs).FilesCopied, 300U);
  EXPECT_LE(files_.MostOpen(), 70U);
  EXPECT_EQ(OnCard().size(), 300U);
  EXPECT_EQ(folder_.Read("card/299.mp3"), "299.mp3");
}

TEST_F(ShellCopyOf, FilesLargerThanABatchArriveWhole) {
  std::string bytes = Noise(1'000'003);
  bytes.append(24'000'000, 'x').append(Noise(77));
  for (const char* name : {"from/a", "from/b", "from/c"}) folder_.Write(name, bytes);
  EXPECT_EQ(Copy({{From("*"), Card()}}).BytesCopied, 75'000'240U);
  for (const char* name : {"a", "b", "c"}) {
    EXPECT_TRUE(ReadWhole(host_, Card(name)).Value() == bytes) << name;
  }
}

TEST_F(ShellCopyOf, LongNamesAreCopied) {
  const std::string name = std::string(196, 'n') + ".mp3";
  folder_.Write("from/" + name, "x");
  EXPECT_EQ(Copy({{From("*.*"), Card()}}).Result, 0);
  EXPECT_EQ(OnCard(), (Names{name}));
}

TEST_F(ShellCopyOf, AThrowingObserverLeavesNoTemporaryFile) {
  folder_.Write("from/a", std::string(100, 'x'));
  folder_.Write("from/b", std::string(100, 'x'));
  watcher_.OnProgress = [](const CopyState& state) -> bool {
    if (state.BytesDone > 150) throw std::logic_error("a mistake");
    return true;
  };
  EXPECT_THROW(Copy({{From("*.*"), Card()}}), std::logic_error);
  EXPECT_TRUE(OnCard().empty());
}

}  // namespace
}  // namespace kvr5
