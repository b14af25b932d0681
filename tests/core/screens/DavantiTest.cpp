#include <QFileDialog>
#include <QScreen>
#include <QTest>

#include "core/screens/Davanti.h"
#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/frmMain.h"
#include "support/screens/ProvaForm.h"

// Where windows come up, and that a box doesn't go with the screen below it.

namespace kvr5 {
namespace {

using namespace test;

class Davanti : public ProvaForm<frmMain, Boxes::Veri> {
 protected:
  /// The screen below goes, its memory too.
  void DropTheScreen() {
    forma->Scarica();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(forma.Caricata());
  }
};

TEST_F(Davanti, AMessageOutlivesTheScreenThatItStandsBefore) {
  Apri();
  const Pilota<RiquadroMessaggio> pilot([this](RiquadroMessaggio& box) {
    DropTheScreen();
    EXPECT_TRUE(box.isVisible());
    Clicca(box, "cmdYes");
  });
  EXPECT_EQ(
      b.C.Finestre.MostraMessaggio({"Title", "Text", Icona::Domanda, Pulsanti::SiNo, Risposta::No}),
      Risposta::Si);
}

TEST_F(Davanti, AFolderChooserOutlivesIt) {
  Apri();
  const Pilota<QFileDialog> pilot([this](QFileDialog& chooser) {
    DropTheScreen();
    EXPECT_TRUE(chooser.isVisible());
    ScegliCartella(chooser, (b.Cartella.Host() / "card").string());
  });
  EXPECT_EQ(b.C.Finestre.SfogliaCartella("Pick one", b.Percorso("")), b.Percorso("card"));
}

TEST_F(Davanti, TheCopysWindowOutlivesIt) {
  Apri();
  b.C.FinestraCopia.Begin();
  QTest::qWait(600);  // its patience
  CopyState state;
  EXPECT_TRUE(b.C.FinestraCopia.Progress(state));
  DropTheScreen();
  EXPECT_TRUE(b.C.FinestraCopia.Progress(state));
  b.C.FinestraCopia.End();
}

TEST_F(Davanti, AMessageComesUpOverTheMiddleOfTheScreenBelow) {
  frmMain& form = Apri();
  form.move(400, 200);
  QCoreApplication::processEvents();
  const Pilota<RiquadroMessaggio> pilot([&form](RiquadroMessaggio& box) {
    const QPoint off = box.frameGeometry().center() - form.frameGeometry().center();
    EXPECT_LT(off.manhattanLength(), 60) << off.x() << " " << off.y();
    EXPECT_EQ(box.windowHandle()->transientParent(), form.windowHandle());
    Clicca(box, "cmdOk");
  });
  b.C.Finestre.MostraMessaggio({"T", "Text", Icona::Nessuna, Pulsanti::Ok, Risposta::Ok});
}

TEST_F(Davanti, OneScreenFollowsTheOtherInItsPlace) {
  frmMain& form = Apri();
  form.move(700, 300);
  QCoreApplication::processEvents();
  const QPoint middle = form.frameGeometry().center();
  DropTheScreen();
  frmMain& next = Apri();
  EXPECT_LT((next.frameGeometry().center() - middle).manhattanLength(), 40);
}

TEST_F(Davanti, ScreensThatFollowOneAnotherDoNotWander) {
  frmMain& form = Apri();
  form.move(500, 250);
  QCoreApplication::processEvents();
  const QPoint middle = form.geometry().center();
  for (int turn = 0; turn < 10; ++turn) {
    frmMain other(b.A);
    form.Nascondi();
    other.Mostra();
    ASSERT_TRUE(Pronta(other));
    other.Nascondi();
    form.Mostra();
    ASSERT_TRUE(Pronta(form));
  }
  EXPECT_LE((form.geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(Davanti, NoWindowIsLargerThanTheScreenOrBesideIt) {
  frmMain& form = Apri();
  const QRect room = form.screen()->availableGeometry();
  form.move(room.bottomRight() - QPoint(40, 40));
  QCoreApplication::processEvents();
  QWidget large;
  large.resize(room.size() * 2);
  CentraSu(large, &form);
  EXPECT_TRUE(room.contains(QRect(large.pos(), large.size()))) << "it lay beyond the corner";
}

TEST_F(Davanti, ABoxStandsBeforeTheWindowThatStaysOnTop) {
  frmMain& form = Apri();
  frmMain above(b.A);
  above.setWindowFlag(Qt::WindowStaysOnTopHint);
  above.show();
  form.activateWindow();
  EXPECT_TRUE(Pronta(form));
  EXPECT_EQ(FinestraSotto(), &above);
  QDialog box;
  MettiDavanti(box, FinestraSotto());
  EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

}  // namespace
}  // namespace kvr5
