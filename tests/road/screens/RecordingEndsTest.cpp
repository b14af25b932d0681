#include <gtest/gtest.h>

#include <QTimer>

#include "core/screens/frmSiNo.h"
#include "flashcard/screens/frmProgress.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "road/screens/BancoGuasti.h"

// How a recording ends through the real screens: cancelled, stopped by a file, without a card.

namespace kvr5 {
namespace {

using test::Clicca;
using test::Pilota;

class RecordingEnds : public test::Guasti {
 protected:
  void SetUp() override {
    Guasti::SetUp();
    CreaHall();
  }
  /// The progress window, while it is on the screen.
  static frmProgress* Progress() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* progress = dynamic_cast<frmProgress*>(window);
      if (progress != nullptr && progress->isVisible()) return progress;
    }
    return nullptr;
  }
  void Record() { Clic("frmPlayerConfig", "picRecordFlash"); }
  bool OnCard(const std::string& name) { return b.Cartella.Exists("card/" + name); }
};

TEST_F(RecordingEnds, CancelledInItsWindowItGoesOnToTheEndAndThenSaysSo) {
  ScegliScheda();
  frmPlayerConfig* hub = &Hub();
  bool cancelled = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    frmProgress* progress = Progress();
    if (progress == nullptr || cancelled) return;
    cancelled = true;
    Clicca(*progress, "picAnnulla");
    EXPECT_EQ(test::Scritta(*progress, "lblOperazione"), "Noted; please wait until the work ends");
    hub->hide();  // as copying by hand leaves it
    hub->setEnabled(false);
  });
  watch.start(0);
  const Pilota<frmSiNo> box([&](frmSiNo& notice) {
    EXPECT_EQ(notice.windowTitle(), "Project");
    EXPECT_EQ(notice.lblNota->text(), "Not all was completed: please repeat");
    EXPECT_FALSE(notice.cmdNo->isVisible());
    EXPECT_TRUE(notice.lblNota->autoFillBackground()) << "its colour needs the dark plate";
    EXPECT_EQ(Progress(), nullptr) << "its window is gone before";
    EXPECT_TRUE(OnCard("1.mp3") && OnCard("5.mp3")) << "no stage looks at the cancel";
    Clicca(*notice.cmdSi);
  });
  Clicca(*hub, "picRecordFlash");
  EXPECT_TRUE(cancelled);
  EXPECT_TRUE(hub->isVisible());
  EXPECT_TRUE(hub->isEnabled());
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(RecordingEnds, AFileThatCannotBeHadStopsItWithItsNameAndNoMp3) {
  ScegliScheda();
  Assegna({2}, "a.mp3");  // a second input with one file: the collecting stops there
  const Pilota<frmSiNo> box([&](frmSiNo& notice) {
    EXPECT_EQ(notice.windowTitle(), "MP3 files not copied");
    EXPECT_TRUE(notice.lblNota->text().endsWith(QLatin1String(":\na.mp3")))
        << notice.lblNota->text().toStdString();
    EXPECT_EQ(Progress(), nullptr) << "unloaded first";
    Clicca(*notice.cmdSi);
  });
  Record();
  EXPECT_FALSE(OnCard("1.mp3")) << "not even the one that is there";
  EXPECT_TRUE(OnCard("Config.txt")) << "what the first stages copied stays";
  EXPECT_FALSE(test::PuntatoreOccupato()) << "the notice's own load sets it back";
  LasciaHall();
}

TEST_F(RecordingEnds, WithoutACardTheDialogComesAndLeavingItTouchesNothing) {
  const auto cancel = [](frmSelectFlash& dialog) { Clicca(dialog, "picCancel"); };
  const auto escape = [](frmSelectFlash& dialog) { test::Tasto(dialog, Qt::Key_Escape); };
  const auto close = [](frmSelectFlash& dialog) { dialog.close(); };
  for (const std::function<void(frmSelectFlash&)>& leave :
       {std::function<void(frmSelectFlash&)>(cancel), std::function<void(frmSelectFlash&)>(escape),
        std::function<void(frmSelectFlash&)>(close)}) {
    const Pilota<frmSelectFlash> pilot(leave);
    Record();
    EXPECT_TRUE(std::filesystem::is_empty(Host("card")));
    EXPECT_TRUE(Hub().isVisible());
    EXPECT_FALSE(test::PuntatoreOccupato());
  }
  LasciaHall();
}

TEST_F(RecordingEnds, AGoodOneThatBeganWithTheDialogSaysNothingAndNamesTheCard) {
  const Pilota<frmSelectFlash> pilot([](frmSelectFlash& dialog) { Clicca(dialog, "picOk"); });
  Record();
  EXPECT_TRUE(b.Cartella.Same("card/5.mp3", "music/b.mp3"));
  EXPECT_EQ(test::Scritta(Hub(), "lblPathMemoryCard"), "Memory card: E:\\");
  EXPECT_FALSE(test::PuntatoreOccupato());
}

}  // namespace
}  // namespace kvr5
