#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "core/screens/RiquadroMessaggio.h"
#include "road/screens/BancoProgramma.h"
#include "support/screens/Risponditore.h"

// What the screens make of files and folders that no program of ours has left so.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Pilota;

class BadInput : public test::BancoProgramma {
 protected:
  frmMain& Start(const std::string& language = "English.lan") {
    ScriviImpostazioni(language);
    Avvia();
    PassaLoSplash();
    return Attendi<frmMain>();
  }
  frmCaricaProgetto& List() {
    programma->MostraElencoProgetti(Schermata::Menu);
    return Attendi<frmCaricaProgetto>();
  }
  void WriteProject(const std::string& name) const {
    b.Cartella.Write("program/Projects/" + name + "/Config.cfg",
                     "[CONFIG]\r\nPlayerType=4\r\nPlayerMode=2\r\n");
    b.Cartella.Write("program/Projects/" + name + "/Config.txt", "[Config]\r\n");
  }
};

TEST_F(BadInput, ALanguageFileOfRandomBytesLeavesTheBuiltInCaptions) {
  std::mt19937 random(7);
  std::string bytes;
  for (int i = 0; i < 20000; ++i) bytes += static_cast<char>(random());
  b.Cartella.Write("program/Language/Noise.lan", bytes);
  frmMain& menu = Start("Noise.lan");
  EXPECT_EQ(menu.lblNuovoProgetto->text(), QStringLiteral("New Project"));
  programma->Mostra(Schermata::Wizard);
  EXPECT_EQ(Attendi<frmWizardPanel1>().optPanel_1->text(), QStringLiteral("Inputs"));
}

TEST_F(BadInput, FiveThousandProjectsAreListedAndFound) {
  for (int i = 0; i < 5000; ++i) WriteProject("Project " + std::to_string(i));
  Start();
  frmCaricaProgetto& list = List();
  EXPECT_EQ(list.lstProgetti->model()->rowCount(), 5000);
  test::Riscrivi(*list.txtCerca, QStringLiteral("project 4321"));
  const int row = list.lstProgetti->currentIndex().row();
  EXPECT_EQ(list.lstProgetti->model()->index(row, 0).data().toString(),
            QStringLiteral("Project 4321"));
}

TEST_F(BadInput, AProjectFolderThatWentAwayMeanwhileOpensNothing) {
  WriteProject("Hall");
  Start();
  frmCaricaProgetto& list = List();
  fs::remove_all(b.Cartella.Host() / "program/Projects/Hall");
  test::Clicca(list, "picOpen");
  EXPECT_EQ(Viste(), (std::vector<std::string>{"frmCaricaProgetto", "frmMain"}));
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(BadInput, ProjectsThatWentAwayMeanwhileAreScrolledByWithoutAWord) {
  for (int i = 0; i < 300; ++i) WriteProject("Project " + std::to_string(i));
  Start();
  frmCaricaProgetto& list = List();
  fs::remove_all(b.Cartella.Host() / "program/Projects");
  const test::Risponditore boxes;
  for (int page = 0; page < 40; ++page) {
    QTest::keyClick(list.lstProgetti, Qt::Key_PageDown);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(list.lstProgetti->currentIndex().row(), 299);
  test::Clicca(list, "picOpen");
  EXPECT_TRUE(list.isVisible());
  EXPECT_EQ(boxes.Titoli(), "");
  EXPECT_FALSE(b.Cartella.Exists("program/Projects")) << "nothing is made in their place";
}

TEST_F(BadInput, ADescriptorOfRandomBytesOpensOrIsToldButNeverCrashes) {
  Start();
  for (unsigned seed = 0; seed < 20; ++seed) {
    std::mt19937 random(seed);
    std::string bytes = "[CONFIG]\r\nPlayerType=4\r\nPlayerMode=5\r\nProjectName=";
    for (int i = 0; i < 300; ++i) bytes += static_cast<char>(random());
    b.Cartella.Write("program/Projects/Hall/Config.cfg", bytes);
    b.Cartella.Write("program/Projects/Hall/Config.txt", bytes);
    frmCaricaProgetto& list = List();
    test::Clicca(list, "picOpen");
    ASSERT_TRUE(QTest::qWaitFor([] { return Vista<frmPlayerConfig>() != nullptr; })) << seed;
    programma->DimenticaConfigurazione();
  }
}

TEST_F(BadInput, ANameOf250CharactersKeepsTheWizardOnTheScreen) {
  Start();
  programma->Mostra(Schermata::Wizard);
  auto& wizard = Attendi<frmWizardPanel1>();
  const int width = wizard.width();
  test::Riscrivi(*wizard.txtNomeProgetto, QString(250, QLatin1Char('m')));
  QCoreApplication::processEvents();
  EXPECT_EQ(wizard.width(), width);
  EXPECT_LE(wizard.minimumSizeHint().width(), width);
}

TEST_F(BadInput, ANameLongerThanAFolderCanHaveIsToldAndTheWizardStays) {
  Start();
  programma->Mostra(Schermata::Wizard);
  auto& wizard = Attendi<frmWizardPanel1>();
  test::Riscrivi(*wizard.txtNomeProgetto, QString(300, QLatin1Char('m')));
  const Pilota<RiquadroMessaggio> box([](RiquadroMessaggio& message) {
    EXPECT_EQ(message.windowTitle(),
              QStringLiteral("Project folder not created: check the name and the projects folder"));
    message.accept();
  });
  test::Clicca(wizard, "picGoOn");
  EXPECT_TRUE(wizard.isVisible());
}

}  // namespace
}  // namespace kvr5
