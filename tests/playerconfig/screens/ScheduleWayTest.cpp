#include <gtest/gtest.h>

#include <QAction>
#include <QTest>
#include <filesystem>

#include "playerconfig/screens/BancoHub.h"

namespace kvr5 {
namespace {

class WayToTheSchedule : public test::Hub {
 protected:
  std::string Copy() const { return "program/Projects/Hall/tmpScheduler.mdb"; }
  void ExpectOpened() {
    EXPECT_EQ(b.Schermi.PalinsestiPer, std::vector{Schermata::Configurazione});
    EXPECT_TRUE(b.Schermi.EditorPer.empty());
    ASSERT_TRUE(hub);
    EXPECT_FALSE(hub->isVisible()) << "the hub is hidden";
    EXPECT_TRUE(hub->Caricata()) << "and stays loaded";
  }
  /// The menu's way in; null where it has none.
  QAction* Entry() const {
    for (QAction* each : hub->Barra->menuAltro.actions()) {
      if (each->text() == "Schedule…") return each;
    }
    return nullptr;
  }
};

TEST_F(WayToTheSchedule, IsOpenByTheButtonOfAKvr5) {
  Progetto(4, 2);
  Apri();
  const auto& button = Trova<QWidget>("picPalinsesto");
  EXPECT_TRUE(button.isVisible());
  EXPECT_TRUE(button.isEnabled());
  EXPECT_EQ(button.toolTip().toStdString(), "What plays on which day, at what time");
  EXPECT_EQ(Entry(), nullptr);
  Clic("picPalinsesto");
  ExpectOpened();
}

TEST_F(WayToTheSchedule, IsOpenByTheMenuOfAnOstrelWhoseButtonIsHidden) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{2, 3}) {
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    b.Schermi.PalinsestiPer.clear();
    Progetto(3, mode);
    Apri();
    EXPECT_FALSE(SiVede("picPalinsesto"));
    ASSERT_NE(Entry(), nullptr) << mode;
    ASSERT_TRUE(Entry()->isEnabled());
    Entry()->trigger();
    ExpectOpened();
    Chiudi();
  }
}

TEST_F(WayToTheSchedule, IsShutWhereThereIsNoDatabaseForIt) {
  Progetto(4, 1);
  Apri();
  EXPECT_FALSE(SiVede("picPalinsesto"));
  EXPECT_EQ(Entry(), nullptr);
}

TEST_F(WayToTheSchedule, ClearsTheCopyThatACrashLeftBeforeTheEditorComes) {
  Progetto(4, 2);
  b.Cartella.Write(Copy(), "stale");
  Apri();
  EXPECT_TRUE(b.Cartella.Exists(Copy()));
  Clic("picPalinsesto");
  ExpectOpened();
  EXPECT_FALSE(b.Cartella.Exists(Copy()));
}

TEST_F(WayToTheSchedule, LeadsBackToTheHubWhichCountsAnew) {
  Progetto(4, 2);
  Apri();
  Clic("picPalinsesto");
  ExpectOpened();
  b.AggiungiRiga("scheduler.mdb", 0, 1, "a.mp3", "C:\\far\\", "", 1);
  hub->Mostra();
  ASSERT_TRUE(test::Pronta(*hub));
  QEvent activation(QEvent::WindowActivate);  // the editor's window was in front
  QCoreApplication::sendEvent(hub, &activation);
  EXPECT_TRUE(QTest::qWaitFor([this] {
    return QString::fromStdString(Testo("lblSommario")).startsWith("0 segments, 1 spot");
  })) << Testo("lblSommario");
}

}  // namespace
}  // namespace kvr5
