#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <algorithm>

#include "road/screens/GiroSchermi.h"
#include "support/screens/Mano.h"

// What every window owes those who use the keyboard, or a screen reader.

namespace kvr5 {
namespace {

using test::SchermoVisto;
using Stops = std::vector<QWidget*>;

class Keyboard : public testing::TestWithParam<const char*> {
 protected:
  void OnEveryScreen(const test::GiroSchermi::Guarda& look) {
    test::GiroSchermi(GetParam()).Percorri(look);
  }
};

/// Whether Tab stops at a control.
bool IsStop(const QWidget& control) {
  return control.isVisible() && control.isEnabled() &&
         (control.focusPolicy() & Qt::TabFocus) != 0 &&
         !control.objectName().startsWith(QLatin1String("qt_"));
}

/// What a screen reader says of a control.
QString Spoken(const QWidget& control, const QWidget& screen) {
  if (!control.accessibleName().isEmpty()) return control.accessibleName();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
    if (!button->text().isEmpty()) return button->text();
  }
  for (const QLabel* label : screen.findChildren<QLabel*>()) {
    if (label->buddy() == &control) return label->text();
  }
  return {};
}

TEST_P(Keyboard, WhatItReachesHasAName) {
  OnEveryScreen([](const SchermoVisto& screen) {
    for (const QWidget* control : screen.Finestra.findChildren<QWidget*>()) {
      if (!IsStop(*control)) continue;
      EXPECT_FALSE(Spoken(*control, screen.Finestra).isEmpty())
          << screen.Nome << ": " << control->objectName().toStdString() << " ("
          << control->metaObject()->className() << ")";
    }
  });
}

QPoint Middle(const QWidget& control, const QWidget& screen) {
  // A list is where it begins: what stands beside its lines comes after it.
  constexpr int kLine = 16;
  if (qobject_cast<const QAbstractItemView*>(&control) != nullptr) {
    return control.mapTo(&screen, QPoint(control.rect().center().x(), kLine));
  }
  return control.mapTo(&screen, control.rect().center());
}

/// Where a control stands among the blocks of a window. A window is one block, but one with columns
/// that scroll: what is above them, then each column from left to right, then what is below them.
int BlockOf(const QWidget& control, const QWidget& screen) {
  const auto* area = screen.findChild<QScrollArea*>();
  if (area == nullptr) return 0;
  constexpr int kBelow = 1 << 20;
  const QWidget* body = area->widget();
  if (!body->isAncestorOf(&control)) {
    return Middle(control, screen).y() < Middle(*area, screen).y() ? 0 : kBelow;
  }
  const QWidget* column = &control;
  while (column->parentWidget() != body) column = column->parentWidget();
  return 1 + column->x();
}

/// In the order in which one reads: block after block; within a block row after row, where the
/// middles of what stands in one row are no further than half a control's height below that of the
/// first; within a row from left to right.
Stops InReadingOrder(const QWidget& screen) {
  constexpr int kRow = 16;
  Stops stops;
  for (QWidget* control : screen.findChildren<QWidget*>()) {
    if (IsStop(*control)) stops.push_back(control);
  }
  const auto above = [&screen](const QWidget* a, const QWidget* b) {
    return std::pair(BlockOf(*a, screen), Middle(*a, screen).y()) <
           std::pair(BlockOf(*b, screen), Middle(*b, screen).y());
  };
  std::ranges::stable_sort(stops, above);
  for (auto first = stops.begin(); first != stops.end();) {
    const auto sameRow = [&screen, head = *first](const QWidget* each) {
      return BlockOf(*each, screen) == BlockOf(*head, screen) &&
             Middle(*each, screen).y() - Middle(*head, screen).y() <= kRow;
    };
    const auto next = std::find_if_not(first, stops.end(), sameRow);
    std::sort(first, next, [&screen](const QWidget* a, const QWidget* b) {
      return Middle(*a, screen).x() < Middle(*b, screen).x();
    });
    first = next;
  }
  return stops;
}

/// The way of the focus from a control with as many Tabs; the last stop is left out.
Stops TabFrom(QWidget& first, std::size_t tabs) {
  QWidget& window = *first.window();
  first.setFocus(Qt::TabFocusReason);
  Stops way;
  for (std::size_t i = 0; i < tabs; ++i) {
    way.push_back(window.focusWidget());
    test::Tasto(window, Qt::Key_Tab);
  }
  return way;
}

std::string Names(const Stops& stops) {
  std::string names;
  for (const QWidget* each : stops) {
    if (each == nullptr) continue;
    const QString name = each->objectName();
    names += (name.isEmpty() ? each->metaObject()->className() : name.toStdString()) + "\n";
  }
  return names;
}

TEST_P(Keyboard, TabGoesThroughEachWindowAsOneReadsIt) {
  OnEveryScreen([](const SchermoVisto& screen) {
    const Stops stops = InReadingOrder(screen.Finestra);
    if (stops.empty()) return;
    EXPECT_EQ(Names(TabFrom(*stops.front(), stops.size())), Names(stops)) << screen.Nome;
    EXPECT_EQ(screen.Finestra.focusWidget(), stops.front()) << screen.Nome << ": comes back";
  });
}

TEST_P(Keyboard, OfSomeOptionsTabStopsAtTheChosenOne) {
  OnEveryScreen([](const SchermoVisto& screen) {
    for (const QWidget* stop : InReadingOrder(screen.Finestra)) {
      const auto* option = qobject_cast<const QRadioButton*>(stop);
      if (option == nullptr) continue;
      EXPECT_TRUE(option->isChecked())
          << screen.Nome << ": " << Names({const_cast<QWidget*>(stop)});
    }
  });
}

INSTANTIATE_TEST_SUITE_P(
    Languages, Keyboard, testing::Values("English.lan", "Italiano.lan"), [](const auto& each) {
      return std::string(each.param).substr(0, std::string(each.param).find('.'));
    });

}  // namespace
}  // namespace kvr5
