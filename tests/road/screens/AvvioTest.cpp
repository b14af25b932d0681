#include <QFileDialog>
#include <QTimer>
#include <filesystem>

#include "core/screens/RiquadroMessaggio.h"
#include "road/screens/BancoProgramma.h"

namespace kvr5 {
namespace {

using namespace test;
using Names = std::vector<std::string>;

class Avvio : public BancoProgramma {};

TEST_F(Avvio, TheSplashStandsAloneUntilItsTimeIsOverAndTheMenuFollows) {
  ScriviImpostazioni();
  Avvia();
  EXPECT_EQ(Vista<frmSplash>()->tmrChiusura.interval(), 2000);
  PassaLoSplash();
  Attendi<frmMain>();
  EXPECT_EQ(Viste(), Names{"frmMain"});
  EXPECT_EQ(S().PlayerType, 0);
}

TEST_F(Avvio, WithTheSwitchTheSettingsComeAndLeavingThemLeadsToTheMenu) {
  ScriviImpostazioni();
  Avvia("/C");
  PassaLoSplash();
  auto& settings = Attendi<frmConfig>();
  EXPECT_EQ(Viste(), Names{"frmConfig"});
  Clicca(*settings.cmdExit);
  PassaLoSplash();
  Attendi<frmMain>();
  EXPECT_EQ(Viste(), Names{"frmMain"});
}

TEST_F(Avvio, TheSwitchIsNotObeyedASecondTime) {
  ScriviImpostazioni();
  Avvia("/C");
  PassaLoSplash();
  Clicca(*Attendi<frmConfig>().cmdExit);
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picConfig);
  EXPECT_EQ(Viste(), Names{"frmConfig"});
  Clicca(*Attendi<frmConfig>().cmdExit);
  PassaLoSplash();
  Attendi<frmMain>();
}

TEST_F(Avvio, AnySmallOrOtherArgumentLeadsToTheMenu) {
  for (const char* argument : {"/c", "/C /C", "-C", "project.cfg", "/C x"}) {
    ScriviImpostazioni();
    Avvia(argument);
    PassaLoSplash();
    Attendi<frmMain>();
    EXPECT_EQ(Viste(), Names{"frmMain"}) << argument;
  }
}

TEST_F(Avvio, WithoutSettingsItWarnsMakesThemAndGoesOn) {
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects");
  {
    const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) {
      EXPECT_TRUE(Viste().empty()) << "no screen yet";
      Clicca(box, "cmdOk");
    });
    Avvia();
  }
  PassaLoSplash();
  Attendi<frmMain>();
  const std::string settings = b.Cartella.Read("program/KVR5Software.ini");
  EXPECT_EQ(settings.substr(0, 8), "[Config]");
  EXPECT_NE(settings.find("UseExternalPlayer=0"), std::string::npos);
  EXPECT_NE(settings.find("ProjectsDir=" + b.Percorso("program/Projects")), std::string::npos);
  EXPECT_TRUE(b.Cartella.Exists("program/Projects"));
}

TEST_F(Avvio, AProjectsFolderThatCannotBeMadeLeavesTheProgramRunningWithAnEmptyList) {
  b.Cartella.Write("program/file", "");
  b.Cartella.Write("program/KVR5Software.ini",
                   "[Config]\nLanguageFile=English.lan\nUseExternalPlayer=0\n[Path]\nProjectsDir=" +
                       b.Percorso("program/file/below") + "\n");
  Avvia();
  PassaLoSplash();
  Clicca(*Attendi<frmMain>().picCaricaDaDisco);
  EXPECT_TRUE(Attendi<frmCaricaProgetto>().lblElencoVuoto->isVisible());
}

TEST_F(Avvio, ANewLanguageCountsFromTheSecondSplashOn) {
  ScriviImpostazioni();
  Avvia("/C");
  EXPECT_EQ(Scritta(*Vista<frmSplash>(), "lblNomePrj"), "KVR5 Software Configuration");
  PassaLoSplash();
  auto& settings = Attendi<frmConfig>();
  settings.cmbLanguage->setFocus();
  Tasto(settings, Qt::Key_End);
  {
    const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) { Clicca(box, "cmdOk"); });
    Clicca(*settings.cmdSave);
  }
  EXPECT_EQ(Scritta(settings, "lblLanguage"), "Language") << "not before";
  Clicca(*settings.cmdExit);
  EXPECT_EQ(S().FileLingua, b.Percorso("program/Language/Italiano.lan"));
  EXPECT_EQ(Scritta(*Vista<frmSplash>(), "lblNomePrj"), "Configurazione KVR5 Software");
  PassaLoSplash();
  EXPECT_EQ(Scritta(Attendi<frmMain>(), "lblUscita"), "Uscire");
}

TEST_F(Avvio, AnotherPlayerCountsAfterTheSettingsWereLeft) {
  ScriviImpostazioni();
  Avvia("/C");
  PassaLoSplash();
  auto& settings = Attendi<frmConfig>();
  Clicca(*settings.optExternal);
  {
    const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) { Clicca(box, "cmdOk"); });
    Clicca(*settings.cmdSave);
  }
  EXPECT_FALSE(S().UsaPlayerEsterno) << "not before";
  Clicca(*settings.cmdExit);
  EXPECT_TRUE(S().UsaPlayerEsterno);
  PassaLoSplash();
}

TEST_F(Avvio, AnotherProjectsFolderCountsAfterTheSettingsWereLeft) {
  ScriviImpostazioni();
  std::filesystem::create_directories(b.Cartella.Host() / "other");
  Avvia("/C");
  PassaLoSplash();
  auto& settings = Attendi<frmConfig>();
  {
    const Pilota<QFileDialog> pilot([this](QFileDialog& chooser) {
      ScegliCartella(chooser, (b.Cartella.Host() / "other").string());
    });
    Clicca(*settings.cmdSelPrjDir);
  }
  {
    const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) { Clicca(box, "cmdOk"); });
    Clicca(*settings.cmdSave);
  }
  EXPECT_EQ(S().CartellaProgetti, b.Percorso("program/Projects") + "\\");
  Clicca(*settings.cmdExit);
  EXPECT_EQ(S().CartellaProgetti, b.Percorso("other") + "\\");
}

TEST_F(Avvio, ExitEndsTheEventLoop) {
  ScriviImpostazioni();
  Avvia();
  PassaLoSplash();
  auto& menu = Attendi<frmMain>();
  QTimer late;
  QObject::connect(&late, &QTimer::timeout, [] { QCoreApplication::exit(1); });
  late.start(5000);
  QTimer::singleShot(0, &menu, [&menu] { Clicca(*menu.picEsci); });
  EXPECT_EQ(QApplication::exec(), 0);
}

using AvvioDeathTest = Avvio;

TEST_F(AvvioDeathTest, WithoutALanguageItSaysSoAndEndsBeforeAnyScreen) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  b.Cartella.Write("program/KVR5Software.ini", "[Config]\n");
  std::filesystem::remove_all(b.Cartella.Host() / "program/Language");
  const auto start = [this] {
    const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) {
      std::fputs(Scritta(box, "lblTitolo").c_str(), stderr);
      box.close();
    });
    Avvia();
  };
  EXPECT_EXIT(start(),
              testing::ExitedWithCode(ProcessoCheFinisce::Codice(MotivoFine::LinguaMancante)),
              "Language file not found");
}

}  // namespace
}  // namespace kvr5
