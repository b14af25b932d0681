#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <map>
#include <string>
#include <vector>

#include "core/screens/Coppia.h"
#include "core/screens/EtichettaElisa.h"
#include "road/screens/GiroSchermi.h"
#include "support/Lingue.h"

// What every window owes the eye, in every language, for all models and in all states.

namespace kvr5 {
namespace {

using test::SchermoVisto;

/// What a walk found at fault, by the check that found it.
struct Findings {
  std::vector<std::string> Cut, Covered, Cramped, Leaderless, Mute;
};

std::string NameOf(const QObject& control) {
  return control.objectName().toStdString();
}

/// The width of the widest word that can't be broken.
int WidestWord(const QLabel& label) {
  return label.fontMetrics()
      .boundingRect(QRect(0, 0, 1, 1 << 20), Qt::TextWordWrap, label.text())
      .width();
}

/// The part of a text that a label has no room for, in pixels; 0 or less where it fits.
int Lacks(const QLabel& label) {
  if (label.text().isEmpty() || dynamic_cast<const EtichettaElisa*>(&label) != nullptr) return 0;
  if (!label.wordWrap()) return label.sizeHint().width() - label.width();
  const int room = label.contentsRect().width() - 2 * label.margin();
  return std::max(label.heightForWidth(label.width()) - label.height(), WidestWord(label) - room);
}

/// The same of a button; a picture alone draws no text.
int Lacks(const QAbstractButton& button) {
  const auto* pair = dynamic_cast<const Coppia*>(&button);
  const bool bare = pair != nullptr && pair->Etichetta() == nullptr;
  return bare || button.text().isEmpty() ? 0 : button.sizeHint().width() - button.width();
}

template <class T>
void FindCutIn(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const T* control : screen.Finestra.findChildren<T*>()) {
    if (!control->isVisible() || Lacks(*control) <= 0) continue;
    found.push_back(screen.Nome + ": " + NameOf(*control) + " \"" + control->text().toStdString() +
                    "\" lacks " + std::to_string(Lacks(*control)));
  }
}

void FindCut(const SchermoVisto& screen, std::vector<std::string>& found) {
  FindCutIn<QLabel>(screen, found);
  FindCutIn<QAbstractButton>(screen, found);
}

void FindCovered(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const QWidget* parent : screen.Finestra.findChildren<QWidget*>()) {
    if (!parent->isVisible() || parent->layout() == nullptr) continue;
    const auto children = parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (qsizetype i = 0; i < children.size(); ++i) {
      for (qsizetype k = i + 1; k < children.size(); ++k) {
        if (!children[i]->isVisible() || !children[k]->isVisible()) continue;
        if (!children[i]->geometry().intersects(children[k]->geometry())) continue;
        found.push_back(screen.Nome + ": " + NameOf(*children[i]) + " and " + NameOf(*children[k]));
      }
    }
  }
}

/// What a window lacks on a screen of 1920x1080 at 200 %, less the frame; a dialog on half of an
/// old one, for it stands before others.
void FindCramped(const SchermoVisto& screen, std::vector<std::string>& found) {
  const QSize room = screen.Piccolo ? QSize(640, 480) : QSize(944, 500);
  const QSize before = screen.Finestra.size();
  screen.Finestra.resize(before.boundedTo(room));
  for (int i = 0; i < 4; ++i) QCoreApplication::processEvents();
  const QSize over = screen.Finestra.size() - room;
  if (over.width() > 0 || over.height() > 0) {
    found.push_back(screen.Nome + ": over by " + std::to_string(over.width()) + "x" +
                    std::to_string(over.height()));
  }
  FindCut(screen, found);
  FindCovered(screen, found);
  for (const QScrollArea* area : screen.Finestra.findChildren<QScrollArea*>()) {
    const int hidden = area->horizontalScrollBar()->maximum();
    if (hidden > 0) found.push_back(screen.Nome + ": scrolls by " + std::to_string(hidden));
  }
  screen.Finestra.resize(before);
}

/// Whether a button is dressed as the one thing to do.
bool IsPrimary(const Coppia& button) {
  const auto kind = button.GenereOra();
  return kind == Coppia::Genere::Primario || kind == Coppia::Genere::CartaPrimaria;
}

void FindLeaderless(const SchermoVisto& screen, std::vector<std::string>& found) {
  std::vector<const Coppia*> primary;
  for (const auto* each : screen.Finestra.findChildren<QAbstractButton*>()) {
    const auto* button = dynamic_cast<const Coppia*>(each);
    if (button == nullptr) continue;
    // The hub's save stands out already, though its screen is still to come.
    const bool counts = button->isEnabled() || button->objectName() == QLatin1String("picSave");
    if (button->isVisible() && counts && IsPrimary(*button)) primary.push_back(button);
  }
  if (primary.size() != (screen.Attende ? 0U : 1U)) {
    found.push_back(screen.Nome + ": has " + std::to_string(primary.size()));
  }
  const bool box = screen.Nome.starts_with("message") || screen.Nome.starts_with("frmSiNo");
  if (box && !primary.empty() && !primary.front()->hasFocus()) {
    found.push_back(screen.Nome + ": the keyboard is elsewhere");
  }
}

void FindMute(const SchermoVisto& screen, std::vector<std::string>& found) {
  for (const QWidget* control : screen.Finestra.findChildren<QWidget*>()) {
    const bool used = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                      qobject_cast<const QComboBox*>(control) != nullptr ||
                      qobject_cast<const QLineEdit*>(control) != nullptr;
    if (!used || !control->isVisible() || control->isEnabled()) continue;
    if (control->toolTip().isEmpty()) found.push_back(screen.Nome + ": " + NameOf(*control));
  }
}

/// One walk in a language does for all that is asked of it.
const Findings& FoundIn(const std::string& language) {
  static std::map<std::string, Findings> walked;
  if (const auto known = walked.find(language); known != walked.end()) return known->second;
  Findings& found = walked[language];
  test::GiroSchermi(language).Percorri([&found](const SchermoVisto& screen) {
    FindCut(screen, found.Cut);
    FindCovered(screen, found.Covered);
    FindLeaderless(screen, found.Leaderless);
    FindMute(screen, found.Mute);
    FindCramped(screen, found.Cramped);
  });
  return found;
}

class Looks : public testing::TestWithParam<std::string> {};

TEST_P(Looks, NoTextIsCut) {
  EXPECT_THAT(FoundIn(GetParam()).Cut, testing::IsEmpty());
}

TEST_P(Looks, NothingLiesOnSomethingElse) {
  EXPECT_THAT(FoundIn(GetParam()).Covered, testing::IsEmpty());
}

TEST_P(Looks, ASmallScreenHasRoomForEach) {
  EXPECT_THAT(FoundIn(GetParam()).Cramped, testing::IsEmpty());
}

TEST_P(Looks, OneThingToDoStandsOut) {
  EXPECT_THAT(FoundIn(GetParam()).Leaderless, testing::IsEmpty());
}

TEST_P(Looks, WhatIsDisabledSaysWhy) {
  EXPECT_THAT(FoundIn(GetParam()).Mute, testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Languages, Looks, testing::ValuesIn(test::FileDiLingua()),
                         test::NomeDiProva);

}  // namespace
}  // namespace kvr5
