#include <gtest/gtest.h>
#include <unistd.h>

#include <QTableView>

#include "road/screens/BancoProgramma.h"
#include "support/screens/Risponditore.h"

// A projects folder that can't be used: a file stands in its place, or in that of a folder above.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// What stands where the projects should.
enum class Place { File, BelowAFile, NoRights };

const char* NameOf(Place place) {
  constexpr std::array kNames{"File", "BelowAFile", "NoRights"};
  return kNames.at(static_cast<std::size_t>(place));
}

class ProjectsFolder : public test::BancoProgramma, public testing::WithParamInterface<Place> {
 protected:
  /// Starts the program; false where the test can't be made here.
  bool Start() {
    ScriviImpostazioni();
    const fs::path folder = b.Cartella.Host() / "program/Projects";
    fs::remove_all(folder);
    switch (GetParam()) {
      case Place::File:
        b.Cartella.Write("program/Projects", "no folder");
        break;
      case Place::BelowAFile:
        b.Cartella.Write("program/Blocked", "no folder");
        b.Cartella.Write("program/KVR5Software.ini",
                         "[Config]\nLanguageFile=English.lan\nUseExternalPlayer=0\n[Path]\n"
                         "ProjectsDir=" +
                             b.Percorso("program/Blocked/Projects") + "\\\n");
        break;
      case Place::NoRights:
        fs::create_directory(folder);
        fs::permissions(folder, fs::perms::none);
        if (access(folder.c_str(), W_OK) == 0) return false;
    }
    Avvia();
    PassaLoSplash();
    Attendi<frmMain>();
    return true;
  }
};

TEST_P(ProjectsFolder, LetsTheProgramStartWithoutAWord) {
  const test::Risponditore boxes;
  if (!Start()) GTEST_SKIP() << "the system administrator has every right";
  EXPECT_EQ(Viste(), Names{"frmMain"});
  EXPECT_EQ(boxes.Titoli(), "");
}

TEST_P(ProjectsFolder, IsToldByTheWizardWhichStays) {
  if (!Start()) GTEST_SKIP() << "the system administrator has every right";
  test::Clicca(Attendi<frmMain>(), "picNuovoProgetto");
  auto& wizard = Attendi<frmWizardPanel1>();
  test::Riscrivi(*wizard.txtNomeProgetto, QStringLiteral("Hall"));
  const test::Risponditore boxes;
  test::Clicca(wizard, "picGoOn");
  EXPECT_EQ(boxes.Titoli(), "Project folder not created: check the name and the projects folder");
  EXPECT_EQ(Viste(), Names{"frmWizardPanel1"});
  EXPECT_FALSE(test::PuntatoreOccupato());
  wizard.activateWindow();  // without a display nobody else does, once the box has gone
  test::Tasto(Attendi<frmWizardPanel1>(), Qt::Key_Escape);
  Attendi<frmMain>();
}

TEST_P(ProjectsFolder, GivesAnEmptyListFromWhichOneComesBack) {
  if (!Start()) GTEST_SKIP() << "the system administrator has every right";
  test::Clicca(Attendi<frmMain>(), "picCaricaDaDisco");
  auto& list = Attendi<frmCaricaProgetto>();
  EXPECT_TRUE(test::Controllo(list, "lblElencoVuoto").isVisible());
  EXPECT_FALSE(test::Controllo(list, "picOpen").isEnabled());
  EXPECT_FALSE(test::PuntatoreOccupato());
  test::Tasto(list, Qt::Key_Escape);
  Attendi<frmMain>();
}

INSTANTIATE_TEST_SUITE_P(Places, ProjectsFolder,
                         testing::Values(Place::File, Place::BelowAFile, Place::NoRights),
                         [](const auto& each) { return std::string(NameOf(each.param)); });

}  // namespace
}  // namespace kvr5
