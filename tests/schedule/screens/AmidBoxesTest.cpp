#include <QLabel>
#include <QTest>

#include "core/screens/frmSiNo.h"
#include "schedule/screens/BancoPalinsestoSchermo.h"
#include "support/screens/Frattempo.h"

// What was on its way when a box came up, or comes while one stands there.

namespace kvr5 {
namespace {

using test::Pilota;
using testing::ElementsAre;

class AmidBoxes : public test::BancoPalinsestoSchermo {
 protected:
  AmidBoxes() : BancoPalinsestoSchermo(test::Boxes::Veri) {}
  void SetUp() override {
    Progetto(3, 2);
    Segmento(0, "08.30", {"a.mp3", "b.mp3"});
    Segmento(0, "09.30", {"c.mp3"});
    before_ = Leggi("scheduler.mdb");
    Apri();
  }
  std::string before_;
};

TEST_F(AmidBoxes, ASaveWaitsForTheAnswerToARemoval) {
  {
    const Pilota<frmSiNo> yes([this](frmSiNo& box) {
      EXPECT_EQ(box.windowTitle(), "Remove segment");
      Trova<QAbstractButton>("picSave").click();
      EXPECT_FALSE(progresso.Visibile());
      test::Clicca(*box.cmdSi);
    });
    const Pilota<frmSiNo> no([](frmSiNo& box) {
      EXPECT_EQ(box.windowTitle(), "MP3 files of the schedule");
      test::Clicca(*box.cmdNo);
    });
    Clic("picRimuoviSegmento");
    EXPECT_TRUE(SiChiude());
  }
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("0 09:30"));
  EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
}

TEST_F(AmidBoxes, LeavingWaitsForTheAnswerToARemoval) {
  for (const bool button : {true, false}) {
    {
      const Pilota<frmSiNo> yes([&](frmSiNo& box) {
        button ? Trova<QAbstractButton>("picAnnulla").click() : static_cast<void>(form->close());
        EXPECT_TRUE(form->isVisible());
        test::Clicca(*box.cmdSi);
      });
      Clic("picRimuoviSegmento");
    }
    EXPECT_TRUE(SiChiude());
    EXPECT_TRUE(Leggi("scheduler.mdb") == before_);
    EXPECT_FALSE(Ha("tmpScheduler.mdb"));
    Dimentica();
    Apri();
  }
}

TEST_F(AmidBoxes, AFileIsStillJudgedWhileOneStands) {
  ClicFile("c.mp3");
  const Pilota<frmSiNo> no([this](frmSiNo& box) {
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->Editor().FileMp3Valido; }));
    test::Clicca(*box.cmdNo);
  });
  Clic("picRimuoviSegmento");
  EXPECT_EQ(Griglia().size(), 2U);
}

TEST_F(AmidBoxes, WhatPlaysEndsWhileOneStands) {
  Clic("picPlay", 0);
  const Pilota<frmSiNo> no([this](frmSiNo& box) {
    b.Suono.Finisce(2);
    EXPECT_FALSE(Trova<Coppia>("picPlay_0").accessibleName().endsWith(", playing"));
    test::Clicca(*box.cmdNo);
  });
  Clic("picRimuoviSegmento");
}

TEST_F(AmidBoxes, FilesThatAreDroppedMeanwhileAreNotTaken) {
  const Pilota<frmSiNo> no([this](frmSiNo& box) {
    LasciaSulloSlot(0, {Host("c.mp3")});
    test::Clicca(*box.cmdNo);
  });
  Clic("picRimuoviSegmento");
  QCoreApplication::processEvents();
  EXPECT_THAT(Dettaglio(), ElementsAre("a.mp3", "b.mp3"));
}

TEST_F(AmidBoxes, AFileThatIsMissingIsToldOnceAndTheEditorGoesOn) {
  std::filesystem::remove(Host("a.mp3"));
  {
    const Pilota<frmSiNo> ok([](frmSiNo& box) {
      EXPECT_EQ(box.windowTitle(), "File missing");
      test::Tasto(box, Qt::Key_Return);
    });
    Clic("picPlay", 0);
  }
  EXPECT_FALSE(test::PuntatoreOccupato());
  Clic("picRimuoviSpot", 0);
  EXPECT_THAT(Dettaglio(), ElementsAre("b.mp3"));
}

TEST_F(AmidBoxes, ALeaveAmidTheStopOfAPlayerTakesNothingAlong) {
  Clic("picPlay", 0);
  {
    // The stop lets events run between the two players.
    const test::Frattempo leave([] { return true; }, [this] { form->close(); });
    Clic("picStop", 0);
  }
  EXPECT_TRUE(SiChiude());
  EXPECT_FALSE(Ha("tmpScheduler.mdb"));
}

}  // namespace
}  // namespace kvr5
