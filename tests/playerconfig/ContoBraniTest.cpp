#include <gtest/gtest.h>

#include <filesystem>

#include "core/Lingua.h"
#include "playerconfig/ContoBrani.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

/// Frames of 417 bytes that make a minute of 128 kbit/s, and 938 KB.
constexpr int kMinute = 2304;

class ListFigures : public testing::Test {
 protected:
  void SetUp() override { b.CreaProgetto("Hall", 4, 5); }
  /// A track whose file, if it has one, is in the folder "music".
  RigaProgetto Track(const std::string& name, const std::string& alias = "") const {
    return {"playlist.mdb", 1, 1, alias, b.Percorso("music") + "\\", name, false};
  }
  std::string All(const std::vector<RigaProgetto>& tracks) {
    figures.Imposta(tracks);
    while (figures.Passo(1)) {
    }
    return figures.Parole();
  }
  void Delete(const char* name) { std::filesystem::remove(b.Cartella.Host() / name); }

  test::Banco b;
  ContoBrani figures{b.C};
};

TEST_F(ListFigures, AreTimeAndMegabytes) {
  b.ScriviMp3("music/a.mp3", 1, kMinute);
  b.ScriviMp3("music/b.mp3", 2, 2 * kMinute);
  EXPECT_EQ(All({Track("a.mp3")}), "1:00, 938 KB");
  EXPECT_EQ(All({Track("a.mp3"), Track("b.mp3")}), "3:00, 3 MB");
}

TEST_F(ListFigures, CountTheTimeOfEachTrackAndTheMegabytesOfEachFile) {
  b.ScriviMp3("music/a.mp3", 1, kMinute);
  EXPECT_EQ(All({Track("a.mp3"), Track("a.mp3"), Track("A.MP3")}), "3:00, 938 KB");
}

TEST_F(ListFigures, CountAFileOnceWhereOnlyOneOfItsTracksHasItsNameOnTheCard) {
  b.ScriviMp3("music/a.mp3", 1, kMinute);
  EXPECT_EQ(All({Track("a.mp3", "P01-001.mp3"), Track("a.mp3")}), "2:00, 938 KB")
      << "the second was added after the save";
}

TEST_F(ListFigures, DoNotTakeAFolderWithoutItsBarForTheOneWithIt) {
  b.ScriviMp3("music/a.mp3", 1, kMinute);
  RigaProgetto astray = Track("a.mp3");
  astray.FilePath.pop_back();
  EXPECT_EQ(All({Track("a.mp3"), astray}), "1:00, 938 KB, 1 missing");
}

TEST_F(ListFigures, AreSilentUntilAllIsKnown) {
  for (const char* name : {"music/a.mp3", "music/b.mp3", "music/c.mp3"}) b.ScriviMp3(name);
  const std::vector tracks{Track("a.mp3"), Track("b.mp3"), Track("c.mp3")};
  figures.Imposta(tracks);
  EXPECT_EQ(figures.Parole(), "");
  EXPECT_EQ(figures.Fatti(tracks[0]), nullptr);
  EXPECT_TRUE(figures.Passo(1));
  EXPECT_NE(figures.Fatti(tracks[0]), nullptr);
  EXPECT_EQ(figures.Fatti(tracks[1]), nullptr);
  EXPECT_TRUE(figures.Passo(1));
  EXPECT_EQ(figures.Parole(), "");
  EXPECT_FALSE(figures.Passo(1));
  EXPECT_NE(figures.Parole(), "");
}

TEST_F(ListFigures, OfNoTrackAreNone) {
  figures.Imposta({});
  EXPECT_FALSE(figures.Passo(10));
  EXPECT_EQ(figures.Parole(), "");
  EXPECT_EQ(figures.Mancanti(), 0U);
}

TEST_F(ListFigures, AFileThatIsKnownTakesNoStep) {
  b.ScriviMp3("music/a.mp3");
  b.ScriviMp3("music/b.mp3");
  All({Track("a.mp3")});
  figures.Imposta({Track("a.mp3"), Track("a.mp3"), Track("b.mp3")});
  EXPECT_FALSE(figures.Passo(1)) << "the only new one is the last";
}

TEST_F(ListFigures, AFileIsMissingWhereNeitherSourceNorAliasCopyIsThere) {
  b.ScriviMp3("program/Projects/Hall/P01-001.mp3", 1, kMinute);
  const RigaProgetto copied = Track("gone.mp3", "P01-001.mp3");
  const RigaProgetto missing = Track("gone.mp3", "P01-002.mp3");
  const RigaProgetto unnamed = Track("gone too.mp3");
  EXPECT_EQ(All({copied, missing, unnamed}), "1:00, 938 KB, 2 " + TestoLingua(b.C, "0040063"));
  EXPECT_FALSE(figures.Fatti(copied)->Mancante);
  EXPECT_EQ(figures.Fatti(copied)->Secondi, 60);
  EXPECT_TRUE(figures.Fatti(missing)->Mancante);
  EXPECT_TRUE(figures.Fatti(unnamed)->Mancante);
  EXPECT_EQ(figures.Mancanti(), 2U);
}

TEST_F(ListFigures, TheSourceGoesBeforeTheAliasCopy) {
  b.ScriviMp3("music/a.mp3", 1, kMinute);
  b.ScriviMp3("program/Projects/Hall/P01-001.mp3", 1, 2 * kMinute);
  EXPECT_EQ(All({Track("a.mp3", "P01-001.mp3")}), "1:00, 938 KB");
}

TEST_F(ListFigures, AFileOfNoMusicHasNoTime) {
  b.Cartella.Write("music/text.mp3", std::string(2048, 'x'));
  EXPECT_EQ(All({Track("text.mp3")}), "0:00, 2 KB");
  EXPECT_FALSE(figures.Fatti(Track("text.mp3"))->Mancante);
}

TEST_F(ListFigures, BegunAnewSeeWhatCameAndWent) {
  b.ScriviMp3("music/a.mp3", 1, kMinute);
  const RigaProgetto track = Track("a.mp3");
  All({track});
  Delete("music/a.mp3");
  EXPECT_FALSE(figures.Passo(10));
  EXPECT_EQ(figures.Parole(), "1:00, 938 KB") << "nobody has looked again";
  figures.Ricomincia();
  EXPECT_EQ(figures.Parole(), "");
  ASSERT_NE(figures.Fatti(track), nullptr) << "what was learnt stands until then";
  EXPECT_FALSE(figures.Fatti(track)->Mancante);
  EXPECT_FALSE(figures.Passo(10));
  EXPECT_TRUE(figures.Fatti(track)->Mancante);
  EXPECT_EQ(figures.Parole(), "0:00, 0 KB, 1 " + TestoLingua(b.C, "0040062"));
  b.ScriviMp3("music/a.mp3", 1, kMinute);
  figures.Ricomincia();
  EXPECT_FALSE(figures.Passo(10));
  EXPECT_EQ(figures.Parole(), "1:00, 938 KB");
}

TEST_F(ListFigures, HaveHoursWhereTheyNeedThem) {
  b.ScriviMp3("music/a.mp3", 1, 10 * kMinute);
  EXPECT_EQ(All(std::vector<RigaProgetto>(500, Track("a.mp3"))), "83:20:00, 9 MB");
}

TEST(LengthInWords, HasMinutesAndHours) {
  EXPECT_EQ(DurataInParole(0), "0:00");
  EXPECT_EQ(DurataInParole(9), "0:09");
  EXPECT_EQ(DurataInParole(31), "0:31");
  EXPECT_EQ(DurataInParole(60), "1:00");
  EXPECT_EQ(DurataInParole(242), "4:02");
  EXPECT_EQ(DurataInParole(3599), "59:59");
  EXPECT_EQ(DurataInParole(3600), "1:00:00");
  EXPECT_EQ(DurataInParole(3661), "1:01:01");
  EXPECT_EQ(DurataInParole(33160), "9:12:40");
  EXPECT_EQ(DurataInParole(360000), "100:00:00");
}

}  // namespace
}  // namespace kvr5
