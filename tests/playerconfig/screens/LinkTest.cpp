#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QTest>

#include "playerconfig/screens/BancoHub.h"

// The two inputs that an RS-485 link takes.

namespace kvr5 {
namespace {

class Link : public test::Hub {
 protected:
  QCheckBox& Box(int input) { return Trova<QCheckBox>("chkIn_" + std::to_string(input)); }
  QColor Colour(int input) {
    return Trova<QLabel>("lblIn_" + std::to_string(input)).palette().color(QPalette::WindowText);
  }
  /// Goes to another window and back.
  void ComeBack() {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    hub->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(hub));
  }
};

TEST_F(Link, TakesIn5AndIn6) {
  Progetto(4, 1);
  b.Cartella.Write("program/Projects/Hall/Config.cfg", "[Config]\r\nUse485=1\r\n");
  Apri();
  for (int input = 1; input <= 8; ++input) {
    const bool taken = input == 5 || input == 6;
    EXPECT_EQ(Box(input).isEnabled(), !taken) << input;
    EXPECT_EQ(Colour(input), taken ? QColor(0x00, 0x40, 0xA2) : QColor(Qt::black)) << input;
  }
  EXPECT_NE(Box(5).toolTip(), QString()) << "it says why";
  Spunta(5);
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - ");
}

TEST_F(Link, UnticksThemWhenTheScreenComesBack) {
  Progetto(4, 1);
  b.AggiungiRiga("inputcfg.mdb", 1, 1, "one.mp3", "C:\\", "1.mp3");
  Apri();
  Spunta(1);
  Spunta(5);
  ASSERT_EQ(Testo("lblfraFileName"), "File on the card - 17.mp3");
  b.C.Stato.Usa485 = true;
  ComeBack();
  EXPECT_FALSE(Box(5).isChecked());
  EXPECT_FALSE(Box(5).isEnabled());
  EXPECT_EQ(Testo("lblfraFileName"), "File on the card - 1.mp3");
  EXPECT_EQ(Testo("lblFileAssociato"), "Plays: one.mp3");
  b.C.Stato.Usa485 = false;
  ComeBack();
  EXPECT_TRUE(Box(5).isEnabled());
  EXPECT_EQ(Colour(5), QColor(Qt::black));
  EXPECT_EQ(Box(5).toolTip(), QString());
}

TEST_F(Link, TakesNothingFromOtherModels) {
  Progetto(1, 0);
  b.C.Stato.Usa485 = true;
  Apri();
  EXPECT_TRUE(Box(5).isEnabled());
  EXPECT_TRUE(Box(6).isEnabled());
}

}  // namespace
}  // namespace kvr5
