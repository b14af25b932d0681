#include <gtest/gtest.h>

#include <filesystem>

#include "core/Lingua.h"
#include "core/ParoleCopia.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

class PathForPeople : public testing::Test {
 protected:
  std::string Of(const std::string& path) const { return PercorsoPerPersone(b.C, path); }
  std::string Host(const char* name) const { return (b.Cartella.Host() / name).string(); }

  test::Banco b;
};

TEST_F(PathForPeople, IsOfTheHostsFormWithTheSpellingOfTheDisk) {
  b.ScriviMp3("Music/Song.mp3");
  EXPECT_EQ(Of(b.Percorso("Music\\Song.mp3")), Host("Music/Song.mp3"));
  EXPECT_EQ(Of(b.Percorso("MUSIC\\song.MP3")), Host("Music/Song.mp3"));
}

TEST_F(PathForPeople, OfAFileThatIsGoneIsOfTheHostsFormToo) {
  EXPECT_EQ(Of(b.Percorso("gone\\A.mp3")), Host("gone/A.mp3"));
}

TEST_F(PathForPeople, OfADriveThatIsntThereStandsAsItIs) {
  EXPECT_EQ(Of("Q:\\Music\\a.mp3"), "Q:\\Music\\a.mp3");
}

TEST_F(PathForPeople, OfABareNameStandsAsItIs) {
  EXPECT_EQ(Of("a.mp3"), "a.mp3");
  EXPECT_EQ(Of(""), "");
  EXPECT_EQ(Of("1 / 2.mp3"), "1 / 2.mp3");
}

TEST_F(PathForPeople, OfARelativeOneHasTheHostsSlashes) {
  EXPECT_EQ(Of("sub\\b.mp3"), "sub/b.mp3");
  EXPECT_EQ(Of("sub\\deeper\\b.mp3"), "sub/deeper/b.mp3");
}

TEST_F(PathForPeople, OfARelativeOneTakesNothingFromTheHostsRoot) {
  // The root has folders of these names in small letters.
  EXPECT_EQ(Of("TMP\\b.mp3"), "TMP/b.mp3");
  EXPECT_EQ(Of("Dev\\null"), "Dev/null");
}

TEST_F(PathForPeople, OfARelativeOneThatLeadsUpStillLeadsUp) {
  EXPECT_EQ(Of("..\\b.mp3"), "../b.mp3");
  EXPECT_EQ(Of("sub\\..\\..\\b.mp3"), "sub/../../b.mp3");
}

/// What a copy failed with, on which side, and the key of the words for it.
struct Case {
  int Error;
  bool Source;
  const char* Key;
};

class CopyFailureBox : public testing::TestWithParam<Case> {};

TEST_P(CopyFailureBox, TellsTheCauseAndTheFile) {
  test::Banco b;
  b.ScriviMp3("music/a.mp3");
  const CopyFailure failure{b.Percorso("music\\a.mp3"), GetParam().Source, Error(GetParam().Error)};
  const Messaggio box = BoxGuastoCopia(b.C, failure);
  EXPECT_EQ(box.Titolo, TestoLingua(b.C, "0130002"));
  EXPECT_EQ(box.Testo, TestoLingua(b.C, GetParam().Key) + "\r\n" +
                           (b.Cartella.Host() / "music/a.mp3").string());
  EXPECT_EQ(box.Scelte, Pulsanti::Ok);
}

INSTANTIATE_TEST_SUITE_P(Causes, CopyFailureBox,
                         testing::Values(Case{errors::DiskFull, false, "0130003"},
                                         Case{errors::DeviceUnavailable, false, "0130004"},
                                         Case{errors::DeviceIo, true, "0130004"},
                                         Case{errors::PathNotFound, false, "0130004"},
                                         Case{errors::FileNotFound, true, "0130006"},
                                         Case{errors::PermissionDenied, false, "0130005"},
                                         Case{errors::PermissionDenied, true, "0130007"},
                                         Case{errors::BadFileName, true, "0130006"},
                                         Case{errors::BadFileName, false, "0130008"},
                                         Case{errors::PathFileAccess, false, "0130009"},
                                         Case{errors::PathFileAccess, true, "0130007"}));

}  // namespace
}  // namespace kvr5
