#include <gtest/gtest.h>

#include <string>

#include "core/Aiuti.h"
#include "reports/FinePagina.h"
#include "reports/Report.h"
#include "reports/ReportProgetto.h"
#include "support/Banco.h"
#include "support/EsecutoreFinto.h"

namespace kvr5 {
namespace {

using test::kTail;

/// A project of a KVR5 that plays by its inputs, with an empty template.
class ProjectReports : public testing::Test {
 protected:
  void SetUp() override {
    b.Cartella.Write("program/Report/report.htm", "");
    b.CreaProgetto("Hall", 4, 1);
    b.Cartella.Write("program/Projects/Hall/Config.txt", "[Config]\r\nLOUT=14\r\n\r\nLBAS=9\r\n");
    b.C.Errore.Clear();
  }
  /// Opens the recordset that the hub hands over.
  Recordset* Rows() {
    EXPECT_FALSE(connection_.Open(b.Percorso("program/Projects/Hall/inputcfg.mdb")));
    EXPECT_FALSE(rows_.Open(connection_, "SELECT * FROM [List] ORDER BY [Pos] ASC"));
    return &rows_;
  }
  std::string Write(const FontiReport& sources) {
    ScriviReportProgetto(b.C, sources);
    const std::string text = b.Cartella.Read("program/Projects/Hall/Hall.htm");
    EXPECT_TRUE(text.ends_with(kTail));
    return text;
  }
  bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }

  test::Banco b;
  Connection connection_{b.C.Files};
  Recordset rows_;
};

TEST_F(ProjectReports, HoldModelProjectInputsAndParametersInThisOrder) {
  b.C.Stato.PlayerConfigDesc = "KVR5 (Inputs)";
  b.AggiungiRiga("inputcfg.mdb", 1, 12, "gong.mp3", "C:\\Music\\", "12.mp3");
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "door.mp3", "C:\\Music\\", "5.mp3");
  EXPECT_EQ(Write({Rows(), false}),
            "<CENTER><P><B><FONT COLOR='Blue'><FONT SIZE=+2>KVR5 Player"
            "</FONT></FONT></FONT></B></P></CENTER>\r\n"
            "<CENTER><P><IMG SRC='KVR5.gif'></P></CENTER>\r\n"
            "<FONT COLOR=BLUE>Project name:</FONT> Hall<BR>\r\n"
            "<FONT COLOR=BLUE>Player:</FONT> KVR5 (Inputs)<BR>\r\n"
            "<P><B><FONT COLOR='Blue'>Logic inputs</FONT></B></P>\r\n"
            "<FONT COLOR='Blue'>5.mp3 </FONT>door.mp3<BR>\r\n"
            "<FONT COLOR='Blue'>12.mp3 </FONT>gong.mp3<BR>\r\n"
            "<BR><P><B><FONT COLOR='Blue'> File CONFIG.TXT</FONT></B></P>\r\n"
            "LOUT=14<BR>\r\n"
            "LBAS=9<BR>\r\n"
            "</BODY>\r\n</HTML>\r\n");
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(ProjectReports, WithoutADescriptionNameTheModel) {
  b.C.Stato.PlayerConfigDesc = "";
  EXPECT_TRUE(Holds(Write({}), "<FONT COLOR=BLUE>Player:</FONT> KVR5 Player<BR>\r\n"));
}

TEST_F(ProjectReports, TellOfTheAnalyserOnlyWhereItsFrameIsShown) {
  b.C.Stato.Analyzer = 1;
  EXPECT_FALSE(Holds(Write({nullptr, false}), "Analyzer"));
  EXPECT_TRUE(Holds(Write({nullptr, true}), "<FONT COLOR=BLUE>Analyzer:</FONT> on<BR>\r\n"));
  b.C.Stato.Analyzer = 0;
  EXPECT_TRUE(Holds(Write({nullptr, true}), "<FONT COLOR=BLUE>Analyzer:</FONT> off<BR>\r\n"));
  b.C.Stato.Analyzer = 2;
  EXPECT_TRUE(Holds(Write({nullptr, true}), "Analyzer:</FONT> off<BR>\r\n"));
}

TEST_F(ProjectReports, BringThePictureOfTheModelIntoAFolderThatLacksIt) {
  const std::string picture = b.Percorso("program/Projects/Hall/KVR5.gif");
  Ignora(b.Disco.Delete(picture));
  Write({});
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/KVR5.gif", "program/Pictures/KVR5.gif"));
  b.Cartella.Write("program/Projects/Hall/KVR5.gif", "the user's own");
  Write({});
  EXPECT_EQ(b.Cartella.Read("program/Projects/Hall/KVR5.gif"), "the user's own");
}

TEST_F(ProjectReports, OfAModelWithoutAPictureAreWrittenAllTheSame) {
  b.C.Stato.PlayerName = "";
  EXPECT_TRUE(Holds(Write({}), "<IMG SRC='.gif'>"));
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(ProjectReports, LackTheInputsWhereTheirTableIsClosedOrMissing) {
  EXPECT_FALSE(Holds(Write({&rows_, false}), "Logic inputs")) << "closed";
  Recordset* rows = Rows();
  EXPECT_TRUE(Holds(Write({rows, false}), "Logic inputs")) << "open, and empty";
  ASSERT_FALSE(b.Disco.Delete(b.Percorso("program/Projects/Hall/inputcfg.mdb")));
  EXPECT_FALSE(Holds(Write({rows, false}), "Logic inputs")) << "the file is gone";
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(ProjectReports, RightAfterCreationHaveNoListsOfOtherReports) {
  const std::string text = Write({});
  EXPECT_TRUE(text.ends_with("LBAS=9<BR>\r\n</BODY>\r\n</HTML>\r\n"));
}

TEST_F(ProjectReports, MergeTheOtherReportsPlaylistsFirst) {
  b.Cartella.Write("program/Projects/Hall/Scheduler.htm",
                   "<BODY>\r\n<DIV>band</DIV>\r\nschedule\r\n</BODY>\r\n");
  b.Cartella.Write("program/Projects/Hall/playlist.HTM",
                   "<BODY>\r\n<DIV>band</DIV>\r\ntracks\r\n</BODY>\r\n");
  EXPECT_TRUE(Write({}).ends_with("LBAS=9<BR>\r\ntracks\r\nschedule\r\n</BODY>\r\n</HTML>\r\n"));
}

TEST_F(ProjectReports, OfAProjectCalledLikeAMergedOneDontTakeThemselvesIn) {
  b.C.Stato.ProjectName = "playlist";
  ScriviReportProgetto(b.C, {});
  const std::string text = b.Cartella.Read("program/Projects/Hall/playlist.htm");
  EXPECT_TRUE(text.ends_with("LBAS=9<BR>\r\n</BODY>\r\n</HTML>\r\n"));
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(ProjectReports, ShowNamesAsTheyAre) {
  b.C.Stato.ProjectName = "R&D";
  b.C.Stato.PlayerConfigDesc = "KVR5 (<i>Inputs</i>)";
  b.AggiungiRiga("inputcfg.mdb", 1, 5, "<b>.mp3", "C:\\Music\\", "5.mp3");
  ScriviReportProgetto(b.C, {Rows(), false});
  const std::string text = b.Cartella.Read("program/Projects/Hall/R&D.htm");
  EXPECT_TRUE(Holds(text, "R&amp;D<BR>"));
  EXPECT_TRUE(Holds(text, "KVR5 (&lt;i&gt;Inputs&lt;/i&gt;)<BR>"));
  EXPECT_TRUE(Holds(text, "&lt;b&gt;.mp3<BR>"));
}

TEST_F(ProjectReports, AreShownByTheHostWithTheBusyPointerOnMeanwhile) {
  test::EsecutoreFinto documents;
  Puntatore meanwhile = Puntatore::Normale;
  b.Messaggi.Accade = [&] { meanwhile = b.Messaggi.Ora; };
  MostraReportProgetto(b.C, documents, {});
  EXPECT_EQ(documents.Aperti, std::vector{b.Percorso("program/Projects/Hall/Hall.htm")});
  EXPECT_EQ(meanwhile, Puntatore::Attesa);
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(ProjectReports, ThatCantBeWrittenLeaveAnErrorAndTheProjectAsItWas) {
  Write({});  // brings the images
  Ignora(b.Disco.Delete(b.Percorso("program/Projects/Hall/Hall.htm")));
  ASSERT_FALSE(b.Disco.CreateFolder(b.Percorso("program/Projects/Hall/Hall.htm")));
  const auto names = b.Nomi("program/Projects/Hall");
  const std::string config = b.Cartella.Read("program/Projects/Hall/Config.txt");
  b.C.Errore.Clear();
  ScriviReportProgetto(b.C, {});
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
  EXPECT_FALSE(b.C.Stato.ReportAperto);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), names);
  EXPECT_EQ(b.Cartella.Read("program/Projects/Hall/Config.txt"), config);
}

TEST_F(ProjectReports, OfANameThatLeadsOutOfTheFolderOpenNothing) {
  b.Cartella.Write("program/x.htm", "somebody's page");
  b.C.Stato.ProjectName = "..\\..\\x";
  test::EsecutoreFinto documents;
  MostraReportProgetto(b.C, documents, {});
  EXPECT_TRUE(documents.Aperti.empty());
  EXPECT_EQ(b.Cartella.Read("program/x.htm"), "somebody's page");
}

}  // namespace
}  // namespace kvr5
