#include <map>

#include "cli/ScheduleVerb.h"
#include "cli/Terminale.h"

// How a session of the schedule ends, and what it leaves.

namespace kvr5 {
namespace {

using nlohmann::json;
using test::Terminale;
using testing::ElementsAre;
using testing::IsEmpty;

class ScheduleSave : public test::ScheduleVerb {
 protected:
  using Files = std::map<std::string, std::string>;

  /// All files of the project: their bytes.
  Files Folder() const {
    Files files;
    for (const auto& each : k.Nomi("program/Projects/Hall")) files[each] = Read(each);
    return files;
  }
  /// The project's folder as rows hold it.
  std::string Hall() const { return k.Percorso("program/Projects/Hall") + "\\"; }
  json Question(const char* answer) {
    return {{"box", "question"},
            {"title", Word("0140035")},
            {"text", Word("0140036") + "\n" + Word("0140037")},
            {"answer", answer}};
  }
  /// Segments whose order of creation isn't that of their times.
  std::string Two() const {
    return "segment add\ntime 0 30\n" + AddAll("ab") + "segment add\ntime 0 10\n" + AddAll("c");
  }
};

TEST_F(ScheduleSave, WritesTheOneFileInTheOrderOfCreationAndNamesTheSpots) {
  const auto run = Run(Two() + "segment add\nsave\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(run.Box(), std::vector<json>{Question("no")});
  EXPECT_EQ(Read("PALIN.TXT"), "00:30\tF0-0011\t\tF0-0012\t\r\n00:10\tF0-0021\t\r\n")
      << "a segment without spots has no line";
  EXPECT_THAT(Column("Alias"), ElementsAre("F0-0011.mp3", "F0-0012.mp3", "F0-0021.mp3"));
  const std::string music = k.Percorso("music") + "\\";
  EXPECT_THAT(Column("FilePath"), ElementsAre(music, music, music)) << "it was a no";
  EXPECT_THAT(After(""), ElementsAre("2 00:10 c", "1 00:30 ab", "3 00:31"));
}

TEST_F(ScheduleSave, LeavesTheFilesOfTheSaveAndNothingElse) {
  Files before = Folder();
  EXPECT_EQ(Run(Two() + "save\n").Stato, 0);
  Files after = Folder();
  const std::string report = after["Scheduler.htm"];
  EXPECT_NE(report.find("<BR>\r\n<BR><LI><FONT COLOR='Blue'>Segment 00.10</FONT></LI><BR>\r\n"
                        "c.mp3<BR>\r\n<BR><LI><FONT COLOR='Blue'>Segment 00.30</FONT></LI><BR>\r\n"
                        "a.mp3<BR>\r\nb.mp3<BR>\r\n</BODY>\r\n</HTML>\r\n"),
            std::string::npos)
      << "by time\n"
      << report;
  for (const char* name : {"PALIN.TXT", "Scheduler.htm", "logo_menu.jpg", "sf_menu.jpg"}) {
    EXPECT_EQ(after.erase(name), 1U) << name;
  }
  EXPECT_FALSE(before.extract("scheduler.mdb").empty());
  EXPECT_FALSE(after.extract("scheduler.mdb").empty());
  EXPECT_TRUE(after == before) << testing::PrintToString(k.Nomi("program/Projects/Hall"));
}

TEST_F(ScheduleSave, WritesTheSevenDaysAndTheEmptyOnesToo) {
  Make(kOstrel, kByDay);
  Saved("day 7\nsegment add\ntime 23 59\n" + AddAll("ab") + "day 3\nsegment add\ntime 8 30\n" +
        AddAll("cd") + "segment add\ntime 6 0\n" + AddAll("e"));
  EXPECT_EQ(Read("3.pal"), "08:30\tF3-0011\t\tF3-0012\t\r\n06:00\tF3-0021\t\r\n");
  EXPECT_EQ(Read("7.pal"), "23:59\tF7-0011\t\tF7-0012\t\r\n");
  for (const char* day : {"1.pal", "2.pal", "4.pal", "5.pal", "6.pal"}) {
    EXPECT_TRUE(Exists(day)) << day;
    EXPECT_EQ(Read(day), "") << day;
  }
  EXPECT_FALSE(Exists("PALIN.TXT"));
  EXPECT_FALSE(Exists("0.pal"));
}

TEST_F(ScheduleSave, SpotsOfACopyInAWeekReachNoDayFile) {
  Make(kOstrel, kByDay);
  Saved("day 3\nsegment add\n" + AddAll("ab") + "segment copy\ntime 9 0\n");
  EXPECT_EQ(Read("3.pal"), "00:00\tF3-0011\t\tF3-0012\t\r\n");
  EXPECT_THAT(Column("Alias"),
              ElementsAre("F3-0011.mp3", "F3-0012.mp3", "F0-0012.mp3", "F0-0011.mp3"));
}

TEST_F(ScheduleSave, OfAnOstrelWithOneScheduleKeepsTheHours) {
  Make(kOstrel, kOneSchedule);
  Saved("segment add\ntime 23 5\n" + AddAll("a") + "segment copy\ntime 0 7\n");
  EXPECT_EQ(Read("PALIN.TXT"), "23:05\tF0-0011\t\r\n00:07\tF0-0021\t\r\n");
  EXPECT_FALSE(Exists("1.pal"));
}

TEST_F(ScheduleSave, AYesBringsTheFilesInUnderTheirAliases) {
  const auto run = Run(Two() + "yes\nsave\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Box(), std::vector<json>{Question("yes")});
  EXPECT_EQ(Read("F0-0011.mp3"), k.Cartella.Read("music/a.mp3"));
  EXPECT_EQ(Read("F0-0012.mp3"), k.Cartella.Read("music/b.mp3"));
  EXPECT_EQ(Read("F0-0021.mp3"), k.Cartella.Read("music/c.mp3"));
  EXPECT_FALSE(Exists("a.mp3"));
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall(), Hall()));
  EXPECT_THAT(Column("FileName"), ElementsAre("a.mp3", "b.mp3", "c.mp3")) << "it stays";
}

TEST_F(ScheduleSave, TheOptionsAnswerItsQuestionUnlessTheSessionDoes) {
  EXPECT_EQ(Run(Two() + "save\n", {"--no"}).Box(), std::vector<json>{Question("no")});
  EXPECT_FALSE(Exists("F0-0011.mp3"));
  EXPECT_EQ(Run("no\nsave\n", {"--yes"}).Box(), std::vector<json>{Question("no")});
  EXPECT_FALSE(Exists("F0-0011.mp3"));
  EXPECT_EQ(Run("save\n", {"--yes"}).Box(), std::vector<json>{Question("yes")});
  EXPECT_TRUE(Exists("F0-0011.mp3"));
}

TEST_F(ScheduleSave, OfAnEmptyScheduleAsksNothingAndLeavesAnEmptyFile) {
  const auto run = Run("segment add\nsave\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita + run.Errori, "");
  EXPECT_TRUE(Exists("PALIN.TXT"));
  EXPECT_EQ(Read("PALIN.TXT"), "");
  EXPECT_THAT(After(""), ElementsAre("1 00:00"));
}

TEST_F(ScheduleSave, TwiceWithoutChangesWritesTheSame) {
  Saved(Two());
  const std::string lines = Read("PALIN.TXT");
  const std::string report = Read("Scheduler.htm");
  const Texts aliases = Column("Alias");
  Saved("");
  EXPECT_EQ(Read("PALIN.TXT"), lines);
  EXPECT_EQ(Read("Scheduler.htm"), report);
  EXPECT_EQ(Column("Alias"), aliases);
}

TEST_F(ScheduleSave, AnotherTimeChangesNeitherThePlaceOfALineNorItsAliases) {
  Saved(Two());
  Saved("segment select 2\ntime 0 50\n");
  EXPECT_EQ(Read("PALIN.TXT"), "00:30\tF0-0011\t\tF0-0012\t\r\n00:50\tF0-0021\t\r\n");
}

TEST_F(ScheduleSave, NumbersTheSegmentsThatHaveSpotsAfterARemoval) {
  Saved(Two() + "segment add\n" + AddAll("de"));
  Saved("segment select 1\nyes\nsegment remove\nsegment select 3\nspot down 1\n");
  EXPECT_EQ(Read("PALIN.TXT"), "00:10\tF0-0011\t\r\n00:31\tF0-0021\t\tF0-0022\t\r\n");
  EXPECT_THAT(Spots(), ElementsAre("0/2/1 c", "0/3/2 d", "0/3/1 e"));
}

TEST_F(ScheduleSave, NothingFollowsASaveOrACancel) {
  EXPECT_EQ(Run("segment add\nsave\nnonsense\n").Stato, 0);
  EXPECT_EQ(Run("cancel\nnonsense\n").Stato, 0);
}

TEST_F(ScheduleSave, TheEndOfTheInputAndCancelLeaveTheProjectByteForByte) {
  Saved(Two());
  const Files before = Folder();
  const std::string edits = "yes\nsegment remove\nsegment add\ntime 1 2\n" + AddAll("hij") +
                            "segment copy\nspot remove 1\nspot down 1\n" + Add(1, 'g');
  for (const char* end : {"", "cancel\n", "cancel", "spot remove 7\ncancel\n"}) {
    EXPECT_EQ(Run(edits + end).Stato, 0);
    EXPECT_TRUE(Folder() == before) << testing::PrintToString(k.Nomi("program/Projects/Hall"));
  }
}

TEST_F(ScheduleSave, ACopyThatACrashLeftIsThrownAway) {
  Saved(Two());
  const Files before = Folder();
  k.Cartella.Write("program/Projects/Hall/tmpScheduler.mdb", "half a database");
  EXPECT_THAT(After("segment select 2\nspot remove 1\n"), ElementsAre("2 00:10", "1 00:30 ab"));
  EXPECT_TRUE(Folder() == before) << testing::PrintToString(k.Nomi("program/Projects/Hall"));
}

TEST_F(ScheduleSave, WhoseCopyFailsIsStatus1AndSavesAllTheSame) {
  Saved(Two());
  std::filesystem::remove(k.Host("music/b.mp3"));
  const auto run = Run("segment select 2\nspot remove 1\nyes\nsave\n");
  EXPECT_EQ(run.Stato, 1) << "a file to be brought in has gone";
  EXPECT_NE(run.Errori.find("b.mp3"), std::string::npos) << run.Errori;
  EXPECT_FALSE(Exists("tmpScheduler.mdb"));
  EXPECT_EQ(Read("PALIN.TXT"), "00:30\tF0-0011\t\tF0-0012\t\r\n");
  EXPECT_THAT(Column("FilePath"), ElementsAre(Hall(), Hall()));
}

TEST_F(ScheduleSave, WhoseDatabaseCantBePutInPlaceIsStatus1) {
  Saved(Two());
  Terminale terminal(k.Lavoro({"--json", "--no", "schedule", "Hall"}));
  terminal.Scrivi("segment add\nlist\n");
  ASSERT_TRUE(terminal.Aspetta("\"end\":\"list\"")) << terminal.Schermo();
  std::filesystem::remove(Project() + "/scheduler.mdb");
  std::filesystem::create_directories(Project() + "/scheduler.mdb/in-the-way");
  terminal.Scrivi("save\n");
  EXPECT_EQ(terminal.Fine(), 1) << terminal.Schermo();
}

TEST_F(ScheduleSave, AProjectWithoutTheDatabaseIsStatus3) {
  std::filesystem::remove(Project() + "/scheduler.mdb");
  const auto run = Run("segment add\nsave\n");
  EXPECT_EQ(run.Stato, 3);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(run.Box().size(), 1U);
  EXPECT_FALSE(Exists("scheduler.mdb"));
  EXPECT_FALSE(Exists("PALIN.TXT"));
  k.CreaProgetto("Lists", kKvr5, 5);
  EXPECT_EQ(k.EseguiJson({"schedule", "Lists"}, "list\n").Stato, 3);
}

TEST_F(ScheduleSave, NoProjectIsStatus3AndNoOrTwoNamesAreStatus2) {
  EXPECT_EQ(k.EseguiJson({"schedule", "Nowhere"}, "list\n").Stato, 3);
  EXPECT_EQ(k.EseguiJson({"schedule"}, "list\n").Stato, 2);
  EXPECT_EQ(k.EseguiJson({"schedule", "Hall", "Hall"}, "list\n").Stato, 2);
}

TEST_F(ScheduleSave, ADatabaseThatCantBeReadIsStatus1AndStaysAsItIs) {
  const std::string whole = Read("scheduler.mdb");
  for (const std::string& bad :
       {std::string("no database at all"), std::string(4096, '\xEE'), std::string()}) {
    k.Cartella.Write("program/Projects/Hall/scheduler.mdb", bad);
    const Files before = Folder();
    const auto run = Run("segment add\nsave\n");
    EXPECT_EQ(run.Stato, 1) << bad.size();
    EXPECT_EQ(run.Uscita, "");
    EXPECT_NE(run.Errori, "");
    EXPECT_TRUE(Folder() == before) << testing::PrintToString(k.Nomi("program/Projects/Hall"));
  }
}

TEST_F(ScheduleSave, AnyProjectWhoseFolderHoldsTheDatabaseIsTaken) {
  struct Model {
    const char* Name;
    std::int16_t Type, Mode;
  };
  for (const Model& model :
       {Model{"Veskadro", 1, 0}, Model{"Zub", 2, 0}, Model{"Names", 3, 9}, Model{"Inputs", 4, 1}}) {
    k.CreaProgetto(model.Name, model.Type, model.Mode);
    const std::string folder = std::string("program/Projects/") + model.Name;
    ASSERT_FALSE(k.Cartella.Exists(folder + "/scheduler.mdb"));
    std::filesystem::copy(k.Host("program/source.mdb"), k.Host(folder + "/scheduler.mdb"));
    const auto session = [&](const std::string& commands) {
      return k.EseguiJson({"schedule", model.Name}, commands);
    };
    EXPECT_EQ(session("segment add\n" + AddAll("ab") + "save\n").Stato, 0) << model.Name;
    EXPECT_THAT(Rows(session("list\n")), ElementsAre("1 00:00 ab")) << model.Name;
  }
}

TEST_F(ScheduleSave, AProjectCanBeNamedByItsFolder) {
  const auto run = k.EseguiJson({"schedule", Project()}, "segment add\nlist\nsave\n");
  EXPECT_EQ(run.Stato, 0) << run.Errori;
  EXPECT_THAT(Rows(run), ElementsAre("1 00:00"));
  EXPECT_THAT(After(""), ElementsAre("1 00:00"));
}

TEST_F(ScheduleSave, ItsMessagesSpeakTheChosenLanguage) {
  const auto run =
      k.EseguiJson({"--lang", "Italiano", "schedule", "Hall"}, "segment add\nsegment copy\n");
  ASSERT_EQ(run.Box().size(), 1U);
  k.C.Stato.FileLingua = k.Percorso("program/Language/Italiano.lan");
  EXPECT_EQ(run.Box()[0]["text"], Word("0140039"));
}

TEST_F(ScheduleSave, LeavesTheSettingsAlone) {
  const std::string before = k.Cartella.Read("program/KVR5Software.ini");
  EXPECT_EQ(Run(Two() + "report\nyes\nsave\n").Stato, 0);
  EXPECT_EQ(k.Cartella.Read("program/KVR5Software.ini"), before);
}

TEST_F(ScheduleSave, CtrlCEndsTheSessionUnsaved) {
  Saved(Two());
  const Files before = Folder();
  Terminale terminal(k.Lavoro({"--json", "schedule", "Hall"}));
  terminal.Scrivi("segment add\nspot add 1 " + Music('d') + "\nlist\n");
  ASSERT_TRUE(terminal.Aspetta("\"end\":\"list\"")) << terminal.Schermo();
  terminal.Scrivi("save");  // half a line is no command
  terminal.Scrivi("\x03");
  EXPECT_EQ(terminal.Fine(), 1);
  EXPECT_TRUE(Folder() == before) << testing::PrintToString(k.Nomi("program/Projects/Hall"));
}

TEST_F(ScheduleSave, CtrlCEndsItsCopyAndLeavesTheRestSaved) {
  Saved("segment add\n" + AddAll("ab"));
  // Seconds of work, so that the copy is met in the middle; none of it has to be read from a disk.
  std::filesystem::resize_file(Music('b'), std::uintmax_t{3} << 30U);
  Terminale terminal(k.Lavoro({"schedule", "Hall"}));
  terminal.Scrivi("segment select 1\ntime 0 40\nyes\nsave\n");
  ASSERT_TRUE(terminal.Aspetta("MB/s")) << terminal.Schermo();
  terminal.Scrivi("\x03");
  EXPECT_EQ(terminal.Fine(), 1) << terminal.Schermo();
  EXPECT_FALSE(Exists("F0-0012.mp3"));
  EXPECT_FALSE(Exists("tmpScheduler.mdb"));
  EXPECT_EQ(Read("PALIN.TXT"), "00:40\tF0-0011\t\tF0-0012\t\r\n");
  EXPECT_THAT(After(""), ElementsAre("1 00:40 ab"));
}

TEST_F(ScheduleSave, QuestionsAreNotAskedOnTheTerminal) {
  Terminale terminal(k.Lavoro({"schedule", "Hall"}));
  terminal.Scrivi("segment add\nsegment remove\nlist\n");
  ASSERT_TRUE(terminal.Aspetta("00:00")) << terminal.Schermo();
  terminal.Scrivi("spot add 1 " + Music('a') + "\nsave\n");
  EXPECT_EQ(terminal.Fine(), 0) << terminal.Schermo();
  EXPECT_EQ(terminal.Schermo().find("[y/n]"), std::string::npos) << terminal.Schermo();
  EXPECT_EQ(Read("PALIN.TXT"), "00:00\tF0-0011\t\r\n");
}

}  // namespace
}  // namespace kvr5
