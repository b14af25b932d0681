#include <QLabel>
#include <QTest>
#include <QWindow>

#include "core/screens/frmSiNo.h"
#include "schedule/screens/BancoPalinsestoSchermo.h"

// A start time that was typed, and what comes next: nothing of both may be lost.

namespace kvr5 {
namespace {

using test::Pilota;
using testing::ElementsAre;

class TypedTime : public test::BancoPalinsestoSchermo {
 protected:
  explicit TypedTime(test::Boxes boxes = test::Boxes::Finti) : BancoPalinsestoSchermo(boxes) {}
  void SetUp() override {
    Progetto(3, 3);
    Segmento(1, "08.30", {"a.mp3", "b.mp3"});
    Segmento(1, "12.00", {"c.mp3"});
    Segmento(1, "20.15", {"d.mp3"});
    Segmento(2, "09.00");
    Apri();
  }
  /// The field in the picture of the week in which a segment of Monday stands.
  QPoint InTheWeek(int hours) const {
    SegmentoVisto segment;
    segment.Giorno = 1;
    segment.Inizio = Ora{hours, 0};
    return form->picSettimana->Campo(segment).center();
  }
};

TEST_F(TypedTime, IsKeptWhenASpotIsMovedByItsArrow) {
  Digita(Min(), "47");
  ClicFreccia(0, true);
  EXPECT_THAT(Dettaglio(), ElementsAre("b.mp3", "a.mp3"));
  EXPECT_TRUE(Orari({"08:47", "12:00", "20:15"}));
  EXPECT_EQ(Orario(), "08:47");
}

TEST_F(TypedTime, IsKeptWhenAnotherSegmentIsPickedInTheWeek) {
  Digita(Min(), "47");
  test::CliccaA(*form->picSettimana, InTheWeek(20));
  EXPECT_EQ(Orario(), "20:15");
  EXPECT_TRUE(Orari({"08:47", "12:00", "20:15"}));
}

TEST_F(TypedTime, IsKeptWhenAFileIsDroppedOnASlot) {
  Digita(Min(), "47");
  LasciaSulloSlot(2, {Host("d.mp3")});
  EXPECT_THAT(Dettaglio(), ElementsAre("a.mp3", "b.mp3", "d.mp3"));
  EXPECT_TRUE(Min().text() == "47") << "still being typed, or stored";
  Min().setFocus();
  Premi(Qt::Key_Tab);
  EXPECT_TRUE(Orari({"08:47", "12:00", "20:15"}));
}

TEST_F(TypedTime, IsKeptWhenASpotIsRemovedOrAFileAdded) {
  Digita(Min(), "47");
  Clic("picRimuoviSpot", 0);
  EXPECT_THAT(Griglia(), ElementsAre("08:47 b.mp3", "12:00 c.mp3", "20:15 d.mp3"));
  Digita(Min(), "48");
  DoppioFile("d.mp3");
  EXPECT_THAT(Griglia(), ElementsAre("08:48 b.mp3 d.mp3", "12:00 c.mp3", "20:15 d.mp3"));
}

TEST_F(TypedTime, IsKeptWhenItsSegmentIsDuplicated) {
  Digita(Min(), "47");
  Clic("picCopiaSegmento");
  b.Finestre.Prossimo();
  EXPECT_THAT(Griglia(), testing::IsSupersetOf({"08:47 a.mp3 b.mp3", "08:47", "12:00 c.mp3"}));
}

TEST_F(TypedTime, IsKeptWhenTheDayChanges) {
  Digita(Min(), "47");
  test::ScegliColMouse(Giorni(), 1);
  EXPECT_THAT(Griglia(), ElementsAre("09:00"));
  test::ScegliColMouse(Giorni(), 0);
  EXPECT_TRUE(Orari({"08:47", "12:00", "20:15"}));
}

TEST_F(TypedTime, OfASegmentThatIsRemovedIsNobodysElse) {
  Digita(Ore(), "13");
  b.Finestre.Rispondi(Risposta::Si);
  Clic("picRimuoviSegmento");
  EXPECT_THAT(b.Finestre.Prossimo().Testo, testing::EndsWith("the segment of 13.30?"));
  QCoreApplication::processEvents();
  EXPECT_THAT(Griglia(), testing::UnorderedElementsAre("12:00 c.mp3", "20:15 d.mp3"));
}

/// The same with the real box, which takes the mouse and the keyboard away.
class TypedTimeBoxed : public TypedTime {
 protected:
  TypedTimeBoxed() : TypedTime(test::Boxes::Veri) {}
  /// Types into the selected segment, the first one, what the second has.
  void TypeTheSame() {
    DigitaOrario("12", "01");
    ASSERT_TRUE(Orari({"12:00", "12:01", "20:15"}));
    Digita(Min(), "00");
  }
  Pilota<frmSiNo> Confirm() {
    return Pilota<frmSiNo>([this](frmSiNo& box) {
      title_ = box.windowTitle().toStdString();
      test::Tasto(box, Qt::Key_Return);
    });
  }
  std::string title_;
};

TEST_F(TypedTimeBoxed, IsToldWhenAnotherSegmentIsClickedWhichIsSelectedThen) {
  TypeTheSame();
  {
    const auto confirm = Confirm();
    ClicSegmento(2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return confirm.Usato(); }));
  }
  EXPECT_EQ(title_, "Same start time");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Orario() == "20:15"; }));
  EXPECT_EQ(Scelto(), 2);
  // The button isn't taken for one that is still held down.
  QTest::mouseMove(form->windowHandle(),
                   Grid().viewport()->mapTo(
                       form.data(), Grid().visualRect(Grid().model()->index(0, 0)).center()));
  QCoreApplication::processEvents();
  EXPECT_EQ(Scelto(), 2);
  ClicSegmento(0);
  EXPECT_EQ(Scelto(), 0) << "and the next click is a click";
}

TEST_F(TypedTimeBoxed, IsToldWhenAButtonIsClickedWhoseCommandFollows) {
  TypeTheSame();
  {
    const auto confirm = Confirm();
    Clic("picAggiungiSegmento");
  }
  EXPECT_THAT(Griglia(), testing::UnorderedElementsAre("12:00 c.mp3", "12:00 a.mp3 b.mp3",
                                                       "20:15 d.mp3", "20:16"));
  EXPECT_EQ(Scelto(), 3);
  EXPECT_FALSE(form->Segmenti->picAggiungiSegmento->isDown());
}

TEST_F(TypedTimeBoxed, IsToldWhenAFileIsClickedWhichIsPickedThen) {
  TypeTheSame();
  {
    const auto confirm = Confirm();
    ClicFile("d.mp3");
    EXPECT_TRUE(QTest::qWaitFor([&] { return confirm.Usato(); }));
  }
  EXPECT_EQ(form->fraFile->Corrente(), "d.mp3");
  EXPECT_TRUE(QTest::qWaitFor([this] { return form->Editor().FileMp3Valido; }));
  ClicFile("c.mp3");
  EXPECT_EQ(form->fraFile->Scelti().size(), 1U);
}

TEST_F(TypedTimeBoxed, IsToldWhenTheDaysAreOpenedAndOneCanBeChosenStill) {
  TypeTheSame();
  {
    const auto confirm = Confirm();
    test::Clicca(Giorni());
    EXPECT_TRUE(QTest::qWaitFor([&] { return confirm.Usato(); }));
  }
  EXPECT_TRUE(Orari({"12:00", "12:00", "20:15"}));
  Giorni().hidePopup();
  test::ScegliColMouse(Giorni(), 1);
  EXPECT_EQ(Giorno(), 2);
}

TEST_F(TypedTimeBoxed, IsToldOnceAtTheFieldThatTabLeaves) {
  TypeTheSame();
  {
    const auto confirm = Confirm();
    Premi(Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return confirm.Usato(); }));
  }
  EXPECT_EQ(Fuoco(), &Spots()) << "the focus is where Tab went";
  EXPECT_EQ(Orario(), "12:00");
}

TEST_F(TypedTimeBoxed, IsToldBeforeASaveThatGoesOn) {
  TypeTheSame();
  std::string first;
  {
    const Pilota<frmSiNo> confirm([&](frmSiNo& box) {
      first = box.windowTitle().toStdString();
      test::Tasto(box, Qt::Key_Return);
    });
    const Pilota<frmSiNo> no([](frmSiNo& box) { test::Clicca(box, "cmdNo"); });
    Clic("picSave");
  }
  EXPECT_EQ(first, "Same start time");
  EXPECT_TRUE(SiChiude());
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("1 12:00", "1 12:00", "1 20:15", "2 09:00"));
}

TEST_F(TypedTimeBoxed, IsToldBeforeLeavingWhichGoesOn) {
  TypeTheSame();
  {
    const auto confirm = Confirm();
    Clic("picAnnulla");
  }
  EXPECT_TRUE(SiChiude());
  EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
}

TEST_F(TypedTimeBoxed, IsToldInABoxWhileTheWindowIsClosed) {
  TypeTheSame();
  {
    const Pilota<frmSiNo> close([this](frmSiNo& box) {
      form->close();
      test::Tasto(box, Qt::Key_Return);
    });
    Premi(Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return close.Usato(); }));
  }
  EXPECT_TRUE(SiChiude());
  EXPECT_FALSE(Ha("tmpScheduler.mdb"));
}

}  // namespace
}  // namespace kvr5
