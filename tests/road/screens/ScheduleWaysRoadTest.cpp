#include "road/screens/StradaPalinsesto.h"

// What else happens on the road of the schedules: files that stand in several spots, copies that
// lie in the project already, files that have gone, and schedules without a spot.

namespace kvr5 {
namespace {

using namespace test;
using Tracks = std::map<std::string, std::string>;
using testing::ElementsAre;
using testing::IsEmpty;

class ScheduleWays : public StradaPalinsesto {
 protected:
  /// Sessions with an answer each and a recording on the screens, then by the companion: each time
  /// the card holds these spots, and both leave the same.
  struct Session {
    Passi Commands;
    bool Answer;
  };
  void BothWays(const std::vector<Session>& sessions, const Tracks& tracks) {
    Ricorda();
    for (const Session& each : sessions) Palinsesto(each.Commands, each.Answer);
    Registra();
    ExpectBrani(tracks);
    const Foto project = FotoDi(kProgetto);
    const Foto card = FotoDi("card");
    TornaIndietro();
    for (const Session& each : sessions) PalinsestoDelCompagno(each.Commands, each.Answer);
    RegistraColCompagno();
    ExpectBrani(tracks);
    ExpectUguali(project, FotoDi(kProgetto));
    ExpectUguali(card, FotoDi("card"));
  }
  /// Records by the screens and by the companion, and looks that both stop at this file of the host
  /// and bring no music.
  void ExpectStopsAt(const std::string& file) {
    Registra([&](frmSiNo& notice) {
      EXPECT_EQ(notice.windowTitle(), "MP3 files not copied");
      constexpr char16_t kMayBreak = 0x200B;  // where a long path goes on in the next line
      const QString words = notice.lblNota->text().remove(QChar(kMayBreak));
      EXPECT_TRUE(words.endsWith(QString::fromStdString(":\n" + file))) << words.toStdString();
      Clicca(*notice.cmdSi);
    });
    ExpectBrani({});
    EXPECT_TRUE(b.Cartella.Same("card/scheduler.mdb", NelProgetto("scheduler.mdb")))
        << "what the first stages copied stays";
    SvuotaScheda();
    const auto run = Compagna({"record", "Bar", Host("card").string()});
    EXPECT_EQ(run.Stato, 1);
    ASSERT_EQ(run.Box().size(), 1U);
    EXPECT_TRUE(run.Box()[0].value("text", "").ends_with(":\n" + file)) << run.Errori;
    ExpectBrani({});
  }
  /// One file in the second spot of a segment and in the first of the next.
  const Passi shared_{
      "segment add", "spot add 1 a/welcome.mp3", "spot add 2 c/uno.mp3", "segment add",
      "time 0 20",   "spot add 1 c/uno.mp3",     "spot add 2 c/due.mp3"};
};

TEST_F(ScheduleWays, AFileInSeveralSpotsIsThereUnderTheAliasOfTheFirstByPlace) {
  CreaKvr5();
  BothWays({{shared_, false}}, {{"F0-0011.mp3", "a/welcome.mp3"},
                                {"F0-0021.mp3", "c/uno.mp3"},
                                {"F0-0022.mp3", "c/due.mp3"}});
  EXPECT_EQ(Leggi("PALIN.TXT"), "00:00\tF0-0011\t\tF0-0012\t\r\n00:20\tF0-0021\t\tF0-0022\t\r\n")
      << "the second spot has no file there";
}

TEST_F(ScheduleWays, AFileInSeveralSpotsThatWasBroughtInOnceStopsTheRecordingAtTheNext) {
  CreaKvr5();
  Palinsesto(shared_, true);
  EXPECT_TRUE(LeggiProgetto("F0-0012.mp3") == Musica.at("c/uno.mp3")) << "the first by segment";
  EXPECT_FALSE(b.Cartella.Exists(NelProgetto("F0-0021.mp3")));
  ExpectStopsAt(Host(NelProgetto("uno.mp3")).string());
}

TEST_F(ScheduleWays, TheSpotsOfACopyInAWeekTakeTheirFilesFromThoseOfItsSource) {
  ApriOstrel(3);
  BothWays(
      {{{"day 3", "segment add", "time 20 30", "spot add 1 a/welcome.mp3", "spot add 2 c/uno.mp3",
         "segment copy !", "time 21 0", "segment add", "spot add 1 c/due.mp3"},
        false}},
      {{"F0-0011.mp3", "a/welcome.mp3"},
       {"F0-0012.mp3", "c/uno.mp3"},
       {"F3-0021.mp3", "c/due.mp3"}});
  EXPECT_EQ(Leggi("3.pal"), "20:30\tF3-0011\t\tF3-0012\t\r\n21:01\tF3-0021\t\r\n");
  EXPECT_FALSE(b.Cartella.Exists("card/0.pal"));
  EXPECT_THAT(Spot(), ElementsAre("1 3/1/1 welcome.mp3 F3-0011.mp3", "2 3/1/2 uno.mp3 F3-0012.mp3",
                                  "3 0/2/2 uno.mp3 F0-0012.mp3", "4 0/2/1 welcome.mp3 F0-0011.mp3",
                                  "5 3/3/1 due.mp3 F3-0021.mp3"));
}

TEST_F(ScheduleWays, CopiesInOneScheduleThatGetFilesOfTheirOwnKeepThem) {
  ApriOstrel(2);
  // The second copy comes by the menu.
  BothWays(
      {{{"segment add", "time 9 0", "spot add 1 c/uno.mp3", "segment copy !", "time 10 0",
         "spot add 1 c/due.mp3", "segment copy !", "time 8 0", "spot add 1 c/tre.mp3"},
        false}},
      {{"F0-0011.mp3", "c/uno.mp3"}, {"F0-0021.mp3", "c/due.mp3"}, {"F0-0031.mp3", "c/tre.mp3"}});
  EXPECT_EQ(Leggi("PALIN.TXT"), "09:00\tF0-0011\t\r\n10:00\tF0-0021\t\r\n08:00\tF0-0031\t\r\n");
}

TEST_F(ScheduleWays, ACopyInTheProjectIsRecordedUnderItsNameWhateverSpotHasThatNow) {
  CreaKvr5();
  BothWays({{{"segment add", "spot add 1 c/uno.mp3", "spot add 2 c/due.mp3"}, true},
            {{"spot down 1"}, false}},
           {{"F0-0011.mp3", "c/uno.mp3"}, {"F0-0012.mp3", "c/due.mp3"}});
  EXPECT_THAT(Spot(), ElementsAre("1 0/1/2 uno.mp3 F0-0012.mp3", "2 0/1/1 due.mp3 F0-0011.mp3"));
}

TEST_F(ScheduleWays, AFileThatIsGoneStopsTheRecordingUntilItsSpotIsRemoved) {
  ApriOstrel(3);
  Palinsesto({"day 2", "segment add", "spot add 1 c/uno.mp3", "spot add 2 c/due.mp3",
              "spot add 3 c/tre.mp3"},
             false);
  std::filesystem::remove(Host("music/c/due.mp3"));
  ExpectStopsAt(Host("music/c/due.mp3").string());
  Palinsesto({"day 2", "spot remove 2"}, false);
  Registra();
  ExpectBrani({{"F2-0011.mp3", "c/uno.mp3"}, {"F2-0012.mp3", "c/tre.mp3"}});
  EXPECT_EQ(Leggi("2.pal"), "00:00\tF2-0011\t\tF2-0012\t\r\n");
}

TEST_F(ScheduleWays, AnEmptyScheduleAsksNothingAndItsEmptyFileGoesToTheCard) {
  CreaKvr5();
  Palinsesto({"segment add"}, {});
  EXPECT_EQ(LeggiProgetto("PALIN.TXT"), "");
  Registra();
  EXPECT_EQ(Leggi("PALIN.TXT"), "");
  ExpectBrani({});
}

TEST_F(ScheduleWays, AnEmptyWeekHasItsSevenFilesOnTheCard) {
  ApriOstrel(3);
  Palinsesto({}, {});
  Registra();
  for (int day = 1; day <= 7; ++day) EXPECT_EQ(Leggi(std::to_string(day) + ".pal"), "") << day;
  EXPECT_THAT(Segmenti(), IsEmpty());
}

TEST_F(ScheduleWays, WhatOneInterfaceSavedTheOtherGoesOnWith) {
  ApriOstrel(3);
  Palinsesto({"day 4", "segment add", "time 8 0", "spot add 1 c/uno.mp3"}, false);
  PalinsestoDelCompagno({"day 4", "spot add 2 c/due.mp3", "segment add", "spot add 1 c/tre.mp3"},
                        false);
  frmPalinsesto& editor = ApriPalinsesto();
  PalinsestoAMano(editor, Host("music")).Esegui({"day 4", "segment select 2", "time 7 0"});
  EXPECT_EQ(editor.Segmenti->grdSegmenti->model()->rowCount(), 2);
  SalvaPalinsesto(editor, true);
  EXPECT_EQ(LeggiProgetto("4.pal"), "08:00\tF4-0011\t\tF4-0012\t\r\n07:00\tF4-0021\t\r\n");
  const auto rows = Compagna({"schedule", "Bar"}, "day 4\nlist\n").Oggetti();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0]["StartTime"], "07:00");
  EXPECT_EQ(rows[0]["Spots"][0]["FilePath"], b.Percorso(kProgetto) + "\\");
}

}  // namespace
}  // namespace kvr5
