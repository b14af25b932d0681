#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <optional>

#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/frmSalva.h"
#include "core/screens/frmSiNo.h"
#include "flashcard/screens/frmProgress.h"
#include "playerconfig/screens/frmConfig485.h"
#include "playerconfig/screens/frmPanelExtra.h"
#include "playerconfig/screens/frmPlayerConfig.h"
#include "playerconfig/screens/frmTempiFade.h"
#include "road/screens/BancoStrada.h"

// "Save" in the whole program: the real question, the real progress and copy windows, and what is
// there when the project is opened again.

namespace kvr5 {
namespace {

using test::Clicca;
using test::Pilota;

class SavingRoad : public test::Strada {
 protected:
  void SetUp() override {
    Strada::SetUp();
    Avvia();
    NuovoProgetto(QStringLiteral("Hall"));
  }
  /// Changes and saves a screen of parameters, whose file can't be written, and looks for the box
  /// behind it; then cancels there, behind which nothing is told. `notice`: a box that the screen
  /// begins with.
  template <class T>
  void ExpectToldBehind(QAbstractButton& button, const std::function<void(T&)>& change,
                        bool notice = false) {
    const auto leave = [&](const std::function<void(T&)>& choice) {
      std::optional<Pilota<frmSiNo>> before;
      if (notice) before.emplace([](frmSiNo& box) { Clicca(*box.cmdSi); });
      const Pilota<T> screen(choice);
      button.click();
    };
    std::string told;
    std::optional<Pilota<RiquadroMessaggio>> box;
    leave([&](T& form) {
      box.emplace([&](RiquadroMessaggio& words) {
        told = test::Scritta(words, "lblTesto");
        for (const QWidget* each : QApplication::topLevelWidgets()) {
          EXPECT_FALSE(each->isVisible() && dynamic_cast<const T*>(each) != nullptr) << "behind it";
        }
        Clicca(words, "cmdOk");
      });
      change(form);
      Clicca(*form.picSave);
    });
    box.reset();
    EXPECT_EQ(told, "This step could not be completed\nN°:75\nPath/File access error");
    leave([](T& form) { Clicca(*form.picCancel); });
  }
  /// Presses "Save" on the hub, leaves the question in its own way, and gives the closing words.
  std::string Save(bool copies) {
    std::string told;
    const Pilota<frmSalva> question([&](frmSalva& form) {
      if (form.chkSaveMp3Inputs->isChecked() != copies) Clicca(*form.lblSaveMp3Inputs);
      Clicca(*form.picSalva);
    });
    const Pilota<RiquadroMessaggio> closing([&](RiquadroMessaggio& box) {
      told = test::Scritta(box, "lblTesto");
      Clicca(box, "cmdOk");
    });
    Clic("frmPlayerConfig", "picSave");
    return told;
  }
  template <class T>
  T& Of(const char* name) {
    return test::Controllo<T>(Schermo("frmPlayerConfig"), name);
  }
  bool Exists(const std::string& name) const {
    return b.Cartella.Exists("program/Projects/Hall/" + name);
  }
};

TEST_F(SavingRoad, WhatIsSavedIsThereWhenTheProjectIsOpenedAgain) {
  for (const char* slider : {"sliVolume", "sliLoudness", "sliTreble", "sliBass"}) {
    Of<QSlider>(slider).setFocus();
    test::Tasto(Schermo("frmPlayerConfig"), Qt::Key_Up);
  }
  for (const char* option : {"optMICP_ContinuosPlay", "optTPCM_On"})
    Clic("frmPlayerConfig", option);
  test::Riscrivi(Of<QWidget>("lstTPCM"), QStringLiteral("120"));
  EXPECT_EQ(Save(false), "Saved.");
  TornaAlMenu();
  ApriProgetto(0);
  EXPECT_EQ(Of<QSlider>("sliVolume").value(), 15);
  EXPECT_EQ(Of<QSlider>("sliLoudness").value(), 1);
  EXPECT_EQ(Of<QSlider>("sliTreble").value(), 11);
  EXPECT_EQ(Of<QSlider>("sliBass").value(), 11);
  EXPECT_TRUE(Of<QRadioButton>("optMICP_ContinuosPlay").isChecked());
  EXPECT_TRUE(Of<QRadioButton>("optTPCM_On").isChecked());
  EXPECT_EQ(Of<QLineEdit>("lstTPCM").text(), "120");
  EXPECT_FALSE(Of<QWidget>("lblNonSalvato").isVisible());
}

TEST_F(SavingRoad, TheBoxOfTheQuestionDecidesOnTheCopiesAndIsKept) {
  VaiAllaMusica();
  Assegna({1}, "welcome.mp3");
  EXPECT_EQ(Save(false), "Saved.");
  EXPECT_FALSE(Exists("welcome.mp3"));
  bool ticked = true;
  {
    const Pilota<frmSalva> question([&](frmSalva& form) {
      ticked = form.chkSaveMp3Inputs->isChecked();
      test::Tasto(form, Qt::Key_Escape);
    });
    Clic("frmPlayerConfig", "picSave");
  }
  EXPECT_FALSE(ticked) << "as it was left";
  EXPECT_EQ(Save(true), "Saved.");
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/welcome.mp3", "music/welcome.mp3"));
}

TEST_F(SavingRoad, AQuestionThatIsLeftByItsWindowSavesNothing) {
  Of<QSlider>("sliVolume").setFocus();
  test::Tasto(Schermo("frmPlayerConfig"), Qt::Key_Up);
  {
    const Pilota<frmSalva> question([](frmSalva& form) { form.close(); });
    Clic("frmPlayerConfig", "picSave");
  }
  EXPECT_TRUE(Of<QWidget>("lblNonSalvato").isVisible());
  EXPECT_FALSE(Exists("Hall.htm"));
  EXPECT_TRUE(Schermo("frmPlayerConfig").isEnabled());
}

TEST_F(SavingRoad, EnterAnswersTheQuestionWithSave) {
  {
    const Pilota<frmSalva> question([](frmSalva& form) { test::Tasto(form, Qt::Key_Return); });
    const Pilota<RiquadroMessaggio> closing([](RiquadroMessaggio& box) { Clicca(box, "cmdOk"); });
    Clic("frmPlayerConfig", "picSave");
  }
  EXPECT_TRUE(Exists("Hall.htm"));
}

TEST_F(SavingRoad, AScreenOfParametersThatCouldNotWriteIsToldOfWhenItIsClosed) {
  using std::filesystem::perms;
  const auto folder = b.Cartella.Host() / "program/Projects/Hall";
  std::filesystem::permissions(folder / "Config.txt", perms::owner_read);
  const auto up = [](Form& form) { test::Tasto(form, Qt::Key_Up); };
  auto& hub = dynamic_cast<frmPlayerConfig&>(Schermo("frmPlayerConfig"));
  ExpectToldBehind<frmTempiFade>(*hub.Opzioni->picConfiguraFade, up);
  ExpectToldBehind<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra,
                                  [](frmPanelExtra& form) { Clicca(*form.chkPonte); });
  QAbstractButton& serial = *hub.Seriali->cmdConfigure232;
  ExpectToldBehind<frmConfig485>(serial, up, true);
  std::filesystem::permissions(folder / "Config.txt", perms::owner_all);
  std::filesystem::permissions(folder / "Config.cfg", perms::owner_read);
  ExpectToldBehind<frmConfig485>(
      serial,
      [&](frmConfig485& form) {
        Clicca(*form.chkUse485);
        form.cmbCMCK->setCurrentIndex(0);
      },
      true);
  EXPECT_NE(b.Cartella.Read("program/Projects/Hall/Config.txt").find("CMCK=0"), std::string::npos)
      << "the other file is written";
}

TEST_F(SavingRoad, ACancelInTheProgressWindowEndsItBetweenTwoSteps) {
  bool pressed = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* progress = dynamic_cast<frmProgress*>(window);
      if (pressed || progress == nullptr || !progress->isVisible()) continue;
      pressed = true;
      progress->picAnnulla->click();
    }
  });
  watch.start(0);
  EXPECT_EQ(Save(false), "Cancelled: not everything was saved. Save again to complete it.");
  EXPECT_TRUE(pressed);
  watch.stop();
  EXPECT_EQ(Save(false), "Saved.") << "the next one isn't cancelled";
}

}  // namespace
}  // namespace kvr5
