#include <QTimer>

#include "core/screens/RiquadroMessaggio.h"
#include "road/screens/BancoProgramma.h"

namespace kvr5 {
namespace {

using namespace test;
using Names = std::vector<std::string>;

class DalMenuAlProgetto : public BancoProgramma {
 protected:
  frmMain& Menu() {
    ScriviImpostazioni();
    Avvia();
    PassaLoSplash();
    return Attendi<frmMain>();
  }
  frmPlayerConfig& Crea(frmMain& menu, const QString& name) {
    Clicca(*menu.picNuovoProgetto);
    auto& wizard = Attendi<frmWizardPanel1>();
    EXPECT_EQ(Viste(), Names{"frmWizardPanel1"});
    Riscrivi(*wizard.txtNomeProgetto, name);
    Clicca(*wizard.picGoOn);
    return Attendi<frmPlayerConfig>();
  }
  /// Closes the hub and answers its question.
  static void ChiudiHub(frmPlayerConfig& hub, const char* button) {
    const Pilota<RiquadroMessaggio> pilot(
        [button](RiquadroMessaggio& box) { Clicca(box, button); });
    hub.close();
  }
};

TEST_F(DalMenuAlProgetto, AnAbandonedWizardBringsTheMenuBackUnloadedAndTheTypeStays) {
  Clicca(*Menu().picNuovoProgetto);
  Tasto(Attendi<frmWizardPanel1>(), Qt::Key_Escape);
  Attendi<frmMain>();
  EXPECT_EQ(Viste(), Names{"frmMain"});
  EXPECT_EQ(S().PlayerType, 4);
}

TEST_F(DalMenuAlProgetto, TheWizardMakesTheProjectAndTheHubIsAlone) {
  Crea(Menu(), "Bar");
  EXPECT_EQ(Viste(), Names{"frmPlayerConfig"});
  EXPECT_EQ(S().CartellaProgetto, b.Percorso("program/Projects") + "\\Bar");
  EXPECT_TRUE(b.Cartella.Exists("program/Projects/Bar/inputcfg.mdb"));
}

TEST_F(DalMenuAlProgetto, LeavingTheHubShowsTheMenuAndTheListOpensTheProjectAgain) {
  ChiudiHub(Crea(Menu(), "Bar"), "cmdYes");
  auto& menu = Attendi<frmMain>();
  EXPECT_EQ(Viste(), Names{"frmMain"});
  EXPECT_EQ(S().PlayerType, 1) << "the menu had stayed loaded";
  Clicca(*menu.picCaricaDaDisco);
  auto& list = Attendi<frmCaricaProgetto>();
  EXPECT_EQ(Viste(), Names{"frmCaricaProgetto"});
  Tasto(list, Qt::Key_Return);
  Attendi<frmPlayerConfig>();
  EXPECT_EQ(Viste(), Names{"frmPlayerConfig"});
  EXPECT_EQ(S().PlayerType, 4);
  EXPECT_EQ(S().ProjectName, "Bar");
}

TEST_F(DalMenuAlProgetto, BackFromTheListTheMenuIsLoadedAfresh) {
  ChiudiHub(Crea(Menu(), "Bar"), "cmdYes");
  Clicca(*Attendi<frmMain>().picCaricaDaDisco);
  Tasto(Attendi<frmCaricaProgetto>(), Qt::Key_Escape);
  Attendi<frmMain>();
  EXPECT_EQ(Viste(), Names{"frmMain"});
  EXPECT_EQ(S().PlayerType, 0);
}

TEST_F(DalMenuAlProgetto, CancellingTheHubsQuestionStaysThere) {
  auto& hub = Crea(Menu(), "Bar");
  ChiudiHub(hub, "cmdCancel");
  EXPECT_EQ(Viste(), Names{"frmPlayerConfig"});
}

TEST_F(DalMenuAlProgetto, NoToTheHubsQuestionEndsTheProgramAndAsksOnce) {
  auto& hub = Crea(Menu(), "Bar");
  QTimer late;
  QObject::connect(&late, &QTimer::timeout, [] { QCoreApplication::exit(1); });
  late.start(5000);
  QTimer::singleShot(0, &hub, [&hub] { ChiudiHub(hub, "cmdNo"); });
  EXPECT_EQ(QApplication::exec(), 0);
}

}  // namespace
}  // namespace kvr5
