#include "schedule/BancoPalinsesto.h"
#include "schedule/OrarioSegmento.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(StartTimeKeys, ControlKeysAndDigitsPass) {
  for (char32_t key = 0; key < 14; ++key) EXPECT_TRUE(TastoOrario(key));
  for (const char32_t key : std::u32string(U"0123456789")) EXPECT_TRUE(TastoOrario(key));
}

TEST(StartTimeKeys, AllElseIsDropped) {
  for (char32_t key = 14; key < 0x250; ++key) {
    EXPECT_EQ(TastoOrario(key), key >= U'0' && key <= U'9') << static_cast<unsigned>(key);
  }
  // Digits of other scripts.
  for (const char32_t key : std::u32string(U"\u0663\uFF11\U0001D7CE")) {
    EXPECT_FALSE(TastoOrario(key)) << static_cast<unsigned>(key);
  }
}

TEST(StartTimeKeys, ATextTypedOverAnotherLeavesItsDigits) {
  EXPECT_EQ(DigitatoSopra("08", "1"), "1");
  EXPECT_EQ(DigitatoSopra("08", "1a2"), "12");
  EXPECT_EQ(DigitatoSopra("08", "ab"), "08");
  EXPECT_EQ(DigitatoSopra("08", ""), "08");
}

/// Monday with segments at 08.30 and 12.00, the first one selected; one at 12.00 on Tuesday.
class StartTime : public test::BancoPalinsesto {
 protected:
  void SetUp() override {
    Progetto(3, 3);
    Segmento(1, "08.30");
    Segmento(1, "12.00");
    Segmento(2, "12.15");
    Apri();
  }
  std::string LeaveHours(const std::string& text) {
    editor.txtOre = text;
    LasciaOre(editor);
    return editor.txtOre;
  }
  std::string LeaveMinutes(const std::string& text) {
    editor.txtMin = text;
    LasciaMin(editor);
    return editor.txtMin;
  }
};

TEST_F(StartTime, OfTheHoursIsMadeTwoDigitsOrZero) {
  EXPECT_EQ(LeaveHours("7"), "07");
  EXPECT_EQ(LeaveHours("0"), "00");
  EXPECT_EQ(LeaveHours("23"), "23");
  EXPECT_EQ(LeaveHours("007"), "07");
  for (const char* text : {"24", "25", "60", "99", "100000", "", " ", "ab", "1x", "--"}) {
    LeaveHours("11");
    EXPECT_EQ(LeaveHours(text), "00") << "'" << text << "'";
  }
}

TEST_F(StartTime, OfTheMinutesIsMadeTwoDigitsOrZero) {
  EXPECT_EQ(LeaveMinutes("5"), "05");
  EXPECT_EQ(LeaveMinutes("24"), "24") << "more than there are hours";
  EXPECT_EQ(LeaveMinutes("59"), "59");
  for (const char* text : {"60", "75", "99", "100", "", "ab"}) {
    LeaveMinutes("11");
    EXPECT_EQ(LeaveMinutes(text), "00") << "'" << text << "'";
  }
}

TEST_F(StartTime, SeventyFiveMinutesAreSavedAsNone) {
  LeaveMinutes("75");
  EXPECT_THAT(Segmenti(), ElementsAre("1 1 08:00:00", "2 1 12:00:00", "3 2 12:15:00"));
}

TEST_F(StartTime, IsSavedFromBothFieldsWhicheverIsLeft) {
  editor.txtOre = "9";
  LeaveMinutes("5");
  EXPECT_EQ(Segmenti().front(), "1 1 09:05:00");
  editor.txtMin = "7";
  LeaveHours("10");
  EXPECT_EQ(Segmenti().front(), "1 1 10:07:00");
  EXPECT_EQ(Orario(), "10.07") << "the other field is shown anew";
}

TEST_F(StartTime, SortsTheListAndStaysTheSelectedOne) {
  LeaveHours("13");
  EXPECT_THAT(Griglia(), ElementsAre("12:00:00", "13:30:00"));
  EXPECT_EQ(editor.SegmentoCorrente(), 1);
  EXPECT_EQ(editor.rsSegmenti().AbsolutePosition(), 2);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(StartTime, ThatAnotherOfTheDayHasIsSavedAndToldAlone) {
  LeaveMinutes("0");
  LeaveHours("12");
  Avviso(Parola("0140020"), Parola("0140021") + " (12.00)");
  EXPECT_THAT(Segmenti(), ElementsAre("1 1 12:00:00", "2 1 12:00:00", "3 2 12:15:00"));
  EXPECT_EQ(editor.SegmentoCorrente(), 1);
}

TEST_F(StartTime, ThatIsDoubledIsToldEachTimeAFieldIsLeft) {
  LeaveMinutes("0");
  LeaveHours("12");
  LasciaMin(editor);
  LasciaOre(editor);
  for (int i = 0; i < 3; ++i) Avviso(Parola("0140020"), Parola("0140021") + " (12.00)");
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(StartTime, IsSavedBeforeTheWarning) {
  LeaveMinutes("0");
  b.Finestre.SuBox = [&](const test::BoxVisto&) { EXPECT_EQ(Segmenti().front(), "1 1 12:00:00"); };
  LeaveHours("12");
  b.Finestre.Prossimo();
}

TEST_F(StartTime, OfAnotherDayIsNoDouble) {
  editor.txtMin = "15";
  LeaveHours("12");
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(StartTime, SavedWithTheArgumentIsNotLookedAt) {
  editor.txtOre = "12";
  editor.txtMin = "0";
  SalvaOrarioSegmento(editor, true);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(Segmenti().front(), "1 1 12:00:00");
}

TEST_F(StartTime, WithAFieldThatIsNoNumberIsNotSaved) {
  editor.txtOre = "x";
  LeaveMinutes("45");
  editor.txtOre = "09";
  editor.txtMin = "";
  LeaveHours("9");
  EXPECT_EQ(Segmenti().front(), "1 1 08:30:00");
}

TEST_F(StartTime, BelowZeroIsRefusedByTheDatabase) {
  LeaveHours("-5");
  EXPECT_EQ(Segmenti().front(), "1 1 08:30:00");
  EXPECT_EQ(Orario(), "08.30") << "the list as it was";
}

TEST_F(StartTime, WithoutASegmentIsNotSaved) {
  editor.ScegliGiorno(7);
  LeaveHours("12");
  LeaveMinutes("0");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_THAT(Segmenti(), ElementsAre("1 1 08:30:00", "2 1 12:00:00", "3 2 12:15:00"));
}

TEST_F(StartTime, IsShownOfTheRowThatIsCurrent) {
  EXPECT_EQ(Orario(), "08.30");
  EXPECT_TRUE(editor.VaiAlSegmento(2));
  EXPECT_EQ(Orario(), "12.00");
  editor.ScegliGiorno(2);
  EXPECT_EQ(Orario(), "12.15");
}

TEST_F(StartTime, ThatIsLeftAsItWasChangesNothing) {
  const Righe before = Segmenti();
  const int changes = editor.Modifiche();
  LasciaOre(editor);
  LasciaMin(editor);
  EXPECT_EQ(Segmenti(), before);
  EXPECT_EQ(editor.Modifiche(), changes);
}

TEST_F(StartTime, ThatADateStandsInFrontOfIsShownWithoutIt) {
  editor.Chiudi();
  Sql("UPDATE HEAD SET StartTime='2019-03-04 21:05:00' WHERE ID=1");
  Apri();
  EXPECT_TRUE(editor.VaiAlSegmento(1));
  EXPECT_EQ(Orario(), "21.05");
}

TEST_F(StartTime, ThatIsMissingIsShownAsNothingAndTheFirstNumberOfBothFieldsIsSaved) {
  editor.Chiudi();
  Sql("UPDATE HEAD SET StartTime=NULL WHERE ID=1");
  Apri();
  EXPECT_EQ(editor.SegmentoCorrente(), 1) << "it stands before all times";
  EXPECT_EQ(editor.txtOre + editor.txtMin, "");
  LeaveHours("8");
  EXPECT_EQ(Segmenti().front(), "1 1 ") << "one field alone is no time";
  LeaveMinutes("");
  EXPECT_EQ(Segmenti().front(), "1 1 08:00:00");
}

TEST_F(StartTime, OfAKvr5StaysInHourZeroAndItsMinutesAreTheUsersOwn) {
  Progetto(4, 2);
  editor.Chiudi();
  Segmento(0, "00.10");
  Apri();
  EXPECT_EQ(LeaveMinutes("59"), "59");
  EXPECT_THAT(Segmenti(), ElementsAre("1 0 00:59:00"));
}

}  // namespace
}  // namespace kvr5
