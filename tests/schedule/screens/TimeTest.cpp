#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <QWindow>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// The start of a segment, typed into its two fields.

namespace kvr5 {
namespace {

using testing::ElementsAre;

class StartTime : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override {
    Progetto(3, 2);
    Segmento(0, "08.30", {"a.mp3"});
    Segmento(0, "12.00", {"b.mp3"});
    Segmento(0, "20.15", {"c.mp3"});
    Apri();
  }
  void ExpectSameTold(const std::string& time) {
    Avviso(Parola("0140020"), Parola("0140021") + " (" + time + ")");
  }
  bool Said() {
    return QTest::qWaitFor([this] { return !b.Finestre.Silenzio(); });
  }
  static bool Whole(const CampoOra& field) {
    return QTest::qWaitFor([&field] { return field.selectedText() == field.text(); });
  }
};

TEST_F(StartTime, IsSelectedWholeOnEntryByMouseAndKeys) {
  test::Clicca(Ore());
  EXPECT_EQ(Fuoco(), &Ore());
  EXPECT_TRUE(Whole(Ore()));
  Premi(Qt::Key_Tab);
  EXPECT_EQ(Fuoco(), &Min());
  EXPECT_TRUE(Whole(Min()));
  Premi(Qt::Key_Backtab);
  EXPECT_TRUE(Whole(Ore()));
  test::Clicca(Min());
  EXPECT_TRUE(Whole(Min()));
  EXPECT_EQ(Orario(), "08:30");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(Modifiche(), 0) << "nothing was changed";
}

TEST_F(StartTime, TakesDigitsOnly) {
  Digita(Ore(), "a1 b-.,:+2e");
  QKeyEvent accented(QEvent::KeyPress, Qt::Key_Egrave, Qt::NoModifier, QStringLiteral("è"));
  QCoreApplication::sendEvent(&Ore(), &accented);
  EXPECT_EQ(Ore().text(), "12");
  Digita(Min(), "x");
  EXPECT_EQ(Min().text(), "30") << "a dropped key doesn't take the selected text away";
}

TEST_F(StartTime, LetsControlKeysPass) {
  Digita(Min(), "47");
  Premi(Qt::Key_Backspace);
  EXPECT_EQ(Min().text(), "4");
  Premi(Qt::Key_Home);
  Premi(Qt::Key_Delete);
  EXPECT_EQ(Min().text(), "");
  test::Scrivi(*form, "59");
  Premi(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Min().selectedText(), "59");
  Premi(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "59");
  Premi(Qt::Key_Left);
  EXPECT_FALSE(Min().hasSelectedText());
}

TEST_F(StartTime, GoesOnWithEnterFromHourToMinuteToSpots) {
  Digita(Ore(), "9");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Fuoco(), &Min());
  EXPECT_TRUE(Whole(Min()));
  EXPECT_TRUE(Orari({"09:30", "12:00", "20:15"}));
  EXPECT_EQ(Ore().text(), "09");
  EXPECT_EQ(Fuoco(), &Min()) << "the list that is sorted anew doesn't take the focus";
  test::Scrivi(*form, "5");
  Premi(Qt::Key_Enter);
  EXPECT_EQ(Fuoco(), &Spots());
  EXPECT_TRUE(Orari({"09:05", "12:00", "20:15"}));
  EXPECT_EQ(Orario(), "09:05");
  EXPECT_EQ(Fuoco(), &Spots());
  EXPECT_THAT(Teste(), ElementsAre("0 09:05", "0 12:00", "0 20:15"));
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("0 08:30", "0 12:00", "0 20:15"));
  EXPECT_EQ(Modifiche(), 2);
}

TEST_F(StartTime, WhatIsNoTimeBecomesZeroAndIsStored) {
  for (const char* typed : {"75", "60", "999", "4000000000000000000000"}) {
    SCOPED_TRACE(typed);
    DigitaOrario("08", "15");
    ASSERT_TRUE(Orari({"08:15", "12:00", "20:15"}));
    Digita(Min(), typed);
    Premi(Qt::Key_Tab);
    EXPECT_TRUE(Orari({"08:00", "12:00", "20:15"}));
    EXPECT_EQ(Orario(), "08:00");
    EXPECT_EQ(Teste().front(), "0 08:00");
  }
  Digita(Ore(), "24");
  Premi(Qt::Key_Tab);
  EXPECT_TRUE(Orari({"00:00", "12:00", "20:15"}));
  EXPECT_EQ(Orario(), "00:00");
  Digita(Ore(), "23");
  Premi(Qt::Key_Tab);
  EXPECT_TRUE(Orari({"12:00", "20:15", "23:00"}));
}

TEST_F(StartTime, AnEmptyFieldBecomesZero) {
  Digita(Min(), "");
  Premi(Qt::Key_Backspace);
  ASSERT_EQ(Min().text(), "");
  Premi(Qt::Key_Tab);
  EXPECT_TRUE(Orari({"08:00", "12:00", "20:15"}));
  EXPECT_EQ(Orario(), "08:00");
}

TEST_F(StartTime, PastedNonsenseBecomesZero) {
  for (const char* words : {"abc", "1x", "noon", "8:30"}) {
    SCOPED_TRACE(words);
    DigitaOrario("08", "15");
    ASSERT_TRUE(Orari({"08:15", "12:00", "20:15"}));
    QGuiApplication::clipboard()->setText(QLatin1String(words));
    Digita(Min(), "");
    Min().paste();
    EXPECT_EQ(Min().text(), QLatin1String(words));
    Premi(Qt::Key_Tab);
    EXPECT_TRUE(Orari({"08:00", "12:00", "20:15"}));
    EXPECT_EQ(Orario(), "08:00");
  }
}

TEST_F(StartTime, IsStoredWhenTabLeavesTheField) {
  Digita(Ore(), "13");
  Premi(Qt::Key_Tab);
  EXPECT_TRUE(Orari({"12:00", "13:30", "20:15"}));
  EXPECT_EQ(Scelto(), 1) << "the segment stays selected at its new place";
  EXPECT_THAT(Dettaglio(), ElementsAre("a.mp3"));
  EXPECT_EQ(Fuoco(), &Min());
}

TEST_F(StartTime, IsStoredWhenAnotherControlIsClicked) {
  Digita(Min(), "31");
  test::Clicca(Pane());
  EXPECT_TRUE(Orari({"08:31", "12:00", "20:15"}));
  Digita(Min(), "32");
  Clic("txtCerca");
  EXPECT_TRUE(Orari({"08:32", "12:00", "20:15"}));
  Digita(Min(), "33");
  Clic("picReport");
  EXPECT_TRUE(Orari({"08:33", "12:00", "20:15"}));
  EXPECT_THAT(b.Cartella.Read("program/Projects/Hall/Scheduler.htm"), testing::HasSubstr("33"))
      << "before the command reads it";
  EXPECT_EQ(b.Documenti.Aperti.size(), 1U);
}

TEST_F(StartTime, IsStoredWhenAClickGoesBesideAllControls) {
  Digita(Min(), "31");
  test::CliccaA(*form, {2, 2});
  EXPECT_NE(Fuoco(), &Min());
  EXPECT_TRUE(Orari({"08:31", "12:00", "20:15"}));
  Digita(Min(), "32");
  test::Clicca(Trova<QWidget>("lblDettaglioPalinsesto"));
  EXPECT_TRUE(Orari({"08:32", "12:00", "20:15"})) << "a label is none";
}

TEST_F(StartTime, IsStoredWhenAnotherSegmentIsClicked) {
  Digita(Ore(), "22");
  ClicSegmento(2);  // 20:15, which comes second
  EXPECT_TRUE(Orari({"12:00", "20:15", "22:30"}));
  EXPECT_EQ(Scelto(), 1);
  EXPECT_EQ(Orario(), "20:15");
  EXPECT_THAT(Dettaglio(), ElementsAre("c.mp3"));
  EXPECT_THAT(Griglia(), ElementsAre("12:00 b.mp3", "20:15 c.mp3", "22:30 a.mp3"));
  EXPECT_EQ(Fuoco(), &Grid());
  Premi(Qt::Key_Up);
  EXPECT_EQ(Scelto(), 0) << "and the keys go on from there";
}

TEST_F(StartTime, IsStoredWhenTheSegmentItselfIsClicked) {
  Digita(Ore(), "13");
  ClicSegmento(0);
  EXPECT_TRUE(Orari({"12:00", "13:30", "20:15"}));
  EXPECT_EQ(Scelto(), 1);
  EXPECT_THAT(Dettaglio(), ElementsAre("a.mp3"));
}

TEST_F(StartTime, ThatEqualsAnothersIsStoredAndToldBeforeTheClickedSegmentShows) {
  Digita(Ore(), "12");
  Premi(Qt::Key_Tab);
  ASSERT_TRUE(Orari({"12:00", "12:30", "20:15"}));
  test::Scrivi(*form, "00");
  std::int64_t selected = 0;
  b.Finestre.SuBox = [&](const test::BoxVisto&) { selected = form->Editor().SegmentoCorrente(); };
  ClicSegmento(2);
  ASSERT_TRUE(Said());
  EXPECT_EQ(selected, 1) << "while the segment is still there that it is about";
  ExpectSameTold("12.00");
  EXPECT_TRUE(b.Finestre.Silenzio()) << "once";
  EXPECT_TRUE(Orari({"12:00", "12:00", "20:15"}));
  EXPECT_EQ(Scelto(), 2);
  EXPECT_EQ(Orario(), "20:15");
}

TEST_F(StartTime, ThatEqualsAnothersIsToldBeforeTheCommandOfTheClick) {
  DigitaOrario("20", "16");
  Digita(Min(), "15");
  std::size_t rows = 0;
  b.Finestre.SuBox = [&](const test::BoxVisto&) { rows = Teste().size(); };
  Clic("picAggiungiSegmento");
  EXPECT_EQ(rows, 3U);
  ExpectSameTold("20.15");
  EXPECT_TRUE(Orari({"12:00", "20:15", "20:15", "20:16"})) << "and the click isn't lost";
  EXPECT_EQ(Scelto(), 3);
  EXPECT_EQ(Fuoco(), &Ore());
}

TEST_F(StartTime, ThatEqualsAnothersOnADayIsToldForThatDayOnly) {
  Dimentica();
  Progetto(3, 3);
  Segmento(1, "08.00");
  Segmento(2, "09.00");
  Apri();
  DigitaOrario("09", "00");
  EXPECT_TRUE(Orari({"09:00"}));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(StartTime, IsToldOfAgainAtEachFieldThatIsLeft) {
  DigitaOrario("12", "00");
  ASSERT_TRUE(Orari({"12:00", "12:00", "20:15"}));
  ExpectSameTold("12.00");
  EXPECT_TRUE(b.Finestre.Silenzio()) << "12.30 was no other's";
  test::Clicca(Ore());
  Premi(Qt::Key_Tab);
  ASSERT_TRUE(Said());
  ExpectSameTold("12.00");
  Premi(Qt::Key_Tab);
  ASSERT_TRUE(Said());
  ExpectSameTold("12.00");
}

TEST_F(StartTime, IsSavedWithTheRestWhenSaveIsPressedRightAfterTheKeys) {
  Digita(Min(), "47");
  b.Finestre.Rispondi(Risposta::No);
  Clic("picSave");
  EXPECT_TRUE(SiChiude());
  b.Finestre.Prossimo();
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("0 08:47", "0 12:00", "0 20:15"));
  EXPECT_THAT(Leggi("PALIN.TXT"), testing::StartsWith("08:47\tF0-0011\t\r\n"));
}

TEST_F(StartTime, IsToldOfBeforeASaveAndBeforeLeaving) {
  DigitaOrario("20", "16");
  Digita(Min(), "15");
  Clic("picAnnulla");
  EXPECT_TRUE(SiChiude());
  ExpectSameTold("20.15");
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("0 08:30", "0 12:00", "0 20:15"));
  Dimentica();
  Apri();
  DigitaOrario("20", "16");
  Digita(Min(), "15");
  b.Finestre.Rispondi(Risposta::No);
  Clic("picSave");
  EXPECT_TRUE(SiChiude());
  ExpectSameTold("20.15");
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "MP3 files of the schedule");
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("0 20:15", "0 12:00", "0 20:15"));
}

TEST_F(StartTime, IsNotCheckedWhenTheWindowAloneLosesTheKeyboardOrAMenuOpens) {
  Digita(Min(), "7");
  for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
    QFocusEvent out(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(&Min(), &out);
    QCoreApplication::processEvents();
    EXPECT_EQ(Min().text(), "7");
    QFocusEvent in(QEvent::FocusIn, reason);
    QCoreApplication::sendEvent(&Min(), &in);
    QCoreApplication::processEvents();
    EXPECT_FALSE(Min().hasSelectedText()) << "typing goes on where it was";
  }
  Attiva();
  EXPECT_EQ(Min().text(), "7");
  test::Scrivi(*form, "1");
  EXPECT_EQ(Min().text(), "71");
}

TEST_F(StartTime, TypedFasterThanItIsStoredIsTakenWhole) {
  Digita(Ore(), "13");
  // All at once, as from a scanner or after a pause of the program.
  const auto key = [](QWidget& field, Qt::Key which, const char* text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QCoreApplication::postEvent(&field,
                                  new QKeyEvent(type, which, Qt::NoModifier, QLatin1String(text)));
    }
  };
  key(Ore(), Qt::Key_Return, "\r");
  key(Min(), Qt::Key_1, "1");
  key(Min(), Qt::Key_5, "5");
  key(Min(), Qt::Key_Return, "\r");
  EXPECT_TRUE(Orari({"12:00", "13:15", "20:15"}));
  EXPECT_EQ(Orario(), "13:15");
  EXPECT_EQ(Fuoco(), &Spots());
}

TEST_F(StartTime, IsStoredWhenAShortcutLeadsElsewhere) {
  Digita(Min(), "31");
  Premi(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Fuoco(), &Trova<QWidget>("txtCerca"));
  EXPECT_TRUE(Orari({"08:31", "12:00", "20:15"}));
}

TEST_F(StartTime, OfASegmentWithoutOneIsStoredOnceBothFieldsHoldANumber) {
  Dimentica();
  const std::int64_t id = Segmento(0, "");
  Apri();
  ASSERT_EQ(form->Editor().SegmentoCorrente(), id);
  ASSERT_EQ(Orario(), ":");
  Digita(Ore(), "9");
  Premi(Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Ore().text() == "09"; }));
  EXPECT_TRUE(Orari({"--:--", "08:30", "12:00", "20:15"})) << "the minutes are no number yet";
  test::Scrivi(*form, "5");
  Premi(Qt::Key_Tab);
  EXPECT_TRUE(Orari({"08:30", "09:05", "12:00", "20:15"}));
  EXPECT_EQ(Scelto(), 1);
  EXPECT_EQ(Orario(), "09:05");
}

TEST_F(StartTime, OfAKvr5IsTypedByItsMinutesOnly) {
  Dimentica();
  Progetto(4, 2);
  Segmento(0, "00.10");
  Segmento(0, "00.20");
  Apri();
  test::CliccaA(Ore(), Ore().rect().center());
  EXPECT_NE(Fuoco(), &Ore());
  Digita(Min(), "25");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Fuoco(), &Spots());
  EXPECT_TRUE(Orari({"00:20", "00:25"}));
  EXPECT_EQ(Scelto(), 1);
  EXPECT_EQ(Orario(), "00:25");
}

}  // namespace
}  // namespace kvr5
