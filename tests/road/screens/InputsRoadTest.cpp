#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>

#include "core/screens/frmSiNo.h"
#include "road/screens/BancoStrada.h"
#include "support/screens/Scelte.h"

// From the main menu to a finished card and back, by mouse and keys.

namespace kvr5 {
namespace {

using test::Pilota;
using Names = std::vector<std::string>;

class InputsRoad : public test::Strada {
 protected:
  /// Records, choosing the only card there is.
  void RecordOnFirstCard() {
    const Pilota<frmSelectFlash> card([](frmSelectFlash& dialog) {
      EXPECT_EQ(dialog.cmdFlash->currentText(), QStringLiteral("E:\\"));
      test::Clicca(dialog, "picOk");
    });
    Record();
  }
  void Record() { Clic("frmPlayerConfig", "picRecordFlash"); }
};

TEST_F(InputsRoad, FromTheMenuToARecordedCardAndAgain) {
  Avvia();
  NuovoProgetto(QStringLiteral("Museum-Hall-2"));
  Assegna({1, 3}, "L'été.mp3");
  RecordOnFirstCard();
  EXPECT_EQ(b.Nomi("card"), (Names{"5.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/L'été.mp3"));
  EXPECT_TRUE(b.Cartella.Same("card/Config.txt", "program/Projects/Museum-Hall-2/Config.txt"));
  EXPECT_EQ(test::Scritta(Schermo("frmPlayerConfig"), "lblPathMemoryCard"), "Memory card: E:\\");

  TornaAlMenu();
  ApriProgetto(0);
  EXPECT_EQ(test::Scritta(Schermo("frmPlayerConfig"), "lblProgetto"), "Museum-Hall-2");
  VaiAllaMusica();
  Assegna({1, 3}, "welcome.mp3");
  Assegna({2}, "L'été.mp3");
  Record();
  EXPECT_EQ(b.Nomi("card"), (Names{"2.mp3", "5.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/welcome.mp3"));
  EXPECT_TRUE(b.Cartella.Same("card/2.mp3", "music/L'été.mp3"));
}

TEST_F(InputsRoad, AFileThatThePlayerRefusesNeverComesToTheCard) {
  Avvia();
  NuovoProgetto(QStringLiteral("Lift"));
  Assegna({1}, "welcome.mp3");
  QWidget& hub = Schermo("frmPlayerConfig");
  auto& files = test::Controllo<QComboBox>(hub, "cmbFileMp3");
  test::ScegliVoce(files, "48k.mp3");
  EXPECT_TRUE(test::Controllo(hub, "lblBadFileType").isVisible());
  EXPECT_FALSE(test::Controllo(hub, "cmdOkFileMp3").isVisible());
  RecordOnFirstCard();
  EXPECT_TRUE(b.Cartella.Same("card/1.mp3", "music/welcome.mp3"));
}

TEST_F(InputsRoad, ACardThatIsGoneIsToldAndNothingStops) {
  Avvia();
  NuovoProgetto(QStringLiteral("Lift"));
  Assegna({1}, "welcome.mp3");
  RecordOnFirstCard();
  std::filesystem::remove_all(b.Cartella.Host() / "card");
  {
    const Pilota<frmSiNo> notice([](frmSiNo& box) {
      EXPECT_EQ(box.windowTitle().toStdString(), "Recording not started");
      EXPECT_TRUE(box.lblNota->text().startsWith(
          QStringLiteral("Nothing was copied: this card isn't there or can't be written")));
      test::Clicca(*box.cmdSi);
    });
    Record();
  }
  EXPECT_EQ(test::Scritta(Schermo("frmPlayerConfig"), "lblStatoScheda"),
            "taken out: put it back in");
  std::filesystem::create_directory(b.Cartella.Host() / "card");
  Record();
  EXPECT_TRUE(b.Cartella.Same("card/1.mp3", "music/welcome.mp3")) << "it is back";
}

}  // namespace
}  // namespace kvr5
