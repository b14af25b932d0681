#include <gtest/gtest.h>
#include <unistd.h>

#include <QTimer>

#include "flashcard/screens/frmSelectFlash.h"
#include "platform/HostFileSystem.h"
#include "road/screens/BancoGuasti.h"
#include "support/SmallVolume.h"

// A card that is pulled out, or that can't be written, at any moment of its choice and recording.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

const std::string kNotStarted = "Recording not started";

class CardGone : public test::Guasti {
 protected:
  void PullOut() const { fs::remove_all(Host("card")); }
  void PutBack() const { fs::create_directory(Host("card")); }
  /// The card is in again: all of the project comes to it.
  void ExpectWholeRecording() {
    EXPECT_EQ(Registra(), "");
    EXPECT_EQ(b.Nomi("card"),
              (Names{"1.mp3", "5.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
    EXPECT_TRUE(b.Cartella.Same("card/1.mp3", "music/a.mp3"));
    EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
    EXPECT_FALSE(test::PuntatoreOccupato());
  }
};

TEST_F(CardGone, BeforeTheDialogIsNotOffered) {
  CreaHall();
  PullOut();
  EXPECT_EQ(Registra(), "No memory card");
  EXPECT_EQ(programma->C().Stato.PercorsoMemoryCard, "");
  PutBack();
  ScegliScheda();
  ExpectWholeRecording();
}

TEST_F(CardGone, WhileTheDialogStandsIsToldByTheHubAndByTheRecording) {
  CreaHall();
  ScegliScheda([this] { PullOut(); });
  EXPECT_EQ(Stato(), "taken out: put it back in");
  EXPECT_EQ(Registra(), kNotStarted);
  EXPECT_FALSE(b.Cartella.Exists("card"));
  PutBack();
  ExpectWholeRecording();
  LasciaHall();
}

TEST_F(CardGone, WhileTheRecordingAsksForItStopsTheRecording) {
  CreaHall();
  const test::Risponditore boxes;
  {
    const test::Pilota<frmSelectFlash> card([this](frmSelectFlash& dialog) {
      PullOut();
      test::Clicca(dialog, "picOk");
    });
    Clic("frmPlayerConfig", "picRecordFlash");
  }
  EXPECT_EQ(boxes.Titoli(), kNotStarted);
  PutBack();
  ExpectWholeRecording();
}

TEST_F(CardGone, BetweenItsChoiceAndTheRecordingIsTold) {
  CreaHall();
  ScegliScheda();
  PullOut();
  EXPECT_EQ(Registra(), kNotStarted);
  EXPECT_EQ(Stato(), "taken out: put it back in");
  PutBack();
  ExpectWholeRecording();
}

TEST_F(CardGone, WhileTheFolderItWasMountedAtStaysIsToldAndTheFolderGetsNothing) {
  CreaHall();
  ScegliScheda();
  const std::string drives = b.Cartella.Read("program/Drives.ini");
  b.Cartella.Write("program/Drives.ini", "");  // the host has no such drive any more
  EXPECT_EQ(Registra(), kNotStarted);
  EXPECT_TRUE(fs::is_empty(Host("card")));
  EXPECT_EQ(Stato(), "taken out: put it back in");
  b.Cartella.Write("program/Drives.ini", drives);
  ExpectWholeRecording();
}

TEST_F(CardGone, AtAnyMomentOfTheRecordingLeavesTheHubAtWork) {
  CreaHall();
  ScegliScheda();
  int started = 0;
  for (int beat = 0; beat < 30; ++beat) {
    SCOPED_TRACE(beat);
    PutBack();
    int left = beat;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
      if (left-- == 0) PullOut();
    });
    watch.start(0);
    const std::string told = Registra();
    watch.stop();
    started += told == kNotStarted ? 0 : 1;
    ASSERT_TRUE(Hub().isVisible() && Hub().isEnabled());
    ASSERT_FALSE(test::PuntatoreOccupato());
    if (left < 0) {
      EXPECT_FALSE(b.Cartella.Exists("card")) << "nothing may stand in its place";
    } else {
      EXPECT_EQ(told, "") << "the card was in all the time";
    }
  }
  EXPECT_GT(started, 3) << "the recording itself must have been met";
  fs::remove_all(Host("card"));
  PutBack();
  ExpectWholeRecording();
  LasciaHall();
}

TEST_F(CardGone, ReadOnlyIsToldAndNothingOfItChanges) {
  CreaHall();
  b.Cartella.Write("card/photo.jpg", "mine");
  fs::permissions(Host("card"), fs::perms::owner_read | fs::perms::owner_exec);
  std::unique_ptr<test::SmallVolume> volume;
  if (access(Host("card").c_str(), W_OK) == 0) {  // the system administrator may write all the same
    volume = test::SmallVolume::InMemory(Host("card"), 1);
    if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
    b.Cartella.Write("card/photo.jpg", "mine");
    ASSERT_TRUE(volume->Protect());
  }
  ScegliScheda();
  EXPECT_EQ(Registra(), kNotStarted);
  EXPECT_EQ(b.Nomi("card"), Names{"photo.jpg"});
  LasciaHall();
}

TEST_F(CardGone, WithAFolderInThePlaceOfTheTestFileCountsAsUnwritable) {
  CreaHall();
  fs::create_directory(Host("card/test.txt"));
  ScegliScheda();
  EXPECT_EQ(Registra(), kNotStarted);
  EXPECT_TRUE(b.Nomi("card").empty());
}

TEST_F(CardGone, WithAFileInThePlaceOfItsFolderIsNotOfferedAndTheFileStays) {
  CreaHall();
  PullOut();
  b.Cartella.Write("card", "no folder");
  EXPECT_EQ(Registra(), "No memory card");
  EXPECT_EQ(b.Cartella.Read("card"), "no folder");
  LasciaHall();
}

TEST_F(CardGone, WithFoldersInThePlaceOfItsFilesKeepsThemAndTellsEach) {
  CreaHall();
  for (const char* name : {"1.mp3", "Config.txt", "inputcfg.mdb"}) {
    fs::create_directories(Host(std::string("card/") + name));
  }
  ScegliScheda();
  EXPECT_EQ(Registra(), "Copy stopped");
  EXPECT_TRUE(fs::is_directory(Host("card/Config.txt")));
  for (const char* name : {"1.mp3", "Config.txt", "inputcfg.mdb"}) {
    fs::remove_all(Host(std::string("card/") + name));
  }
  ExpectWholeRecording();
}

}  // namespace
}  // namespace kvr5
