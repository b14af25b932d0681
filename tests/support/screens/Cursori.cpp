#include "support/screens/Cursori.h"

#include <gtest/gtest.h>

#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWindow>
#include <cstdlib>

namespace kvr5::test {
namespace {

constexpr int kBeside = 3;

QPoint InWindow(const QSlider& slider, QPoint place) {
  EXPECT_TRUE(slider.isVisible()) << qPrintable(slider.objectName());
  EXPECT_TRUE(slider.visibleRegion().contains(place)) << qPrintable(slider.objectName());
  return slider.mapTo(slider.window(), place);
}

void ClickAt(const QSlider& slider, int y) {
  QTest::mouseClick(slider.window()->windowHandle(), Qt::LeftButton, {},
                    InWindow(slider, {Manopola(slider).center().x(), y}));
}

}  // namespace

QRect Manopola(const QSlider& cursore) {
  QStyleOptionSlider option;
  option.initFrom(&cursore);
  option.subControls = QStyle::SC_All;
  option.orientation = Qt::Vertical;
  option.minimum = cursore.minimum();
  option.maximum = cursore.maximum();
  option.tickPosition = cursore.tickPosition();
  option.upsideDown = !cursore.invertedAppearance();  // the highest value at the top
  option.sliderPosition = cursore.sliderPosition();
  option.sliderValue = cursore.value();
  option.state &= ~QStyle::State_Horizontal;
  return cursore.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                         &cursore);
}

void CliccaSopra(QSlider& cursore) {
  ClickAt(cursore, Manopola(cursore).top() - kBeside);
}

void CliccaSotto(QSlider& cursore) {
  ClickAt(cursore, Manopola(cursore).bottom() + kBeside);
}

void Trascina(QSlider& cursore, int pixel, const std::function<void()>& guarda) {
  QWindow* window = cursore.window()->windowHandle();
  const QPoint from = InWindow(cursore, Manopola(cursore).center());
  QTest::mousePress(window, Qt::LeftButton, {}, from);
  const int step = pixel < 0 ? -1 : 1;
  for (int i = 1; i <= std::abs(pixel); ++i) {
    QTest::mouseMove(window, from + QPoint(0, i * step));
    if (guarda) guarda();
  }
  QTest::mouseRelease(window, Qt::LeftButton, {}, from + QPoint(0, pixel));
}

}  // namespace kvr5::test
