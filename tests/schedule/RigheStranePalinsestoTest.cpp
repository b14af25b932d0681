#include "schedule/BancoSalvaPalinsesto.h"
#include "schedule/OrarioSegmento.h"
#include "schedule/RighePalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Monday with segments at 01.00, 02.00 and 03.00 of three spots each, 1a.mp3 to 3c.mp3, and one of
/// Tuesday; then what another program made of them.
class OddSchedule : public test::BancoSalvaPalinsesto {
 protected:
  void Make(std::int16_t type, std::int16_t mode) {
    Progetto(type, mode);
    const int day = mode == 3 ? 1 : 0;
    for (const char* time : {"01.00", "02.00", "03.00"}) {
      const auto segment = Segmento(day, time);
      for (int i = 1; i <= 3; ++i) {
        Spot(day, segment, i, std::to_string(segment) + static_cast<char>('`' + i) + ".mp3");
      }
    }
    Spot(2, Segmento(2, "12.00"), 1, "tue.mp3");
  }
  void SetUp() override { Make(3, 3); }
  void Spoil(const std::string& statement) { Sql(statement); }
};

TEST_F(OddSchedule, WithMoreThanEightSpotsShowsEightAndNamesThemAll) {
  for (int i = 4; i <= 10; ++i) Spot(1, 1, i, "m" + std::to_string(i) + ".mp3");
  Apri();
  EXPECT_EQ(editor.QuantiSpot(), 10);
  EXPECT_EQ(editor.Slot(), AggiornaSlotSpot(8, 3, false));
  EXPECT_EQ(Griglia().front(), "01:00:00 1a.mp3 1b.mp3 1c.mp3 m4.mp3 m5.mp3 m6.mp3 m7.mp3 m8.mp3");
  SalvaAperto();
  EXPECT_TRUE(Leggi("1.pal").starts_with(
      "01:00\tF1-0011\t\tF1-0012\t\tF1-0013\t\tF1-0014\t\tF1-0015\t\tF1-0016\t\tF1-0017\t\t"
      "F1-0018\t\tF1-0019\t\tF1-00110\t\r\n"));
}

TEST_F(OddSchedule, WithMoreThanEightSpotsBringsTheNinthForwardAsOthersGo) {
  Spot(1, 1, 9, "ninth.mp3");
  Apri();
  RimuoviSpot(editor, 0);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 1b.mp3", "2 1c.mp3", "3 ninth.mp3"));
}

TEST_F(OddSchedule, WithAPlaceZeroShowsItFirstAndItsSlotHoldsThePlaceOne) {
  Spoil("UPDATE List SET Pos=Pos-1 WHERE IDSched=1");
  Apri();
  EXPECT_THAT(Dettaglio(), ElementsAre("0 1a.mp3", "1 1b.mp3", "2 1c.mp3"));
  EXPECT_EQ(Griglia().front(), "01:00:00 1b.mp3 1c.mp3");
  RimuoviSpot(editor, 0);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 1a.mp3", "2 1c.mp3"));
}

TEST_F(OddSchedule, WithDoubledPlacesLosesBothToOneRemoval) {
  Spoil("UPDATE List SET Pos=1 WHERE FileName='1b.mp3' COLLATE BINARY");
  Apri();
  EXPECT_THAT(Dettaglio(), ElementsAre("1 1a.mp3", "1 1b.mp3", "3 1c.mp3"));
  RimuoviSpot(editor, 0);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 1c.mp3"));
}

TEST_F(OddSchedule, WithDoubledPlacesNumbersThemAtAMove) {
  Spoil("UPDATE List SET Pos=1 WHERE IDSched=1");
  Apri();
  SpostaSpot(editor, 0, true);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 1a.mp3", "2 1b.mp3", "3 1c.mp3"));
}

TEST_F(OddSchedule, WithPlacesThatAreMissingNumbersThemWhenSaved) {
  Spoil("UPDATE List SET Pos=NULL WHERE IDSched=2");
  Salva();
  EXPECT_THAT(
      Colonna("Alias"),
      ElementsAre("F1-0011.mp3", "F1-0012.mp3", "F1-0013.mp3", "F1-0021.mp3", "F1-0022.mp3",
                  "F1-0023.mp3", "F1-0031.mp3", "F1-0032.mp3", "F1-0033.mp3", "F2-0011.mp3"));
}

TEST_F(OddSchedule, SpotsOfOtherDaysAreHiddenInTheirSegmentAndReachNoFile) {
  for (const char* day : {"NULL", "8", "-1", "0"}) {
    SetUp();
    Spoil(std::string("UPDATE List SET NPlaylist=") + day + " WHERE IDSched=1");
    Apri();
    EXPECT_THAT(Dettaglio(), IsEmpty()) << day;
    SalvaAperto();
    EXPECT_EQ(Giorni(),
              "1: 02:00\tF1-0011\t\tF1-0012\t\tF1-0013\t\r\n03:00\tF1-0021\t\tF1-0022\t\tF1-0023\t"
              "\r\n2: 12:00\tF2-0011\t\r\n")
        << day;
    EXPECT_EQ(Sql("SELECT COUNT(*) FROM List"), "10") << "nothing is lost";
  }
}

TEST_F(OddSchedule, AStartThatIsMissingStandsFirstAndHasNoTimeInItsLine) {
  Spoil("UPDATE HEAD SET StartTime=NULL WHERE ID=2");
  Apri();
  EXPECT_EQ(editor.SegmentoCorrente(), 2);
  EXPECT_EQ(UltimaOraPalinsesto(editor), (Ora{3, 1})) << "it is no latest";
  SalvaAperto();
  EXPECT_EQ(Leggi("1.pal"),
            "01:00\tF1-0011\t\tF1-0012\t\tF1-0013\t\r\n\tF1-0021\t\tF1-0022\t\tF1-0023\t\r\n"
            "03:00\tF1-0031\t\tF1-0032\t\tF1-0033\t\r\n");
}

TEST_F(OddSchedule, OnlyStartsThatAreMissingGiveNoLatest) {
  Spoil("UPDATE HEAD SET StartTime=NULL");
  Apri();
  EXPECT_EQ(UltimaOraPalinsesto(editor), (Ora{0, 0}));
  AggiungiSegmento(editor);
  EXPECT_EQ(Orario(), "00.00");
}

TEST_F(OddSchedule, AStartWithADateIsItsTime) {
  Spoil("UPDATE HEAD SET StartTime='2019-03-04 23:58:00' WHERE ID=1");
  Salva();
  EXPECT_TRUE(Leggi("1.pal").starts_with("23:58\tF1-0011\t"));
  EXPECT_NE(Leggi("Scheduler.htm").find("Segment 23.58<"), std::string::npos);
}

TEST_F(OddSchedule, ASegmentOfNoDayIsKeptAndItsSpotsToo) {
  Spoil("UPDATE HEAD SET NScheduler=NULL WHERE ID=1");
  Spoil("UPDATE HEAD SET NScheduler=99 WHERE ID=2");
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("03:00:00 3a.mp3 3b.mp3 3c.mp3"));
  SalvaAperto();
  EXPECT_THAT(Segmenti("scheduler.mdb"),
              ElementsAre("1  01:00:00", "2 99 02:00:00", "3 1 03:00:00", "4 2 12:00:00"));
  EXPECT_TRUE(Leggi("1.pal").starts_with("01:00\tF1-0011\t")) << "its spots say the day";
}

/// What another program may have made of the rows, each as one statement.
class AnyOddSchedule : public OddSchedule, public testing::WithParamInterface<const char*> {
 protected:
  /// Every command on every segment of the day, at every slot.
  void DoEverything() {
    for (const std::int64_t id : {1, 3, 4}) {
      editor.VaiAlSegmento(id);
      DuplicaSegmento(editor);
      for (const char* text : {"12", "99", "-1", "x"}) {
        editor.txtOre = editor.txtMin = text;
        LasciaOre(editor);
        LasciaMin(editor);
      }
      for (const int slot : {0, 1, 3, 7}) {
        SpostaSpot(editor, slot, true);
        SpostaSpot(editor, slot, false);
        Aggiungi(slot, "new.mp3");
        if (slot != 1) RimuoviSpot(editor, slot);
      }
      AggiungiSegmento(editor);
      RigheDellaGriglia(editor);
    }
    for (int i = 0; i < 3; ++i) {
      if (editor.SegmentoCorrente() < 1 || editor.rsSegmenti().AbsolutePosition() < 1) continue;
      b.Finestre.Rispondi(Risposta::Si);
      RimuoviSegmento(editor);
    }
    while (!b.Finestre.Silenzio()) b.Finestre.Prossimo();
  }
  Righe Names() {
    return test::RigheDelDatabase(b, "scheduler.mdb", "SELECT * FROM [List] ORDER BY [ID]",
                                  [](const Recordset& row) { return row.Text("FileName"); });
  }
};

TEST_P(AnyOddSchedule, TakesEveryCommandAndACancelLeavesItAsItWas) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{3, 2}) {
    Make(3, mode);
    Spoil(GetParam());
    const std::string before = Leggi("scheduler.mdb");
    Apri();
    DoEverything();
    editor.ScegliGiorno(2);
    DoEverything();
    SettimanaPalinsesto week;
    week.Leggi(editor);
    ScriviReport(editor);
    editor.Chiudi();
    EXPECT_TRUE(Leggi("scheduler.mdb") == before);
    EXPECT_FALSE(Ha("tmpScheduler.mdb"));
  }
}

TEST_P(AnyOddSchedule, IsSavedWithAllItsSegmentsAndSpots) {
  Spoil(GetParam());
  const Righe segments = Segmenti("scheduler.mdb");
  const Righe names = Names();
  Salva();
  EXPECT_EQ(Segmenti("scheduler.mdb"), segments);
  EXPECT_EQ(Names(), names);
  const Righe aliases = Alias();
  Salva();
  EXPECT_EQ(Alias(), aliases) << "a second save finds all in order";
}

INSTANTIATE_TEST_SUITE_P(
    Statements, AnyOddSchedule,
    testing::Values(
        "UPDATE HEAD SET StartTime=NULL", "UPDATE HEAD SET StartTime=''",
        "UPDATE HEAD SET StartTime='2019-03-04 08:30:00'", "UPDATE HEAD SET StartTime='99:99:99'",
        "UPDATE HEAD SET StartTime='noon'", "UPDATE HEAD SET StartTime=0.354166",
        "UPDATE HEAD SET StartTime=x'00FF'", "UPDATE HEAD SET NScheduler=NULL",
        "UPDATE HEAD SET NScheduler=-1", "UPDATE HEAD SET NScheduler=9223372036854775807",
        "UPDATE HEAD SET NScheduler='day'", "UPDATE HEAD SET ID=ID-2",
        "UPDATE HEAD SET ID=ID+9223372036854775800", "DELETE FROM HEAD", "DELETE FROM List",
        "UPDATE List SET IDSched=NULL", "UPDATE List SET IDSched=777", "UPDATE List SET IDSched=-1",
        "UPDATE List SET IDSched='x'", "UPDATE List SET Pos=NULL", "UPDATE List SET Pos=0",
        "UPDATE List SET Pos=9", "UPDATE List SET Pos=1", "UPDATE List SET Pos=-5-ID",
        "UPDATE List SET Pos='first'", "UPDATE List SET Pos=9223372036854775807",
        "UPDATE List SET Pos=1.5", "UPDATE List SET NPlaylist=NULL", "UPDATE List SET NPlaylist=8",
        "UPDATE List SET NPlaylist=-1", "UPDATE List SET NPlaylist=12",
        "UPDATE List SET FileName=NULL", "UPDATE List SET FilePath=NULL",
        "UPDATE List SET Alias='it''s|odd.mp3'", "UPDATE List SET FileName=x'00FF27'",
        "UPDATE List SET IDSched=1",
        "INSERT INTO List SELECT ID+100,FileName,FilePath,Alias,Pos,NPlaylist,IDSched "
        "FROM List"));

}  // namespace
}  // namespace kvr5
