#include <sstream>

#include "platform/CodePage.h"
#include "road/screens/Scrivania.h"
#include "road/screens/StradaPalinsesto.h"

// Schedules from the start of the program to the finished card, for every model and mode that has
// one; and the same session through kvr5card, which leaves the same behind.

namespace kvr5 {
namespace {

using test::Clicca;
using test::Foto;
using test::Passi;
using Lines = std::vector<std::string>;
using Tracks = std::map<std::string, std::string>;  // name on the card, file of the music

/// A segment of the report: its time, and the names of its spots.
struct Reported {
  std::string Time;
  Lines Names;
};
/// A day of the report; "" where there is one schedule.
struct ReportedDay {
  std::string Name;
  std::vector<Reported> Segments;
};

/// A model and mode, what is done there, and what that leaves.
struct ScheduleKind {
  const char* Name;
  std::int16_t Type, Mode;
  Passi Session;
  Tracks Spots;
  std::map<std::string, std::string> Files;  ///< what the player reads
  std::vector<ReportedDay> Report;
  Lines Heads;  ///< the rows of HEAD
  Lines Rows;   ///< the rows of List
};

void PrintTo(const ScheduleKind& kind, std::ostream* out) {
  *out << kind.Name;
}

/// One schedule: segments whose order of creation isn't that of their times; spots that are put in
/// the place of others, moved, removed; a copy that gets files of its own; a segment that goes, and
/// one that has no spots. A KVR5 passes the hours over.
Passi OneSession() {
  return {"segment add",
          "time 20 30",
          "spot add 1 a/welcome.mp3",
          "spot add 2 a/L'été.mp3",
          "spot add 3 a/song.mp3",
          "segment add",
          "time 7 5",
          "spot add 1 b/song.mp3",
          "spot add 2 b/2.mp3",
          "spot add 1 b/10.mp3",
          "spot down 1",
          "segment select 1",
          "spot up 3",
          "segment select 2",
          "segment copy !",
          "time 12 40",
          "spot add 1 c/uno.mp3",
          "spot add 2 c/due.mp3",
          "spot add 3 c/tre.mp3",
          "spot remove 2",
          "segment add",
          "spot add 1 c/quattro.mp3",
          "segment remove",
          "segment add",
          "time 20 30 !",
          "time 9 50",
          "spot add 1 c/cinque.mp3",
          "spot add 2 c/sei.mp3",
          "segment add"};
}

Tracks OneSchedulesSpots() {
  return {{"F0-0011.mp3", "a/welcome.mp3"}, {"F0-0012.mp3", "a/song.mp3"},
          {"F0-0013.mp3", "a/L'été.mp3"},   {"F0-0021.mp3", "b/2.mp3"},
          {"F0-0022.mp3", "b/10.mp3"},      {"F0-0031.mp3", "c/uno.mp3"},
          {"F0-0032.mp3", "c/tre.mp3"},     {"F0-0041.mp3", "c/cinque.mp3"},
          {"F0-0042.mp3", "c/sei.mp3"}};
}

/// PALIN.TXT in the order of creation, with these times.
std::string OneFile(const Lines& times) {
  return times[0] + "\tF0-0011\t\tF0-0012\t\tF0-0013\t\r\n" + times[1] +
         "\tF0-0021\t\tF0-0022\t\r\n" + times[2] + "\tF0-0031\t\tF0-0032\t\r\n" + times[3] +
         "\tF0-0041\t\tF0-0042\t\r\n";
}

/// The rows of the same; 4 went with its segment, and so did the row 9. The copy's first row was
/// made for the spot behind.
Lines OneSchedulesRows() {
  return {"1 0/1/1 welcome.mp3 F0-0011.mp3", "2 0/1/3 L'été.mp3 F0-0013.mp3",
          "3 0/1/2 song.mp3 F0-0012.mp3",    "4 0/2/2 10.mp3 F0-0022.mp3",
          "5 0/2/1 2.mp3 F0-0021.mp3",       "6 0/3/1 uno.mp3 F0-0031.mp3",
          "8 0/3/2 tre.mp3 F0-0032.mp3",     "10 0/5/1 cinque.mp3 F0-0041.mp3",
          "11 0/5/2 sei.mp3 F0-0042.mp3"};
}

ScheduleKind Kvr5() {
  return {"Kvr5",
          4,
          2,
          OneSession(),
          OneSchedulesSpots(),
          {{"PALIN.TXT", OneFile({"00:30", "00:05", "00:40", "00:50"})}},
          {{"",
            {{"00.05", {"2.mp3", "10.mp3"}},
             {"00.30", {"welcome.mp3", "song.mp3", "L&#39;été.mp3"}},
             {"00.40", {"uno.mp3", "tre.mp3"}},
             {"00.50", {"cinque.mp3", "sei.mp3"}},
             {"00.51", {}}}}},
          {"1 0 00:30:00", "2 0 00:05:00", "3 0 00:40:00", "5 0 00:50:00", "6 0 00:51:00"},
          OneSchedulesRows()};
}

ScheduleKind OstrelWithOneSchedule() {
  return {"OstrelWithOneSchedule",
          3,
          2,
          OneSession(),
          OneSchedulesSpots(),
          {{"PALIN.TXT", OneFile({"20:30", "07:05", "12:40", "09:50"})}},
          {{"",
            {{"07.05", {"2.mp3", "10.mp3"}},
             {"09.50", {"cinque.mp3", "sei.mp3"}},
             {"12.40", {"uno.mp3", "tre.mp3"}},
             {"20.30", {"welcome.mp3", "song.mp3", "L&#39;été.mp3"}},
             {"20.31", {}}}}},
          {"1 0 20:30:00", "2 0 07:05:00", "3 0 12:40:00", "5 0 09:50:00", "6 0 20:31:00"},
          OneSchedulesRows()};
}

/// The same on the days of a week.
ScheduleKind OstrelWithAWeek() {
  ScheduleKind kind{"OstrelWithAWeek", 3, 3, {}, {}, {}, {}, {}, {}};
  kind.Session = {"day 3",
                  "segment add",
                  "time 20 30",
                  "spot add 1 a/welcome.mp3",
                  "spot add 2 a/L'été.mp3",
                  "spot add 3 a/song.mp3",
                  "segment add",
                  "time 7 5",
                  "spot add 1 b/song.mp3",
                  "spot add 2 b/2.mp3",
                  "spot add 1 b/10.mp3",
                  "spot down 1",
                  "segment select 1",
                  "spot up 3",
                  "day 7",
                  "segment add",
                  "segment copy !",
                  "time 12 40",
                  "spot add 1 c/uno.mp3",
                  "spot add 2 c/due.mp3",
                  "spot add 3 c/tre.mp3",
                  "spot remove 2",
                  "segment add",
                  "spot add 1 c/quattro.mp3",
                  "segment remove",
                  "day 1",
                  "segment add",
                  "time 20 30",
                  "time 9 50",
                  "spot add 1 c/cinque.mp3",
                  "spot add 2 c/sei.mp3",
                  "segment add",
                  "time 9 50 !",
                  "time 6 0",
                  "spot add 1 c/sette.mp3"};
  kind.Spots = {{"F1-0011.mp3", "c/cinque.mp3"}, {"F1-0012.mp3", "c/sei.mp3"},
                {"F1-0021.mp3", "c/sette.mp3"},  {"F3-0011.mp3", "a/welcome.mp3"},
                {"F3-0012.mp3", "a/song.mp3"},   {"F3-0013.mp3", "a/L'été.mp3"},
                {"F3-0021.mp3", "b/2.mp3"},      {"F3-0022.mp3", "b/10.mp3"},
                {"F7-0011.mp3", "c/uno.mp3"},    {"F7-0012.mp3", "c/tre.mp3"}};
  for (const char* empty : {"2.pal", "4.pal", "5.pal", "6.pal"}) kind.Files[empty] = "";
  kind.Files["1.pal"] = "09:50\tF1-0011\t\tF1-0012\t\r\n06:00\tF1-0021\t\r\n";
  kind.Files["3.pal"] = "20:30\tF3-0011\t\tF3-0012\t\tF3-0013\t\r\n07:05\tF3-0021\t\tF3-0022\t\r\n";
  kind.Files["7.pal"] = "12:40\tF7-0011\t\tF7-0012\t\r\n";
  kind.Report = {
      {"Monday", {{"06.00", {"sette.mp3"}}, {"09.50", {"cinque.mp3", "sei.mp3"}}}},
      {"Wednesday",
       {{"07.05", {"2.mp3", "10.mp3"}}, {"20.30", {"welcome.mp3", "song.mp3", "L&#39;été.mp3"}}}},
      {"Sunday", {{"00.00", {}}, {"12.40", {"uno.mp3", "tre.mp3"}}}}};
  kind.Heads = {"1 3 20:30:00", "2 3 07:05:00", "3 7 00:00:00",
                "4 7 12:40:00", "6 1 09:50:00", "7 1 06:00:00"};
  kind.Rows = {"1 3/1/1 welcome.mp3 F3-0011.mp3", "2 3/1/3 L'été.mp3 F3-0013.mp3",
               "3 3/1/2 song.mp3 F3-0012.mp3",    "4 3/2/2 10.mp3 F3-0022.mp3",
               "5 3/2/1 2.mp3 F3-0021.mp3",       "6 7/4/1 uno.mp3 F7-0011.mp3",
               "8 7/4/2 tre.mp3 F7-0012.mp3",     "10 1/6/1 cinque.mp3 F1-0011.mp3",
               "11 1/6/2 sei.mp3 F1-0012.mp3",    "12 1/7/1 sette.mp3 F1-0021.mp3"};
  return kind;
}

/// What the body of the report holds, from its heading on.
std::string BodyOf(const std::vector<ReportedDay>& days) {
  std::string body =
      "<CENTER><P><B><FONT COLOR='Blue'><FONT SIZE=+2>Schedule</FONT></FONT></FONT></B></P>"
      "</CENTER>\r\n<BR>\r\n";
  for (const ReportedDay& day : days) {
    if (!day.Name.empty()) {
      body += "<BR><B><FONT COLOR='Blue'>" + day.Name + "</FONT></B><BR>\r\n";
    }
    for (const Reported& segment : day.Segments) {
      body += "<BR><LI><FONT COLOR='Blue'>Segment " + segment.Time + "</FONT></LI><BR>\r\n";
      for (const std::string& name : segment.Names) body += name + "<BR>\r\n";
    }
  }
  return CodePage(1252).Encode(body + "</BODY>\r\n</HTML>\r\n");
}

/// A page from the heading of the schedule on.
std::string FromHeading(const std::string& page) {
  const std::size_t at = page.rfind("<CENTER>");
  return at == std::string::npos ? page : page.substr(at);
}

class ScheduleRoad : public test::StradaPalinsesto,
                     public testing::WithParamInterface<ScheduleKind> {
 protected:
  void ToTheHub() { Apri(GetParam().Type, GetParam().Mode); }
  /// What the save leaves in the project.
  void ExpectTheProject() {
    const ScheduleKind& kind = GetParam();
    for (const auto& [name, text] : kind.Files) EXPECT_EQ(LeggiProgetto(name), text) << name;
    for (const char* name : {"PALIN.TXT", "0.pal", "1.pal", "2.pal", "3.pal", "4.pal", "5.pal",
                             "6.pal", "7.pal", "8.pal"}) {
      EXPECT_EQ(b.Cartella.Exists(NelProgetto(name)), kind.Files.contains(name)) << name;
    }
    const std::string report = LeggiProgetto("Scheduler.htm");
    EXPECT_EQ(FromHeading(report), BodyOf(kind.Report));
    EXPECT_EQ(Segmenti(), kind.Heads);
    EXPECT_EQ(Spot(), kind.Rows);
    EXPECT_FALSE(b.Cartella.Exists(NelProgetto("tmpScheduler.mdb")));
  }
  /// The card holds the project's files, each as it is there, the spots, and nothing else.
  void ExpectTheCard() {
    ExpectBrani(GetParam().Spots);
    Lines expected;
    for (const std::string& name : b.Nomi(kProgetto)) {
      if (name.ends_with(".gif") || name.ends_with(".mp3")) continue;
      expected.push_back(name);
      ASSERT_TRUE(b.Cartella.Exists("card/" + name)) << name;
      EXPECT_TRUE(b.Cartella.Same("card/" + name, NelProgetto(name))) << name;
    }
    for (const auto& [name, source] : GetParam().Spots) expected.push_back(name);
    std::ranges::sort(expected);
    EXPECT_EQ(b.Nomi("card"), expected);
  }
  /// Every name in the player's files is that of a file on the card, and all are named.
  void ExpectTheFilesTrue() const {
    Lines named;
    for (const auto& [name, text] : GetParam().Files) {
      std::istringstream in(Leggi(name));
      for (std::string field; std::getline(in, field, '\t');) {
        if (field.starts_with('F')) named.push_back(field + ".mp3");
      }
    }
    std::ranges::sort(named);
    Lines there;
    for (const auto& [name, source] : GetParam().Spots) there.push_back(name);
    EXPECT_EQ(named, there);
  }
  /// All that a job leaves.
  struct Left {
    Foto Project, Card;
  };
  Left Look() { return {FotoDi(kProgetto), FotoDi("card")}; }
  static void ExpectSame(const Left& screens, const Left& companion) {
    ExpectUguali(screens.Project, companion.Project);
    ExpectUguali(screens.Card, companion.Card);
  }
};

TEST_P(ScheduleRoad, LeadsToACardWithEverySpotUnderItsAliasAndTheCompanionToTheSame) {
  ToTheHub();
  Ricorda();
  Palinsesto(GetParam().Session, false);
  ExpectTheProject();
  for (const auto& [alias, source] : GetParam().Spots) {
    EXPECT_FALSE(b.Cartella.Exists(NelProgetto(alias))) << "it was a no";
  }
  Registra();
  ExpectTheCard();
  ExpectTheFilesTrue();
  const Left screens = Look();
  TornaIndietro();

  PalinsestoDelCompagno(GetParam().Session, false);
  ExpectTheProject();
  RegistraColCompagno();
  ExpectTheCard();
  ExpectSame(screens, Look());
}

TEST_P(ScheduleRoad, SpotsThatWereBroughtInAreRecordedWhenTheirSourceIsGone) {
  const auto record = [this](const auto& how) {
    std::filesystem::rename(Host("music"), Host("away"));
    how();
    std::filesystem::rename(Host("away"), Host("music"));
    ExpectTheCard();
    ExpectTheFilesTrue();
  };
  ToTheHub();
  Ricorda();
  Palinsesto(GetParam().Session, true);
  ExpectTheProject();
  for (const auto& [alias, source] : GetParam().Spots) {
    EXPECT_TRUE(LeggiProgetto(alias) == Musica.at(source)) << alias;
  }
  const std::string rows = Righe(NelProgetto("scheduler.mdb"), "List");
  EXPECT_EQ(rows.find(b.Percorso("music")), std::string::npos) << rows;
  EXPECT_NE(rows.find("FileName='L'été.mp3' FilePath='" + b.Percorso(kProgetto) + "\\'"),
            std::string::npos)
      << rows;
  record([this] { Registra(); });
  const Left screens = Look();
  TornaIndietro();

  PalinsestoDelCompagno(GetParam().Session, true);
  record([this] { RegistraColCompagno(); });
  ExpectSame(screens, Look());
}

TEST_P(ScheduleRoad, TheProjectsReportTakesThatOfTheScheduleInAndBothGoToTheCard) {
  ToTheHub();
  Ricorda();
  Palinsesto(GetParam().Session, false);
  const test::Scrivania desktop;
  Clicca(*Hub().Barra->picReport);
  EXPECT_EQ(desktop.Aperti,
            std::vector<std::string>{(b.Cartella.Host() / NelProgetto("Bar.htm")).string()});
  const std::string page = LeggiProgetto("Bar.htm");
  EXPECT_EQ(FromHeading(page), BodyOf(GetParam().Report));
  EXPECT_NE(page.find("File CONFIG.TXT"), std::string::npos);
  Registra();
  ExpectTheCard();
  EXPECT_TRUE(b.Cartella.Same("card/Bar.htm", NelProgetto("Bar.htm")));
  TornaIndietro();

  PalinsestoDelCompagno(GetParam().Session, false);
  EXPECT_EQ(Compagna({"report", "Bar"}).Stato, 0);
  EXPECT_EQ(LeggiProgetto("Bar.htm"), page);
}

TEST_P(ScheduleRoad, LeavingUnsavedAfterManyEditsKeepsTheProjectByteForByte) {
  ToTheHub();
  const Foto empty = Byte(kProgetto);
  const auto leave = [this](const Passi& edits, const auto& how) {
    frmPalinsesto& editor = ApriPalinsesto();
    test::PalinsestoAMano(editor, Host("music")).Esegui(edits);
    EXPECT_FALSE(editor.lblModifiche->text().isEmpty());
    EXPECT_TRUE(b.Cartella.Exists(NelProgetto("tmpScheduler.mdb")));
    how(editor);
    Hub();
  };
  const auto cancel = [](frmPalinsesto& editor) { Clicca(*editor.picAnnulla); };
  const auto close = [](frmPalinsesto& editor) { editor.close(); };
  leave(GetParam().Session, cancel);
  EXPECT_TRUE(Byte(kProgetto) == empty) << testing::PrintToString(b.Nomi(kProgetto));
  Palinsesto(GetParam().Session, false);
  const Foto before = Byte(kProgetto);
  const Passi more{"segment add", "spot add 1 c/otto.mp3", "time 3 3", "segment remove",
                   "segment remove"};
  leave(more, cancel);
  EXPECT_TRUE(Byte(kProgetto) == before) << testing::PrintToString(b.Nomi(kProgetto));
  leave(more, close);
  EXPECT_TRUE(Byte(kProgetto) == before) << testing::PrintToString(b.Nomi(kProgetto));
  Registra();
  ExpectTheCard();
}

INSTANTIATE_TEST_SUITE_P(Models, ScheduleRoad,
                         testing::Values(Kvr5(), OstrelWithOneSchedule(), OstrelWithAWeek()),
                         [](const auto& each) { return std::string(each.param.Name); });

}  // namespace
}  // namespace kvr5
