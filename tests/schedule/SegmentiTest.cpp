#include "schedule/BancoPalinsesto.h"
#include "schedule/OrarioSegmento.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Segments = test::BancoPalinsesto;

TEST_F(Segments, TheFirstOfADayStartsAtMidnightAndEachNextAMinuteAfterTheLatest) {
  Progetto(3, 3);
  Apri();
  AggiungiSegmento(editor);
  EXPECT_EQ(Orario(), "00.00");
  editor.txtOre = "08";
  LasciaOre(editor);
  AggiungiSegmento(editor);
  EXPECT_EQ(Orario(), "08.01");
  EXPECT_THAT(Griglia(), ElementsAre("08:00:00", "08:01:00"));
  EXPECT_EQ(editor.SegmentoCorrente(), 2);
  EXPECT_THAT(Segmenti("scheduler.mdb"), IsEmpty());
}

TEST_F(Segments, TheLatestCountsWhicheverWasMadeLast) {
  Progetto(3, 3);
  Segmento(1, "21.59");
  Segmento(1, "06.00");
  Segmento(2, "23.00");
  Apri();
  EXPECT_EQ(UltimaOraPalinsesto(editor), (Ora{22, 0}));
  editor.ScegliGiorno(2);
  EXPECT_EQ(UltimaOraPalinsesto(editor), (Ora{23, 1}));
  editor.ScegliGiorno(3);
  EXPECT_EQ(UltimaOraPalinsesto(editor), (Ora{0, 0})) << "nothing on that day";
}

TEST_F(Segments, TheOneBehindTheLastMinuteOfADayStartsAtMidnight) {
  Progetto(3, 2);
  Segmento(0, "23.59");
  Apri();
  AggiungiSegmento(editor);
  EXPECT_EQ(Orario(), "00.00");
  EXPECT_THAT(Griglia(), ElementsAre("00:00:00", "23:59:00"));
}

TEST_F(Segments, OfAKvr5StayInHourZeroAndTheDoubleIsToldWhenTheFieldIsLeft) {
  Progetto(4, 2);
  Segmento(0, "00.00");
  Segmento(0, "00.59");
  Apri();
  AggiungiSegmento(editor);
  EXPECT_EQ(Orario(), "00.00");
  EXPECT_EQ(editor.SegmentoCorrente(), 3);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "not by the addition";
  LasciaMin(editor);
  Avviso(Parola("0140020"), Parola("0140021") + " (00.00)");
  EXPECT_THAT(Segmenti(), ElementsAre("1 0 00:00:00", "2 0 00:59:00", "3 0 00:00:00"));
}

TEST_F(Segments, OfAKvr5KeepTheMinutesOfATimeInAnotherHour) {
  Progetto(4, 2);
  Segmento(0, "07.29");
  Apri();
  AggiungiSegmento(editor);
  EXPECT_EQ(Orario(), "00.30");
}

TEST_F(Segments, TheSixtyFirstGoesInTheSixtySecondNot) {
  Progetto(3, 3);
  MoltiSegmenti(1, 60);
  Apri();
  AggiungiSegmento(editor);
  EXPECT_EQ(editor.QuantiSegmenti(), 61);
  EXPECT_TRUE(b.Finestre.Silenzio());
  AggiungiSegmento(editor);
  EXPECT_EQ(editor.QuantiSegmenti(), 61);
  Avviso(Parola("0140025") + " 128)", Parola("0140026"));
  EXPECT_EQ(Segmenti().size(), 61U);
}

TEST_F(Segments, OfAKvr5AreAsManyAndTheMessageSaysSixty) {
  Progetto(4, 2);
  MoltiSegmenti(0, 61);
  Apri();
  AggiungiSegmento(editor);
  Avviso(Parola("0140025") + " 60)", Parola("0140026"));
  EXPECT_EQ(editor.QuantiSegmenti(), 61);
}

TEST_F(Segments, OfAFullDayLeaveTheOtherDaysTheirRoom) {
  Progetto(3, 3);
  MoltiSegmenti(2, 61);
  Apri();
  AggiungiSegmento(editor);
  EXPECT_EQ(editor.QuantiSegmenti(), 1);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Segments, ANewOneHasTheDayIsSelectedAndTakesTheKeyboard) {
  Progetto(3, 3);
  Segmento(1, "10.00");
  Apri();
  editor.ScegliGiorno(4);
  int focus = 0;
  editor.SuFuocoOrario = [&] { ++focus; };
  AggiungiSegmento(editor);
  EXPECT_EQ(focus, 1);
  EXPECT_EQ(editor.SegmentoCorrente(), 2);
  EXPECT_EQ(editor.rsSegmenti().Number("ID"), 2);
  EXPECT_TRUE(editor.Slot().picDettaglio);
  EXPECT_EQ(editor.QuantiSpot(), 0);
  EXPECT_THAT(Segmenti(), ElementsAre("1 1 10:00:00", "2 4 00:00:00"));
}

TEST_F(Segments, ARefusedOneTakesNoKeyboard) {
  Progetto(3, 2);
  MoltiSegmenti(0, 61);
  Apri();
  int focus = 0;
  editor.SuFuocoOrario = [&] { ++focus; };
  AggiungiSegmento(editor);
  b.Finestre.Prossimo();
  EXPECT_EQ(focus, 0);
  EXPECT_EQ(editor.SegmentoCorrente(), 1);
}

TEST_F(Segments, AddedRowsGiveTheirIdAndTheTimeThatWasAskedFor) {
  Progetto(3, 3);
  Apri();
  EXPECT_EQ(AggiungiRigaHead(editor, Ora{8, 30}), 1);
  EXPECT_EQ(AggiungiRigaHead(editor, Ora{23, 59}), 2);
  EXPECT_EQ(AggiungiRigaHead(editor, std::nullopt), 3);
  EXPECT_THAT(Segmenti(), ElementsAre("1 1 08:30:00", "2 1 23:59:00", "3 1 "));
}

/// Removals, with what is asked.
class RemovedSegments : public test::BancoPalinsesto {
 protected:
  /// Three segments of Tuesday with a spot each.
  void SetUp() override {
    Progetto(3, 3);
    for (const char* time : {"08.00", "09.00", "10.00"}) {
      Spot(2, Segmento(2, time), 1, std::string(time, 2) + ".mp3");
    }
    Apri();
    editor.ScegliGiorno(2);
  }
  void Remove(std::int64_t id, Risposta answer = Risposta::Si) {
    EXPECT_TRUE(editor.VaiAlSegmento(id));
    b.Finestre.Rispondi(answer);
    RimuoviSegmento(editor);
    b.Finestre.Prossimo();
  }
};

TEST_F(RemovedSegments, AreAskedAboutInTheseWords) {
  editor.VaiAlSegmento(2);
  b.Finestre.Rispondi(Risposta::No);
  RimuoviSegmento(editor);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, Parola("0140018"));
  EXPECT_EQ(box.Testo, Parola("0140019") + " 09.00?");
  EXPECT_TRUE(box.SiNo);
  EXPECT_FALSE(box.SoloOk);
  EXPECT_TRUE(box.Toglie) << "the keyboard begins on no";
}

TEST_F(RemovedSegments, TakeTheirSpotsAlongAndTheNextOneIsSelected) {
  Remove(2);
  EXPECT_THAT(Segmenti(), ElementsAre("1 2 08:00:00", "3 2 10:00:00"));
  EXPECT_THAT(Tutti(), ElementsAre("2/1/1 08.mp3", "2/3/1 10.mp3"));
  EXPECT_EQ(editor.SegmentoCorrente(), 3);
  EXPECT_EQ(Orario(), "10.00");
  EXPECT_THAT(Dettaglio(), ElementsAre("1 10.mp3"));
}

TEST_F(RemovedSegments, TheLastOfTheListLeavesTheOneBeforeItSelected) {
  Remove(3);
  EXPECT_EQ(editor.SegmentoCorrente(), 2);
  EXPECT_EQ(Orario(), "09.00");
}

TEST_F(RemovedSegments, TheOnlyOneLeavesAnEmptyDayWithoutDetail) {
  for (const std::int64_t id : {1, 2, 3}) Remove(id);
  EXPECT_EQ(editor.SegmentoCorrente(), 0);
  EXPECT_EQ(editor.QuantiSegmenti(), 0);
  EXPECT_FALSE(editor.Slot().picDettaglio);
  EXPECT_EQ(editor.txtOre + editor.txtMin, "");
  EXPECT_THAT(Tutti(), IsEmpty());
  RimuoviSegmento(editor);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "nothing to ask about";
}

TEST_F(RemovedSegments, StayAfterANoAndWhereTheQuestionIsClosed) {
  for (const Risposta answer : {Risposta::No, Risposta::Annulla}) {
    b.C.Stato.RispostaSiNo = 1;  // the answer to another question
    Remove(2, answer);
    EXPECT_EQ(Segmenti().size(), 3U);
    EXPECT_EQ(Tutti().size(), 3U);
    EXPECT_EQ(editor.SegmentoCorrente(), 2);
  }
}

TEST_F(RemovedSegments, TakeAlsoTheSpotsThatBelongToNoDay) {
  editor.VaiAlSegmento(1);
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  ASSERT_EQ(Tutti().front(), "0/4/1 08.mp3");
  Remove(4);
  EXPECT_THAT(Tutti(), ElementsAre("2/1/1 08.mp3", "2/2/1 09.mp3", "2/3/1 10.mp3"));
}

TEST_F(RemovedSegments, NeedACurrentRow) {
  EXPECT_FALSE(editor.rsSegmenti().MoveLast());
  EXPECT_FALSE(editor.rsSegmenti().MoveNext());
  RimuoviSegmento(editor);
  EXPECT_FALSE(editor.rsSegmenti().MoveFirst());
  EXPECT_FALSE(editor.rsSegmenti().MovePrevious());
  RimuoviSegmento(editor);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(Segmenti().size(), 3U);
}

TEST_F(RemovedSegments, LeaveTheOtherDaysAlone) {
  editor.ScegliGiorno(1);
  AggiungiSegmento(editor);
  Remove(4);
  EXPECT_EQ(Segmenti().size(), 3U);
  EXPECT_EQ(editor.lblVociInElenco(), Parola("0140024") + " : 0");
}

}  // namespace
}  // namespace kvr5
