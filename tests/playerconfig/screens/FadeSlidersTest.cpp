#include <QTimer>
#include <QWheelEvent>
#include <set>

#include "playerconfig/Scale.h"
#include "playerconfig/screens/BancoParametri.h"
#include "playerconfig/screens/frmTempiFade.h"
#include "support/screens/Cursori.h"

// The sliders of the mix levels under the mouse, and what happens while a change of theirs lets
// events run.

namespace kvr5 {
namespace {

class FadeSliders : public test::ProvaParametri<frmTempiFade> {
 protected:
  struct Level {
    QSlider* Slider;
    const QLabel* Label;
    std::string_view (*Scale)(int);
  };
  frmTempiFade& Open(const std::string& lines = {}) {
    Progetto(4, 1);
    ScriviConfig(lines);
    return Apri();
  }
  std::array<Level, 3> Levels() {
    return {Level{forma->sliLMP3, forma->lblLMP3_DB, TestoScalaPercento},
            Level{forma->sliLLIN, forma->lblLLIN_DB, TestoScalaVolume},
            Level{forma->sliLLI2, forma->lblLLI2_DB, TestoScalaVolume}};
  }
  static void ExpectTold(const Level& level) {
    EXPECT_EQ(level.Label->text().toStdString(), level.Scale(level.Slider->value()))
        << level.Slider->objectName().toStdString();
  }
  /// Has `act` happen while the change of a slider by a key lets events run.
  void AmidAChange(QSlider& slider, const std::function<void()>& act) {
    bool changed = false;
    bool happened = false;
    // After the screen's own handler of the change.
    QObject::connect(&slider, &QSlider::valueChanged, &slider, [&changed] { changed = true; });
    QTimer::singleShot(0, &slider, [&] {
      happened = true;
      EXPECT_FALSE(changed) << "the change is still under way";
      act();
    });
    QTest::keyClick(&slider, Qt::Key_Up);
    EXPECT_TRUE(happened);
    EXPECT_TRUE(changed);
  }
};

TEST_F(FadeSliders, ADraggedThumbTellsItsLevelAtEachMovement) {
  Open();
  for (const Level& level : Levels()) {
    std::set<int> passed;
    for (const int pixels : {25, -50}) {
      test::Trascina(*level.Slider, pixels, [&] {
        passed.insert(level.Slider->value());
        ExpectTold(level);
      });
    }
    EXPECT_GT(passed.size(), 5U) << level.Slider->objectName().toStdString();
    EXPECT_GT(level.Slider->value(), 14) << "it was let go above where it was taken";
  }
}

TEST_F(FadeSliders, AThumbThatIsDraggedToAnEndStaysThere) {
  Open();
  for (const Level& level : Levels()) {
    test::Trascina(*level.Slider, test::Manopola(*level.Slider).top() * -1);
    EXPECT_EQ(level.Slider->value(), 20);
    ExpectTold(level);
    test::Trascina(*level.Slider, level.Slider->height());
    EXPECT_EQ(level.Slider->value(), 0);
    EXPECT_EQ(level.Label->text(), "OFF");
  }
}

TEST_F(FadeSliders, AClickInTheGrooveGoesAPageThatWay) {
  Open("LMP3=9\r\nLLIN=9\r\nLLI2=9\r\n");
  for (const Level& level : Levels()) {
    test::CliccaSopra(*level.Slider);
    EXPECT_EQ(level.Slider->value(), 13);
    ExpectTold(level);
    test::CliccaSotto(*level.Slider);
    test::CliccaSotto(*level.Slider);
    EXPECT_EQ(level.Slider->value(), 5);
    ExpectTold(level);
  }
}

TEST_F(FadeSliders, AWheelOverOneThatHasNoFocusChangesNothing) {
  Open();
  for (const Level& level : Levels()) {
    forma->picCancel->setFocus();
    const QPointF at = level.Slider->rect().center();
    for (const int turn : {-120, 120, 120}) {
      QWheelEvent wheel(at, level.Slider->mapToGlobal(at), {}, {0, turn}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(level.Slider, &wheel);
      EXPECT_EQ(level.Slider->value(), 14) << level.Slider->objectName().toStdString();
    }
    EXPECT_TRUE(forma->picCancel->hasFocus()) << "nor does it take the focus";
  }
}

TEST_F(FadeSliders, ACloseAmidAChangeComesAtItsEnd) {
  Open("LMP3=1\r\n");
  AmidAChange(*forma->sliLMP3, [this] {
    forma->close();
    ASSERT_TRUE(forma.Caricata()) << "not yet";
    EXPECT_TRUE(forma->isVisible());
    EXPECT_TRUE(b.Schermi.Mostrate.empty());
  });
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
  AttesoAlloHub();
  EXPECT_EQ(Config(), "[Config]\r\nLMP3=1\r\n");
}

TEST_F(FadeSliders, AnEscAmidAChangeComesAtItsEnd) {
  Open();
  AmidAChange(*forma->sliLLI2, [this] {
    test::Tasto(*forma, Qt::Key_Escape);
    EXPECT_TRUE(forma.Caricata());
  });
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
  AttesoAlloHub();
}

TEST_F(FadeSliders, ASaveAmidAChangeWritesItAndLeavesAtItsEnd) {
  Open("LMP3=1\r\n");
  AmidAChange(*forma->sliLMP3, [this] {
    test::Clicca(*forma->picSave);
    ASSERT_TRUE(forma.Caricata()) << "not yet";
    EXPECT_TRUE(forma->isVisible());
  });
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
  AttesoAlloHub();
  EXPECT_EQ(Chiave("LMP3"), "2");
}

TEST_F(FadeSliders, ACloseTwiceAmidAChangeClosesOnce) {
  Open();
  AmidAChange(*forma->sliLLIN, [this] {
    forma->close();
    test::Clicca(*forma->picSave);
    forma->close();
  });
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
  QCoreApplication::processEvents();
  AttesoAlloHub();
}

TEST_F(FadeSliders, EveryReactionTimeHasRoomInItsList) {
  for (const char* language : {"English.lan", "Italiano.lan", "none.lan"}) {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + language);
    EXPECT_EQ(Open().cmbTAVC->count(), 5);
    ExpectRoom(*forma->cmbTAVC);
    Annulla();
  }
}

}  // namespace
}  // namespace kvr5
