#include <gtest/gtest.h>

#include <QMenu>
#include <QTest>

#include "playerconfig/screens/BancoHub.h"
#include "support/screens/Scelte.h"

// The hub looks for the files that are missing, where the user says.

namespace kvr5 {
namespace {

using test::RispondiCartella;
using test::RispondiMessaggio;

class FindMissing : public test::Hub {
 protected:
  void WaitFor(const char* button, bool there) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return SiVede(button) == there; })) << button;
  }
  /// Presses the button, chooses the folder, and takes the box that tells.
  void Find(const char* button, const std::string& folder, const QString& words) {
    bool told = false;
    {
      const auto browser = RispondiCartella(folder);
      const auto box = RispondiMessaggio("cmdOk", [&](const QString& title, const QString& text) {
        told = true;
        EXPECT_EQ(title, "Missing files");
        EXPECT_EQ(text, words);
      });
      Clic(button);
    }
    EXPECT_TRUE(told);
  }
};

TEST_F(FindMissing, OfAProjectOnInputsIsOfferedBesideTheFiguresAndTheListIsWholeThen) {
  Progetto(4, 1);
  b.ScriviMp3("music/deep/gone.mp3", 1);
  b.AggiungiRiga("inputcfg.mdb", 0, 1, "gone.mp3", "D:\\Old\\", "1.mp3");
  Apri();
  WaitFor("picTrova", true);
  EXPECT_EQ(Testo("lblTrova"), "Find…");
  Find("picTrova", (b.Cartella.Host() / "music").string(), "Missing files that were found: 1 of 1");
  WaitFor("picTrova", false);
  EXPECT_EQ(Riga(1), "gone.mp3|" + b.Percorso("music/deep") + "\\|1.mp3|0");
}

TEST_F(FindMissing, OfListsIsOfferedBelowTheWarning) {
  Progetto(4, 5);
  b.ScriviMp3("music/gone.mp3", 1);
  b.AggiungiRiga("playlist.mdb", 1, 1, "gone.mp3", "D:\\Old\\", "");
  b.AggiungiRiga("playlist.mdb", 1, 2, "lost.mp3", "D:\\Old\\", "");
  Apri();
  WaitFor("picTrovaBrani", true);
  Find("picTrovaBrani", (b.Cartella.Host() / "music").string(),
       "Missing files that were found: 1 of 2\nNot found there; look in another folder:\nlost.mp3");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Testo("lblMancanti").starts_with("1"); }));
}

TEST_F(FindMissing, OfPlaylistsBesideInputsIsOfferedBelowTheAssignments) {
  Progetto(2, 0);
  b.ScriviMp3("music/gone.mp3", 1);
  b.AggiungiRiga("playlist.mdb", 1, 1, "gone.mp3", "D:\\Old\\", "");
  Apri();
  WaitFor("picTrova", true);
  EXPECT_EQ(Testo("lblBraniMancanti"), "Playlists: 1 missing");
  Find("picTrova", (b.Cartella.Host() / "music").string(), "Missing files that were found: 1 of 1");
  WaitFor("picTrova", false);
  EXPECT_FALSE(SiVede("lblBraniMancanti"));
}

TEST_F(FindMissing, TheKeyboardDoesNotGoOnToAnotherButtonOnceAllAreFound) {
  Progetto(4, 5);
  b.ScriviMp3("music/gone.mp3", 1);
  b.AggiungiRiga("playlist.mdb", 1, 1, "gone.mp3", "D:\\Old\\", "");
  Apri();
  WaitFor("picTrovaBrani", true);
  Find("picTrovaBrani", (b.Cartella.Host() / "music").string(),
       "Missing files that were found: 1 of 1");
  WaitFor("picTrovaBrani", false);
  EXPECT_EQ(hub->focusWidget(), nullptr);
}

TEST_F(FindMissing, IsNotOfferedWhereNothingIsMissing) {
  Progetto(4, 1);
  b.ScriviMp3("music/a.mp3", 1);
  b.AggiungiRiga("inputcfg.mdb", 0, 1, "a.mp3", b.Percorso("music") + "\\", "1.mp3");
  Apri();
  EXPECT_FALSE(SiVede("picTrova"));
  EXPECT_FALSE(SiVede("picTrovaBrani"));
}

TEST_F(FindMissing, ChoosingNoFolderLeavesAllAsItWas) {
  Progetto(4, 1);
  b.AggiungiRiga("inputcfg.mdb", 0, 1, "gone.mp3", "D:\\Old\\", "1.mp3");
  Apri();
  WaitFor("picTrova", true);
  {
    const test::Pilota<QFileDialog> browser([](QFileDialog& chooser) { chooser.reject(); });
    Clic("picTrova");
  }
  EXPECT_EQ(Riga(1), "gone.mp3|D:\\Old\\|1.mp3|0");
  EXPECT_TRUE(SiVede("picTrova"));
}

}  // namespace
}  // namespace kvr5
