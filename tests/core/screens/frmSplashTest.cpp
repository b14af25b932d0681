#include <QTest>

#include "core/screens/frmSplash.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class Splash : public ProvaForm<frmSplash> {};

TEST_F(Splash, ShowsTheProgramsNameAndItsVersionWithoutPadding) {
  forma->FormSuccessivo = Schermata::Menu;
  frmSplash& form = Apri();
  EXPECT_EQ(Scritta(form, "lblNomePrj"), "KVR5 Software Configuration");
  EXPECT_EQ(Scritta(form, "lblVersion"), "KVR5 Software Configuration 1.0.0");
}

TEST_F(Splash, AnEmptyNameLeavesTheVersionBeginningWithABlank) {
  b.Cartella.Write("program/Language/Prova.lan", "[Strings]\r\n0020000=\r\n");
  b.C.Stato.FileLingua = b.Percorso("program/Language/Prova.lan");
  frmSplash& form = Apri();
  EXPECT_EQ(Scritta(form, "lblNomePrj"), "");
  EXPECT_EQ(Scritta(form, "lblVersion"), " 1.0.0");
}

TEST_F(Splash, ItsLoadAloneShowsIt) {
  forma->Carica();
  EXPECT_TRUE(forma->isVisible());
}

TEST_F(Splash, ItsTimerOfTwoSecondsWaitsForItsStart) {
  frmSplash& form = Apri();
  EXPECT_EQ(form.tmrChiusura.interval(), 2000);
  EXPECT_FALSE(form.tmrChiusura.isActive());
}

TEST_F(Splash, WhenTheTimerTicksItGoesAndTheNextScreenComesOnce) {
  forma->FormSuccessivo = Schermata::Impostazioni;
  frmSplash& form = Apri();
  form.tmrChiusura.start(0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma.Caricata(); }));
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Impostazioni});
  EXPECT_EQ(b.UltimeScaricate, 1);
}

TEST_F(Splash, NeitherMouseNorKeysGetPastIt) {
  frmSplash& form = Apri();
  QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, form.rect().center());
  for (const auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) Tasto(form, key);
  form.close();
  EXPECT_TRUE(form.isVisible());
  EXPECT_TRUE(b.Schermi.Mostrate.empty());
}

}  // namespace
}  // namespace kvr5
