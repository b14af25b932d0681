#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QScrollArea>
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "core/screens/Coppia.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/PortaLettera.h"
#include "core/screens/Segmento.h"
#include "road/screens/GiroSchermi.h"
#include "support/Lingue.h"
#include "support/screens/Mano.h"

// What every window owes those who use the keyboard, or a screen reader.

namespace kvr5 {
namespace {

using test::SchermoVisto;
using Stops = std::vector<QWidget*>;

/// What a walk found at fault, by the check that found it.
struct KeyFaults {
  std::vector<std::string> Nameless, Astray, Scattered, Keyless, Moved;
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

void FindNameless(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const QWidget* control : screen.Finestra.findChildren<QWidget*>()) {
    if (!IsStop(*control) || !Spoken(*control, screen.Finestra).isEmpty()) continue;
    found.push_back(screen.Nome + ": " + control->objectName().toStdString() + " (" +
                    control->metaObject()->className() + ")");
  }
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

std::string NamesOf(const Stops& stops) {
  std::string names;
  for (const QWidget* each : stops) {
    if (each == nullptr) continue;
    const QString name = each->objectName();
    names += (name.isEmpty() ? each->metaObject()->className() : name.toStdString()) + "\n";
  }
  return names;
}

void FindAstray(const SchermoVisto& screen, std::vector<std::string>& found) {
  const Stops stops = InReadingOrder(screen.Finestra);
  if (stops.empty()) return;
  const std::string read = NamesOf(stops);
  const std::string way = NamesOf(TabFrom(*stops.front(), stops.size()));
  if (way != read) found.push_back(screen.Nome + ":\n" + way + "and not\n" + read);
  if (screen.Finestra.focusWidget() != stops.front()) {
    found.push_back(screen.Nome + ": never comes back");
  }
}

void FindScattered(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const QWidget* stop : InReadingOrder(screen.Finestra)) {
    const auto* option = qobject_cast<const QRadioButton*>(stop);
    if (option == nullptr || option->isChecked()) continue;
    found.push_back(screen.Nome + ": " + option->objectName().toStdString());
  }
}

/// What has words and is to be reached by Alt: the buttons, the options but for those of a strip,
/// the labels of fields.
bool ShouldHaveALetter(const QWidget& control) {
  if (const auto* button = dynamic_cast<const Coppia*>(&control)) return button->Etichetta();
  if (const auto* option = qobject_cast<const QAbstractButton*>(&control)) {
    return dynamic_cast<const Segmento*>(option) == nullptr && !option->text().isEmpty();
  }
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (label == nullptr || label->text().isEmpty()) return false;
  const QWidget* field = label->buddy();
  return field != nullptr && qobject_cast<const QRadioButton*>(field) == nullptr &&
         dynamic_cast<const EtichettaElisa*>(label) == nullptr;
}

/// Controls without a letter for Alt, and letters that two have.
void FindKeyless(const SchermoVisto& screen, std::vector<std::string>& found) {
  std::map<QChar, std::string> taken;
  for (const auto* control : screen.Finestra.findChildren<QWidget*>()) {
    if (!control->isVisible() || !ShouldHaveALetter(*control)) continue;
    const std::string name = control->objectName().toStdString();
    const QChar letter = LetteraDi(*control);
    const QString words = ParoleDi(*control);
    const bool own = !letter.isNull() && PostoLettera(words, letter) >= 0;
    if (!own) found.push_back(screen.Nome + ": " + name + " \"" + words.toStdString() + "\"");
    const auto [other, first] = taken.emplace(letter, name);
    if (own && !first) found.push_back(screen.Nome + ": " + name + " and " + other->second);
  }
}

/// Which letter what a window shows has; the window in all its states is one.
struct Letters {
  QPointer<const QWidget> Window;
  std::map<std::string, QChar> Known;  ///< by name and words of the control
};

/// Letters that are others than in an earlier state of the window, though the control is the same.
void FindMoved(const SchermoVisto& screen, Letters& before, std::vector<std::string>& found) {
  if (before.Window != &screen.Finestra) before = {&screen.Finestra, {}};
  for (const auto* control : screen.Finestra.findChildren<QWidget*>()) {
    if (!control->isVisible() || !PortaLettera(*control)) continue;
    const std::string name =
        control->objectName().toStdString() + " " + ParoleDi(*control).toStdString();
    const QChar letter = LetteraDi(*control);
    const auto known = before.Known.emplace(name, letter).first->second;
    if (letter == known) continue;
    found.push_back(screen.Nome + ": " + name + ", " + known.toLatin1() + " before " +
                    letter.toLatin1());
  }
}

/// One walk in a language does for all that is asked of it.
const KeyFaults& KeyFaultsIn(const std::string& language) {
  static std::map<std::string, KeyFaults> walked;
  if (const auto known = walked.find(language); known != walked.end()) return known->second;
  KeyFaults& found = walked[language];
  Letters before;
  test::GiroSchermi(language).Percorri([&found, &before](const SchermoVisto& screen) {
    FindNameless(screen, found.Nameless);
    FindScattered(screen, found.Scattered);
    AssegnaMnemonici(screen.Finestra);
    FindKeyless(screen, found.Keyless);
    FindMoved(screen, before, found.Moved);
    FindAstray(screen, found.Astray);
  });
  return found;
}

class Keyboard : public testing::TestWithParam<std::string> {};

TEST_P(Keyboard, WhatItReachesHasAName) {
  EXPECT_THAT(KeyFaultsIn(GetParam()).Nameless, testing::IsEmpty());
}

TEST_P(Keyboard, TabGoesThroughEachWindowAsOneReadsIt) {
  EXPECT_THAT(KeyFaultsIn(GetParam()).Astray, testing::IsEmpty());
}

TEST_P(Keyboard, LeadsToEachControlByALetterOfItsOwn) {
  EXPECT_THAT(KeyFaultsIn(GetParam()).Keyless, testing::IsEmpty());
}

TEST_P(Keyboard, FindsTheSameLettersWhateverComesAndGoes) {
  EXPECT_THAT(KeyFaultsIn(GetParam()).Moved, testing::IsEmpty());
}

TEST_P(Keyboard, OfSomeOptionsTabStopsAtTheChosenOne) {
  EXPECT_THAT(KeyFaultsIn(GetParam()).Scattered, testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Languages, Keyboard, testing::ValuesIn(test::FileDiLingua()),
                         test::NomeDiProva);

}  // namespace
}  // namespace kvr5
