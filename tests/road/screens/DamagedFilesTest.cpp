#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <random>

#include "road/screens/BancoGuasti.h"
#include "support/screens/Scelte.h"

// A project whose files hold what no program of ours has written, through the whole of the hub.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

enum class Damage { Random, Cut, Empty, Folder };

constexpr std::array kDamages{Damage::Random, Damage::Cut, Damage::Empty, Damage::Folder};

std::string NameOf(Damage damage) {
  return std::array{"Random", "Cut", "Empty", "Folder"}.at(static_cast<std::size_t>(damage));
}

class DamagedFiles : public test::Guasti, public testing::WithParamInterface<Damage> {
 protected:
  /// A project with two assignments, and the menu again; then a file of the bench is damaged.
  void DamageOf(const std::string& name) {
    CreaHall();
    ScegliScheda();
    ASSERT_EQ(Registra(), "");
    TornaAlMenu();
    Spoil(name);
  }
  void Spoil(const std::string& name) {
    const std::string whole = b.Cartella.Read(name);
    fs::remove(Host(name));
    std::mt19937 random(11);
    std::string noise;
    for (int i = 0; i < 20000; ++i) noise += static_cast<char>(random());
    switch (GetParam()) {
      case Damage::Random:
        return b.Cartella.Write(name, noise);
      case Damage::Cut:
        return b.Cartella.Write(name, whole.substr(0, whole.size() / 2));
      case Damage::Empty:
        return b.Cartella.Write(name, "");
      case Damage::Folder:
        fs::create_directory(Host(name));
    }
  }
  bool IsFolder() const { return GetParam() == Damage::Folder; }
  /// A database that doesn't begin as one is told when its project is opened.
  bool IsToldOnOpening() const {
    return GetParam() == Damage::Random || GetParam() == Damage::Empty;
  }
  void ApriConDatabase() {
    const test::Risponditore boxes;
    ApriHall();
    EXPECT_EQ(boxes.Titoli(), IsToldOnOpening() ? "Lists can't be read" : "");
  }
  /// Does with the project what a person does, whatever is told.
  void WorkOnHall() {
    VaiAllaMusica();
    Assegna({2}, "c.mp3");
    PremiTutto();
    ScegliScheda();
    Registra();
    LasciaHall();
  }
};

TEST_P(DamagedFiles, TheDeviceFileLeavesTheHubAtWork) {
  DamageOf(DelProgetto("Config.txt"));
  if (!IsFolder()) {
    ApriHall();
    return WorkOnHall();
  }
  Clic("frmMain", "picCaricaDaDisco");
  QWidget& list = Schermo("frmCaricaProgetto");
  EXPECT_FALSE(test::Controllo(list, "picOpen").isEnabled()) << "no project without its files";
}

TEST_P(DamagedFiles, TheDeviceFileAsTheHubFoundItComesToTheCard) {
  if (IsFolder()) return;
  DamageOf(DelProgetto("Config.txt"));
  ApriHall();
  // The keys of the hub stand in the first half.
  EXPECT_EQ(Hub().lblNonSalvato->isVisible(), GetParam() != Damage::Cut);
  ScegliScheda();
  EXPECT_EQ(Registra(), "");
  EXPECT_TRUE(b.Cartella.Same("card/Config.txt", DelProgetto("Config.txt")));
}

TEST_P(DamagedFiles, TheDatabaseLeavesTheHubAtWork) {
  DamageOf(DelProgetto("inputcfg.mdb"));
  if (!IsFolder()) {
    ApriConDatabase();
    return WorkOnHall();
  }
  const test::Risponditore boxes;
  Clic("frmMain", "picCaricaDaDisco");
  Clic("frmCaricaProgetto", "picOpen");
  EXPECT_EQ(boxes.Titoli(), "Project not complete");
  Schermo("frmCaricaProgetto");
}

TEST_P(DamagedFiles, TheDatabaseIsToldInTheListOfAssignments) {
  if (IsFolder()) return;
  DamageOf(DelProgetto("inputcfg.mdb"));
  const std::string before = b.Cartella.Read(DelProgetto("inputcfg.mdb"));
  ApriConDatabase();
  auto& rows = *Hub().Assegnazioni;
  EXPECT_EQ(rows.lstAssegnati->count(), 0);
  EXPECT_NE(rows.lblCifre->text(), QString());
  EXPECT_TRUE(before == b.Cartella.Read(DelProgetto("inputcfg.mdb"))) << "nothing is made worse";
}

TEST_P(DamagedFiles, ADatabaseThatTheRecordingCannotReadIsToldAtItsEnd) {
  if (IsFolder()) return;
  CreaHall();
  ScegliScheda();
  Spoil(DelProgetto("inputcfg.mdb"));
  const bool read = GetParam() == Damage::Empty || GetParam() == Damage::Cut;
  const std::string told = Registra();
  if (GetParam() == Damage::Random) {
    EXPECT_EQ(told, "Not everything is on the card");
  }
  EXPECT_TRUE(read || !b.Cartella.Exists("card/5.mp3"));
  LasciaHall();
}

TEST_P(DamagedFiles, AMusicFileIsRefusedOrNotListed) {
  CreaHall();
  Spoil("music/c.mp3");
  VaiAllaMusica();
  frmPlayerConfig& hub = Hub();
  auto& files = *hub.fraFileName->cmbFileMp3;
  if (IsFolder()) {
    EXPECT_EQ(files.findText(QStringLiteral("c.mp3")), -1);
    return;
  }
  test::ScegliVoce(files, "c.mp3");
  const bool whole = GetParam() == Damage::Cut;  // half a file is a shorter file
  EXPECT_EQ(hub.fraFileInfo->lblBadFileType->isVisible(), !whole);
  EXPECT_EQ(hub.fraFileName->cmdOkFileMp3->isVisible(), whole);
}

TEST_P(DamagedFiles, AnAssignedMusicFileComesToTheCardAsItIs) {
  CreaHall();
  Spoil("music/a.mp3");
  ScegliScheda();
  EXPECT_EQ(Registra(), "");
  if (!IsFolder()) {
    EXPECT_TRUE(b.Cartella.Same("card/1.mp3", "music/a.mp3"));
  }
  LasciaHall();
}

TEST_P(DamagedFiles, AnAssignedMusicFileThatIsAFolderNowIsMarkedAsMissing) {
  if (!IsFolder()) return;
  DamageOf("music/a.mp3");
  ApriHall();
  EXPECT_EQ(Hub().Assegnazioni->lblCifre->text().toStdString(), "2 files, 1 missing");
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedFiles, testing::ValuesIn(kDamages),
                         [](const auto& each) { return NameOf(each.param); });

}  // namespace
}  // namespace kvr5
