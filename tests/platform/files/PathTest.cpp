#include <gtest/gtest.h>

#include "platform/Path.h"

namespace kvr5 {
namespace {

TEST(PathMap, TakesTheRootOfTheHostForDriveC) {
  const PathMap paths;
  EXPECT_EQ(paths.ToHost("C:\\Music\\a.mp3"), "/Music/a.mp3");
  EXPECT_EQ(paths.ToHost("c:\\Music"), "/Music");
  EXPECT_EQ(paths.ToHost("C:\\"), "/");
  EXPECT_EQ(paths.Root('C'), "/");
}

TEST(PathMap, CountsDoubledAndClosingBackslashesForNothing) {
  const PathMap paths;
  EXPECT_EQ(paths.ToHost("C:\\Music\\\\a.mp3"), "/Music/a.mp3");
  EXPECT_EQ(paths.ToHost("C:\\\\test.txt"), "/test.txt");
  EXPECT_EQ(paths.ToHost("C:\\Music\\"), "/Music");
  EXPECT_EQ(paths.ToHost("C:\\\\\\"), "/");
}

TEST(PathMap, WorksDotsOutByTheText) {
  const PathMap paths;
  EXPECT_EQ(paths.ToHost(R"(C:\a\.\b\..\c)"), "/a/c");
  EXPECT_EQ(paths.ToHost("C:\\..\\..\\a"), "/a");
  EXPECT_EQ(paths.ToHost("C:\\a\\..."), "/a/...");
}

TEST(PathMap, KnowsNoPathThatIsNotAbsoluteOrOnAnUnknownDrive) {
  const PathMap paths;
  for (const char* path :
       {"", "C", "C:", "C:a", "a\\b", "\\a", "/a", "D:\\a", "1:\\a", "\\\\s\\x"}) {
    EXPECT_EQ(paths.ToHost(path), "") << path;
  }
  EXPECT_EQ(paths.ToHost("C:\\a/b"), "");
  EXPECT_EQ(paths.ToHost(std::string_view("C:\\a\0b", 6)), "");
}

TEST(PathMap, MapsALetterToItsFolder) {
  PathMap paths;
  ASSERT_TRUE(paths.Bind('E', "/media/anna/CARD/"));
  EXPECT_EQ(paths.Root('E'), "/media/anna/CARD");
  EXPECT_EQ(paths.ToHost("E:\\"), "/media/anna/CARD");
  EXPECT_EQ(paths.ToHost("e:\\x\\y.mp3"), "/media/anna/CARD/x/y.mp3");
  EXPECT_EQ(paths.ToHost("E:\\..\\y.mp3"), "/media/anna/CARD/y.mp3") << "never out of the volume";
}

TEST(PathMap, NeverGivesALetterToAnotherFolder) {
  PathMap paths;
  EXPECT_TRUE(paths.Bind('D', "/media/a"));
  EXPECT_TRUE(paths.Bind('d', "/media//a/"));
  EXPECT_FALSE(paths.Bind('D', "/media/b"));
  EXPECT_EQ(paths.Root('D'), "/media/a");
}

TEST(PathMap, BindsOnlyLettersFromDOnToAbsoluteFolders) {
  PathMap paths;
  for (const char letter : {'A', 'B', 'C', '1', '['}) EXPECT_FALSE(paths.Bind(letter, "/media/a"));
  EXPECT_FALSE(paths.Bind('D', "media/a"));
  EXPECT_FALSE(paths.Bind('D', ""));
}

TEST(PathMap, HandsOutTheNextFreeLetterOnce) {
  PathMap paths;
  ASSERT_TRUE(paths.Bind('E', "/media/e"));
  EXPECT_EQ(paths.LetterOf("/media/a"), 'D');
  EXPECT_EQ(paths.LetterOf("/media/b"), 'F');
  EXPECT_EQ(paths.LetterOf("/media/a/"), 'D');
  EXPECT_EQ(paths.LetterOf("/media/e"), 'E');
  EXPECT_EQ(paths.LetterOf(""), '\0');
}

TEST(PathMap, HasNoLetterForTheTwentyFourthVolume) {
  PathMap paths;
  for (int i = 0; i < 23; ++i) EXPECT_EQ(paths.LetterOf("/m/" + std::to_string(i)), 'D' + i);
  EXPECT_EQ(paths.LetterOf("/m/23"), '\0');
  EXPECT_EQ(paths.LetterOf("/m/22"), 'Z');
}

TEST(PathFromHost, AlwaysStartsAtDriveC) {
  EXPECT_EQ(PathMap::FromHost("/Music/a.mp3").Value(), "C:\\Music\\a.mp3");
  EXPECT_EQ(PathMap::FromHost("/").Value(), "C:\\");
  EXPECT_EQ(PathMap::FromHost("/a//b/./c/../d/").Value(), "C:\\a\\b\\d");
  EXPECT_EQ(PathMap::FromHost("/../a").Value(), "C:\\a");
  EXPECT_EQ(PathMap::FromHost("/Città/中.mp3").Value(), "C:\\Città\\中.mp3");
}

TEST(PathFromHost, RefusesNamesThatAPathCannotHold) {
  for (const char* path :
       {"/a|b", "/a:b/c", "/a\\b", "/a*", "/a?", "/\xFF", "/a/\xC3(", "/\xED\xA0\x80"}) {
    EXPECT_EQ(PathMap::FromHost(path).Err().Number(), 52) << path;
  }
  EXPECT_EQ(PathMap::FromHost(std::string_view("/a\0b", 4)).Err().Number(), 52);
  EXPECT_TRUE(PathMap::FromHost("/a<b>\"c"));
}

TEST(PathFromHost, LeavesOutWhatAFollowingDotTakesBack) {
  EXPECT_EQ(PathMap::FromHost("/a*/../b").Value(), "C:\\b");
}

TEST(FaultOf, TellsWhyANameCannotBeUsed) {
  EXPECT_EQ(FaultOf("a.mp3"), NameFault::None);
  EXPECT_EQ(FaultOf("a*.mp3"), NameFault::Reserved);
  EXPECT_EQ(FaultOf("\xE9.mp3"), NameFault::NotUtf8);
}

TEST(CardCanHold, TakesOrdinaryNames) {
  for (const char* name : {"a", "a b.mp3", ".hidden", "..a", "Città", "中文.mp3", "com", "com0",
                           "com10", "console.txt", "lpt", "nul1", "a.con", " a", "x,y;z=[1]+'"}) {
    EXPECT_TRUE(CardCanHold(name)) << name;
  }
}

TEST(CardCanHold, RefusesWhatACardOrTheOriginalHostCannotHold) {
  for (const char* name :
       {"",         ".",    "..",      "a.",        "a ",      "a<b",    "a>b",      "a:b",
        "a\"b",     "a/b",  "a\\b",    "a|b",       "a?b",     "a*b",    "a\tb",     "\x01",
        "\xFF",     "CON",  "con.txt", "Prn",       "AUX.a.b", "nul",    "NUL .txt", "COM1",
        "com9.mp3", "LPT1", "lpt9",    "COM\u00B9", "CONIN$",  "conout$"}) {
    EXPECT_FALSE(CardCanHold(name)) << name;
  }
}

TEST(PathParts, AreTakenApartAndJoined) {
  EXPECT_EQ(LastName("C:\\a\\b.mp3"), "b.mp3");
  EXPECT_EQ(LastName("C:\\a\\"), "");
  EXPECT_EQ(LastName("abc"), "abc");
  EXPECT_EQ(FolderOf("C:\\a\\b.mp3"), "C:\\a");
  EXPECT_EQ(FolderOf("C:\\a\\\\b.mp3"), "C:\\a");
  EXPECT_EQ(FolderOf("C:\\b.mp3"), "C:\\");
  EXPECT_EQ(FolderOf("D:\\\\test.txt"), "D:\\");
  EXPECT_EQ(FolderOf("C:\\"), "C:\\");
  EXPECT_EQ(FolderOf("abc"), "");
  EXPECT_EQ(JoinPath("C:\\a", "b"), "C:\\a\\b");
  EXPECT_EQ(JoinPath("C:\\", "b"), "C:\\b");
}

}  // namespace
}  // namespace kvr5
