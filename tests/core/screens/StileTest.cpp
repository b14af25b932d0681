#include <gtest/gtest.h>

#include <QComboBox>
#include <QImage>

#include "support/screens/Mano.h"

// What the program's style draws by itself.

namespace kvr5 {
namespace {

/// How many pixels differ from the field's own colour in a strip of it.
int InkIn(const QImage& image, const QRect& strip) {
  const QRgb paper = image.pixel(strip.right(), strip.top());
  int ink = 0;
  for (int y = strip.top(); y <= strip.bottom(); ++y) {
    for (int x = strip.left(); x <= strip.right(); ++x) ink += image.pixel(x, y) != paper ? 1 : 0;
  }
  return ink;
}

TEST(StyleOfTheProgram, ALongItemOfABoxEndsBeforeItsArrow) {
  QComboBox box;
  box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box.addItem(QStringLiteral("a.mp3"));
  box.addItem(QString(200, QLatin1Char('m')));
  box.resize(240, 32);
  box.show();
  ASSERT_TRUE(test::Pronta(box));
  box.clearFocus();
  const QRect beforeTheArrow(240 - 36, 8, 6, 16);
  const QRect middle(100, 8, 40, 16);
  const QImage brief = box.grab().toImage();
  EXPECT_EQ(InkIn(brief, beforeTheArrow), 0);
  box.setCurrentIndex(1);
  const QImage shown = box.grab().toImage();
  EXPECT_GT(InkIn(shown, middle), 0);
  EXPECT_EQ(InkIn(shown, beforeTheArrow), 0);
}

}  // namespace
}  // namespace kvr5
