#include <gtest/gtest.h>

#include <QListWidget>

#include "core/screens/RiquadroMessaggio.h"
#include "road/screens/BancoGuasti.h"

// The open project's folder goes away, or parts of it, while the hub stands.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

class VanishedProject : public test::Guasti {
 protected:
  void SetUp() override {
    Guasti::SetUp();
    CreaHall();
    ScegliScheda();
  }
  void Vanish() const { fs::remove_all(Host(DelProgetto(""))); }
};

TEST_F(VanishedProject, EveryButtonOfTheHubCanStillBePressed) {
  Vanish();
  PremiTutto();
  EXPECT_FALSE(test::PuntatoreOccupato());
  LasciaHall();
}

TEST_F(VanishedProject, TheRecordingTellsWhatItCannotCopy) {
  Vanish();
  EXPECT_EQ(Registra(), "Copy stopped");
  EXPECT_TRUE(Hub().isVisible() && Hub().isEnabled());
  EXPECT_EQ(Hub().Assegnazioni->lstAssegnati->count(), 0) << "the table can't be read any more";
  EXPECT_FALSE(Hub().fraIngressiLogici->fraFileAssociato->isVisible());
  LasciaHall();
}

TEST_F(VanishedProject, AnotherOneCanBeMadeAfterwards) {
  Vanish();
  Registra();
  TornaAlMenu();
  EXPECT_EQ(programma->C().Stato.PlayerType, 1);
  CreaHall();
  EXPECT_EQ(Registra(), "");
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
}

TEST_F(VanishedProject, NothingIsMadeInItsPlace) {
  Vanish();
  Assegna({2}, "c.mp3");
  Registra();
  LasciaHall();
  EXPECT_FALSE(b.Cartella.Exists(DelProgetto("")));
}

TEST_F(VanishedProject, AnInputThatCannotBeKeptIsNotShownAsKept) {
  Vanish();
  Assegna({2}, "c.mp3");
  const QListWidget& rows = *Hub().Assegnazioni->lstAssegnati;
  for (int row = 0; row < rows.count(); ++row) {
    EXPECT_FALSE(rows.item(row)->text().contains(QStringLiteral("c.mp3")));
  }
}

TEST_F(VanishedProject, ComingBackItGoesOnFromTheDisk) {
  fs::rename(Host(DelProgetto("")), Host("program/Aside"));
  Registra();
  fs::rename(Host("program/Aside"), Host("program/Projects/Hall"));
  EXPECT_EQ(Registra(), "");
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
  Assegna({2}, "c.mp3");
  EXPECT_EQ(Riga(2), "c.mp3");
}

TEST_F(VanishedProject, WhileTheFolderOfTheMusicGoesToo) {
  Vanish();
  fs::remove_all(Host("music"));
  PremiTutto();
  LasciaHall();
}

TEST_F(VanishedProject, BetweenTheListAndItsOpeningIsToldByTheList) {
  TornaAlMenu();
  Clic("frmMain", "picCaricaDaDisco");
  QWidget& list = Schermo("frmCaricaProgetto");
  fs::remove(Host(DelProgetto("Config.cfg")));
  const test::Risponditore boxes;
  test::Clicca(list, "picOpen");
  EXPECT_EQ(boxes.Titoli(), "Project not complete");
  EXPECT_TRUE(list.isVisible());
  Vanish();
  test::Clicca(list, "picOpen");
  EXPECT_TRUE(list.isVisible());
  test::Tasto(Schermo("frmCaricaProgetto"), Qt::Key_Escape);
  Schermo("frmMain");
}

}  // namespace
}  // namespace kvr5
