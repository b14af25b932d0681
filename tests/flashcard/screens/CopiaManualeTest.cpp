#include <QTest>

#include "flashcard/screens/frmCopiaManuale.h"
#include "support/screens/ProvaForm.h"

// The bar that stands for the program while the card is filled by hand.

namespace kvr5 {
namespace {

using namespace test;

class CopiaManuale : public ProvaForm<frmCopiaManuale> {
 protected:
  frmCopiaManuale& Bar() {
    b.C.Stato.PercorsoMemoryCard = "E:\\";
    forma->FormChiamante = Schermata::Configurazione;
    return Apri();
  }
  void ExpectBack() {
    EXPECT_FALSE(forma.Caricata());
    EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Configurazione});
    b.Schermi.Mostrate.clear();
  }
};

TEST_F(CopiaManuale, NamesTheCardAndTheWayBackAboveAllOtherWindows) {
  frmCopiaManuale& bar = Bar();
  EXPECT_EQ(bar.windowTitle(), "Copy by hand");
  EXPECT_TRUE(Scritta(bar, "lblScheda").starts_with("Copy your files to the card E:\\"));
  EXPECT_EQ(Scritta(bar, "lblTorna"), "Back to the project");
  EXPECT_TRUE(bar.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_FALSE(bar.isModal()) << "the card's files are worked on meanwhile";
  EXPECT_EQ(bar.picTorna->text().toStdString(), "Back to the project") << "for a screen reader";
  EXPECT_LT(bar.height(), 150);
  EXPECT_EQ(b.Vita.Quante(), 1) << "it keeps the program alive";
}

TEST_F(CopiaManuale, ItsButtonAndLabelBringTheCallerBack) {
  Clicca(*Bar().picTorna);
  ExpectBack();
  Clicca(Bar(), "lblTorna");
  ExpectBack();
}

TEST_F(CopiaManuale, TheWindowsOwnButtonBringsTheCallerBackToo) {
  Bar().close();
  ExpectBack();
}

TEST_F(CopiaManuale, TheKeyboardLeavesItWithoutAClickBefore) {
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape}) {
    frmCopiaManuale& bar = Bar();
    EXPECT_EQ(bar.focusWidget(), bar.picTorna);
    Tasto(bar, key);
    ExpectBack();
  }
}

TEST_F(CopiaManuale, ASecondPressWhileItGoesShowsTheCallerOnce) {
  frmCopiaManuale& bar = Bar();
  b.Schermi.SuMostra = [&](Schermata /*screen*/) { bar.picTorna->click(); };
  Clicca(*bar.picTorna);
  ExpectBack();
}

TEST_F(CopiaManuale, TheTopmostStateIsTakenAwayBeforeTheCallerComes) {
  frmCopiaManuale& bar = Bar();
  bool seen = false;
  b.Schermi.SuMostra = [&](Schermata /*screen*/) {
    seen = true;
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(bar.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  };
  Clicca(*bar.picTorna);
  EXPECT_TRUE(seen);
}

TEST_F(CopiaManuale, SpeaksTheLanguageAndFitsInEach) {
  for (const char* language : {"English", "Italiano"}) {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + language + ".lan");
    frmCopiaManuale& bar = Bar();
    EXPECT_NE(Scritta(bar, "lblScheda").find("E:\\"), std::string::npos) << language;
    const auto& words = *bar.lblScheda;
    EXPECT_LE(words.fontMetrics().horizontalAdvance(words.text()), words.width()) << language;
    Clicca(*bar.picTorna);
  }
}

}  // namespace
}  // namespace kvr5
