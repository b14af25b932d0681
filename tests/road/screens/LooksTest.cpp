#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "core/screens/EtichettaElisa.h"
#include "projects/NuovoProgetto.h"
#include "road/screens/BancoProgramma.h"

// What every screen owes the eye and the keyboard, in both languages and for all models.

namespace kvr5 {
namespace {

struct Hub {
  const char* Name;
  std::int16_t Type;
  std::int16_t Mode;
};
constexpr std::array kHubs{Hub{"Inputs", 4, 1},   Hub{"Schedule", 4, 2}, Hub{"Lists", 4, 5},
                           Hub{"Veskadro", 1, 0}, Hub{"Zub", 2, 0},      Hub{"Ostrel", 3, 2}};

class Looks : public test::BancoProgramma, public testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    ScriviImpostazioni(GetParam());
    Avvia();
    PassaLoSplash();
    Attendi<frmMain>();
  }

  /// Runs `look` on every screen, each in turn with its name.
  void OnEveryScreen(const std::function<void(QWidget&, const std::string&)>& look) {
    look(Attendi<frmMain>(), "frmMain");
    programma->Mostra(Schermata::Wizard);
    look(Attendi<frmWizardPanel1>(), "frmWizardPanel1");
    programma->Mostra(Schermata::Impostazioni);
    look(Attendi<frmConfig>(), "frmConfig");
    for (const Hub& hub : kHubs) LookAtHub(hub, look);
    programma->MostraElencoProgetti(Schermata::Menu);
    look(Attendi<frmCaricaProgetto>(), "frmCaricaProgetto");
  }

 private:
  void LookAtHub(const Hub& hub, const std::function<void(QWidget&, const std::string&)>& look) {
    S().PlayerType = hub.Type;
    S().PlayerMode = hub.Mode;
    S().PlayerConfig = 0;
    S().PlayerName = hub.Name;
    S().PlayerConfigDesc = hub.Name;
    ASSERT_EQ(PreparaCartella(programma->C(), hub.Name, false), EsitoNuovo::Creato);
    RiempiCartella(programma->C());
    programma->ApriConfigurazione(1);
    auto& screen = Attendi<frmPlayerConfig>();
    for (int i = 0; i < 8; ++i) QCoreApplication::processEvents();  // its figures come later
    look(screen, std::string("frmPlayerConfig ") + hub.Name);
    programma->DimenticaConfigurazione();
  }
};

/// The part of a text that a label has no room for, in pixels; 0 or less where it fits.
int Lacks(const QLabel& label) {
  if (label.text().isEmpty() || dynamic_cast<const EtichettaElisa*>(&label) != nullptr) return 0;
  if (label.wordWrap()) return label.heightForWidth(label.width()) - label.height();
  return label.sizeHint().width() - label.width();
}

TEST_P(Looks, NoTextIsCut) {
  OnEveryScreen([](QWidget& screen, const std::string& name) {
    for (const QLabel* label : screen.findChildren<QLabel*>()) {
      if (!label->isVisible()) continue;
      EXPECT_LE(Lacks(*label), 0) << name << ": " << label->objectName().toStdString() << " \""
                                  << label->text().toStdString() << "\"";
    }
    for (const QAbstractButton* button : screen.findChildren<QAbstractButton*>()) {
      if (!button->isVisible() || button->text().isEmpty()) continue;
      EXPECT_GE(button->width(), button->sizeHint().width())
          << name << ": " << button->objectName().toStdString();
    }
  });
}

TEST_P(Looks, NothingLiesOnSomethingElse) {
  OnEveryScreen([](QWidget& screen, const std::string& name) {
    for (const QWidget* parent : screen.findChildren<QWidget*>()) {
      if (!parent->isVisible() || parent->layout() == nullptr) continue;
      const auto children = parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
      for (qsizetype i = 0; i < children.size(); ++i) {
        for (qsizetype k = i + 1; k < children.size(); ++k) {
          if (!children[i]->isVisible() || !children[k]->isVisible()) continue;
          EXPECT_FALSE(children[i]->geometry().intersects(children[k]->geometry()))
              << name << ": " << children[i]->objectName().toStdString() << " and "
              << children[k]->objectName().toStdString();
        }
      }
    }
  });
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

TEST_P(Looks, WhatTheKeyboardReachesHasAName) {
  OnEveryScreen([](QWidget& screen, const std::string& name) {
    for (const QWidget* control : screen.findChildren<QWidget*>()) {
      const bool reached = control->isVisible() && control->isEnabled() &&
                           (control->focusPolicy() & Qt::TabFocus) != 0 &&
                           !control->objectName().startsWith(QLatin1String("qt_"));
      if (!reached) continue;
      EXPECT_FALSE(Spoken(*control, screen).isEmpty())
          << name << ": " << control->objectName().toStdString() << " ("
          << control->metaObject()->className() << ")";
    }
  });
}

INSTANTIATE_TEST_SUITE_P(
    Languages, Looks, testing::Values("English.lan", "Italiano.lan"), [](const auto& each) {
      return std::string(each.param).substr(0, std::string(each.param).find('.'));
    });

}  // namespace
}  // namespace kvr5
