#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include "core/screens/Coppia.h"
#include "support/screens/Mano.h"

namespace kvr5 {
namespace {

using namespace test;

class CoppiaTest : public testing::Test {
 protected:
  CoppiaTest() {
    auto* page = new QVBoxLayout(&window);
    pair = new Coppia("picSalva", "lblSalva", QStringLiteral("Save"), "salva", 4, &window);
    bare = new Coppia("picHelp", "", QStringLiteral("Help"), "aiuto", -1, &window);
    page->addWidget(pair);
    page->addWidget(bare);
    QObject::connect(pair, &QAbstractButton::clicked, &window, [this] { ++clicks; });
    window.show();
    window.activateWindow();
    EXPECT_TRUE(Pronta(window));
  }

  QWidget window;
  Coppia* pair;
  Coppia* bare;
  int clicks = 0;
};

TEST_F(CoppiaTest, AClickOnThePictureOrOnItsLabelFiresOnce) {
  Clicca(*pair);
  EXPECT_EQ(clicks, 1);
  Clicca(window, "lblSalva");
  EXPECT_EQ(clicks, 2);
}

TEST_F(CoppiaTest, SpaceAndBothEntersFireOnceEach) {
  pair->setFocus();
  Tasto(window, Qt::Key_Space);
  EXPECT_EQ(clicks, 1);
  Tasto(window, Qt::Key_Return);
  EXPECT_EQ(clicks, 2);
  Tasto(window, Qt::Key_Enter);
  EXPECT_EQ(clicks, 3);
}

TEST_F(CoppiaTest, DisabledItTakesNeitherMouseNorKeys) {
  pair->setFocus();
  pair->setEnabled(false);
  Clicca(*pair);
  Clicca(window, "lblSalva");
  Tasto(window, Qt::Key_Return);
  EXPECT_EQ(clicks, 0);
}

TEST_F(CoppiaTest, PictureAndLabelAreOneTabStop) {
  pair->setFocus();
  Tasto(window, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), bare);
  Tasto(window, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), pair);
}

TEST_F(CoppiaTest, TheLabelsTextIsTheAccessibleNameOfThePicture) {
  EXPECT_EQ(pair->accessibleName(), "Save");
  pair->ImpostaScritta(QStringLiteral("Salvare && chiudere"));
  EXPECT_EQ(pair->accessibleName(), "Salvare && chiudere");
  EXPECT_EQ(Scritta(window, "lblSalva"), "Salvare && chiudere");
}

TEST_F(CoppiaTest, APictureWithoutALabelSaysItsTextAsToolTip) {
  EXPECT_EQ(bare->Etichetta(), nullptr);
  EXPECT_EQ(bare->toolTip(), "Help");
  EXPECT_EQ(bare->accessibleName(), "Help");
}

}  // namespace
}  // namespace kvr5
