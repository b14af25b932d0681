#include <gtest/gtest.h>

#include <QLabel>
#include <QSlider>
#include <QTest>
#include <tuple>

#include "playerconfig/screens/BancoHub.h"

// The four sliders of the output level.

namespace kvr5 {
namespace {

class Levels : public test::Hub {
 protected:
  QSlider& Slider(const char* name) { return Trova<QSlider>(name); }
};

TEST_F(Levels, ShowWhatTheFileHoldsWithItsMeaning) {
  Progetto(4, 1);
  Parametro("LOUT", "0");
  Parametro("LLOU", "3");
  Parametro("LTRE", "0");
  Parametro("LBAS", "20");
  Apri();
  EXPECT_EQ(Slider("sliVolume").value(), 0);
  EXPECT_EQ(Testo("lblVolume_DB"), "OFF");
  EXPECT_EQ(Testo("lblLoudness_dB"), "+1.5 dB");
  EXPECT_EQ(Testo("lblTreble_dB"), "-12") << "the lowest tone has no unit";
  EXPECT_EQ(Testo("lblBass_dB"), "+12 dB");
}

TEST_F(Levels, StandAtTheirNeutralPointsWithoutAFile) {
  Progetto(4, 1);
  b.Cartella.Write("program/Projects/Hall/Config.txt", "[Config]\r\n");
  Apri();
  EXPECT_EQ(Slider("sliVolume").value(), 14);
  EXPECT_EQ(Testo("lblVolume_DB"), "0 dB");
  EXPECT_EQ(Slider("sliLoudness").value(), 0);
  EXPECT_EQ(Testo("lblLoudness_dB"), "0 dB");
  EXPECT_EQ(Slider("sliTreble").value(), 10);
  EXPECT_EQ(Testo("lblTreble_dB"), "0 dB");
  EXPECT_EQ(Testo("lblBass_dB"), "0 dB");
}

TEST_F(Levels, KeepTheirStateWhenTheFileHoldsAnImpossibleValue) {
  Progetto(4, 1);
  Parametro("LOUT", "21");
  Parametro("LLOU", "-1");
  Parametro("LTRE", "loud");
  Parametro("LBAS", "99999");
  Apri();
  EXPECT_EQ(Slider("sliVolume").value(), 14);
  EXPECT_EQ(Slider("sliLoudness").value(), 0);
  EXPECT_EQ(Slider("sliTreble").value(), 10);
  EXPECT_EQ(Slider("sliBass").value(), 10);
}

TEST_F(Levels, FollowTheKeysAndTellEachStep) {
  Progetto(4, 1);
  Apri();
  QSlider& volume = Slider("sliVolume");
  QTest::keyClick(&volume, Qt::Key_Up);
  EXPECT_EQ(volume.value(), 15);
  EXPECT_EQ(Testo("lblVolume_DB"), "+2 dB");
  QTest::keyClick(&volume, Qt::Key_PageDown);
  EXPECT_EQ(volume.value(), 11);
  EXPECT_EQ(Testo("lblVolume_DB"), "-6 dB");
  QTest::keyClick(&volume, Qt::Key_End);
  EXPECT_EQ(volume.value(), 20) << "the top";
  QTest::keyClick(&volume, Qt::Key_Up);
  EXPECT_EQ(Testo("lblVolume_DB"), "+12 dB");
  QTest::keyClick(&volume, Qt::Key_Home);
  EXPECT_EQ(Testo("lblVolume_DB"), "OFF");
}

TEST_F(Levels, AndTheirPicturesTellWhatTheyAre) {
  Progetto(4, 1);
  Apri();
  for (const auto& [slider, picture, name] : {std::tuple{"sliVolume", "picVolume", "Volume"},
                                              {"sliLoudness", "picLoudness", "Loudness"},
                                              {"sliTreble", "picTreble", "Treble"},
                                              {"sliBass", "picBass", "Bass"}}) {
    EXPECT_EQ(Slider(slider).accessibleName(), name);
    EXPECT_EQ(Slider(slider).toolTip(), name);
    EXPECT_EQ(Trova<QLabel>(picture).toolTip(), name);
  }
}

TEST_F(Levels, FollowTheThumbWhileItIsDragged) {
  Progetto(4, 1);
  Apri();
  QSlider& bass = Slider("sliBass");
  bass.setSliderDown(true);
  bass.setSliderPosition(17);
  EXPECT_EQ(Testo("lblBass_dB"), "+7 dB") << "before the button is let go";
  bass.setSliderDown(false);
  EXPECT_EQ(Testo("lblBass_dB"), "+7 dB");
}

TEST_F(Levels, LetAHubThatIsClosedWithinAStepStayToTheEndOfTheStep) {
  Progetto(4, 1);
  Apri();
  const auto answer = test::RispondiMessaggio("cmdYes");
  QMetaObject::invokeMethod(
      hub, [this] { hub->close(); }, Qt::QueuedConnection);
  Slider("sliVolume").setValue(15);  // lets events run, the close among them
  ASSERT_TRUE(hub);
  EXPECT_TRUE(hub->Caricata());
  EXPECT_EQ(Testo("lblVolume_DB"), "+2 dB");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !hub; }));
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
}

TEST_F(Levels, WriteNothingByThemselves) {
  Progetto(4, 1);
  Apri();
  const std::string before = Config();
  QTest::keyClick(&Slider("sliTreble"), Qt::Key_Home);
  EXPECT_EQ(Config(), before);
}

}  // namespace
}  // namespace kvr5
