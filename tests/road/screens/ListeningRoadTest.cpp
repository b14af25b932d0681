#include <QCheckBox>
#include <QTest>

#include "road/screens/BancoGuasti.h"

// Listening in the whole program, through the real players on a device that is no hardware.

namespace kvr5 {
namespace {

class ListeningRoad : public test::Guasti {
 protected:
  void SetUp() override {
    Guasti::SetUp();
    CreaHall();
  }
  /// Presses a play button and waits for the end of its file, a second long.
  void PlaysToItsEnd(const Coppia& button) {
    const QString off = button.accessibleName();
    Clic("frmPlayerConfig", button.objectName().toStdString().c_str());
    EXPECT_EQ(button.accessibleName(), off + ", playing");
    EXPECT_TRUE(QTest::qWaitFor([&] { return button.accessibleName() == off; }))
        << button.accessibleName().toStdString();
    EXPECT_TRUE(Hub().isVisible());
  }
};

TEST_F(ListeningRoad, TheButtonFallsBackByItselfWhenTheFileWasPlayedToItsEnd) {
  if (!Hub().fraIngressiLogici->chkIn[0]->isChecked()) Clic("frmPlayerConfig", "chkIn_1");
  for (int round = 0; round < 2; ++round) {
    PlaysToItsEnd(*Hub().fraFileName->cmdPlayMp3);
    PlaysToItsEnd(*Hub().fraIngressiLogici->cmdMp3Preview_Play);
  }
}

}  // namespace
}  // namespace kvr5
