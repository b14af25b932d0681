#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include "core/screens/SpuntaAlClic.h"

namespace kvr5 {
namespace {

class ClickOnALabel : public testing::Test {
 protected:
  ClickOnALabel() { SpuntaAlClic(label, *box); }

  void SecondPress(Qt::MouseButton button) {
    const QPointF middle = QRectF(label.rect()).center();
    QMouseEvent press(QEvent::MouseButtonDblClick, middle, label.mapToGlobal(middle), button,
                      button, Qt::NoModifier);
    QCoreApplication::sendEvent(&label, &press);
  }

  QWidget window;
  QLabel label{QStringLiteral("Words"), &window};
  QCheckBox* box = new QCheckBox(&window);
};

TEST_F(ClickOnALabel, TicksItsBoxAndClearsIt) {
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_TRUE(box->isChecked());
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_FALSE(box->isChecked());
}

TEST_F(ClickOnALabel, CountsAlsoAsTheSecondOfAQuickPair) {
  QTest::mouseClick(&label, Qt::LeftButton);
  SecondPress(Qt::LeftButton);
  EXPECT_FALSE(box->isChecked()) << "two in all";
}

TEST_F(ClickOnALabel, CountsWithTheLeftButtonOnly) {
  QTest::mouseClick(&label, Qt::RightButton);
  SecondPress(Qt::RightButton);
  EXPECT_FALSE(box->isChecked());
}

TEST_F(ClickOnALabel, DoesNothingToABoxThatCantBeTicked) {
  box->setEnabled(false);
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_FALSE(box->isChecked());
}

TEST_F(ClickOnALabel, AfterTheBoxIsGoneDoesNothing) {
  delete box;
  QTest::mouseClick(&label, Qt::LeftButton);
}

}  // namespace
}  // namespace kvr5
