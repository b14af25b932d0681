#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

#include "core/screens/Coppia.h"
#include "core/screens/EtichettaElisa.h"
#include "road/screens/GiroSchermi.h"

// What every window owes the eye, in both languages, for all models and in all states.

namespace kvr5 {
namespace {

using test::SchermoVisto;

class Looks : public testing::TestWithParam<const char*> {
 protected:
  void OnEveryScreen(const test::GiroSchermi::Guarda& look) {
    test::GiroSchermi(GetParam()).Percorri(look);
  }
};

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

void ExpectWholeTexts(const SchermoVisto& screen) {
  for (const QLabel* label : screen.Finestra.findChildren<QLabel*>()) {
    if (!label->isVisible()) continue;
    EXPECT_LE(Lacks(*label), 0) << screen.Nome << ": " << label->objectName().toStdString() << " \""
                                << label->text().toStdString() << "\"";
  }
  for (const QAbstractButton* button : screen.Finestra.findChildren<QAbstractButton*>()) {
    if (!button->isVisible() || button->text().isEmpty()) continue;
    // A picture alone draws no text.
    const auto* pair = dynamic_cast<const Coppia*>(button);
    if (pair != nullptr && pair->Etichetta() == nullptr) continue;
    EXPECT_GE(button->width(), button->sizeHint().width())
        << screen.Nome << ": " << button->objectName().toStdString();
  }
}

void ExpectNoOverlaps(const SchermoVisto& screen) {
  for (const QWidget* parent : screen.Finestra.findChildren<QWidget*>()) {
    if (!parent->isVisible() || parent->layout() == nullptr) continue;
    const auto children = parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (qsizetype i = 0; i < children.size(); ++i) {
      for (qsizetype k = i + 1; k < children.size(); ++k) {
        if (!children[i]->isVisible() || !children[k]->isVisible()) continue;
        EXPECT_FALSE(children[i]->geometry().intersects(children[k]->geometry()))
            << screen.Nome << ": " << children[i]->objectName().toStdString() << " and "
            << children[k]->objectName().toStdString();
      }
    }
  }
}

TEST_P(Looks, NoTextIsCut) {
  OnEveryScreen(ExpectWholeTexts);
}

TEST_P(Looks, NothingLiesOnSomethingElse) {
  OnEveryScreen(ExpectNoOverlaps);
}

TEST_P(Looks, ASmallScreenHasRoomForEach) {
  OnEveryScreen([](const SchermoVisto& screen) {
    // What a screen of 1920x1080 at 200 % has left beside the frame; half of an old one for those
    // that stand before others.
    const QSize room = screen.Piccolo ? QSize(640, 480) : QSize(944, 500);
    const QSize before = screen.Finestra.size();
    screen.Finestra.resize(before.boundedTo(room));
    for (int i = 0; i < 4; ++i) QCoreApplication::processEvents();
    EXPECT_LE(screen.Finestra.width(), room.width()) << screen.Nome;
    EXPECT_LE(screen.Finestra.height(), room.height()) << screen.Nome;
    ExpectWholeTexts(screen);
    ExpectNoOverlaps(screen);
    for (const QScrollArea* area : screen.Finestra.findChildren<QScrollArea*>()) {
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << screen.Nome << ": scrolls both ways";
    }
    screen.Finestra.resize(before);
  });
}

/// Whether a button is dressed as the one thing to do.
bool IsPrimary(const Coppia& button) {
  const auto kind = button.GenereOra();
  return kind == Coppia::Genere::Primario || kind == Coppia::Genere::CartaPrimaria;
}

TEST_P(Looks, OneThingToDoStandsOut) {
  OnEveryScreen([](const SchermoVisto& screen) {
    std::vector<const Coppia*> primary;
    for (const auto* each : screen.Finestra.findChildren<QAbstractButton*>()) {
      const auto* button = dynamic_cast<const Coppia*>(each);
      if (button == nullptr) continue;
      // The hub's save stands out already, though its screen is still to come.
      const bool counts = button->isEnabled() || button->objectName() == QLatin1String("picSave");
      if (button->isVisible() && counts && IsPrimary(*button)) primary.push_back(button);
    }
    EXPECT_EQ(primary.size(), screen.Attende ? 0U : 1U) << screen.Nome;
    const bool box = screen.Nome.starts_with("message") || screen.Nome.starts_with("frmSiNo");
    if (box && !primary.empty()) {
      EXPECT_TRUE(primary.front()->hasFocus()) << screen.Nome;
    }
  });
}

TEST_P(Looks, WhatIsDisabledSaysWhy) {
  OnEveryScreen([](const SchermoVisto& screen) {
    for (const QWidget* control : screen.Finestra.findChildren<QWidget*>()) {
      const bool used = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                        qobject_cast<const QComboBox*>(control) != nullptr ||
                        qobject_cast<const QLineEdit*>(control) != nullptr;
      if (!used || !control->isVisible() || control->isEnabled()) continue;
      EXPECT_FALSE(control->toolTip().isEmpty())
          << screen.Nome << ": " << control->objectName().toStdString();
    }
  });
}

INSTANTIATE_TEST_SUITE_P(
    Languages, Looks, testing::Values("English.lan", "Italiano.lan"), [](const auto& each) {
      return std::string(each.param).substr(0, std::string(each.param).find('.'));
    });

}  // namespace
}  // namespace kvr5
