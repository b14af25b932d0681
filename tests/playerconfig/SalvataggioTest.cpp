#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "playerconfig/Salvataggio.h"
#include "projects/Descrittore.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"
#include "support/ProgressoVisto.h"

namespace kvr5 {
namespace {

constexpr const char* kHall = "program/Projects/Hall/";

/// frmSalva, answered by the test; it stands for what the user does to the box.
class Answer : public DomandaSalva {
 public:
  explicit Answer(Contesto& context) : context_(context) {}
  bool Annulla() override {
    ++Asked;
    if (!Cancels) context_.Stato.SalvaMp3Ingressi = Copies;
    return Cancels;
  }
  int Asked = 0;
  bool Cancels = false;
  bool Copies = false;

 private:
  Contesto& context_;
};

/// A project named Hall; the step in which something happens is told by the progress window.
class Saves : public testing::Test {
 protected:
  void SetUp() override { Project(4, 1); }
  /// Has the project be of this kind, with nothing in it yet.
  void Project(std::int16_t type, std::int16_t mode) {
    inputs_.Chiudi();
    std::filesystem::remove_all(b.Cartella.Host() / kHall);
    b.CreaProgetto("Hall", type, mode);
    controls_.Leggi(b.C);
    inputs_.Apri();
    b.C.Errore.Clear();
  }
  void Input(int code, const std::string& name, const std::string& folder = "music") {
    b.AggiungiRiga("inputcfg.mdb", 1, code, name, b.Percorso(folder) + "\\",
                   std::to_string(code) + ".mp3");
  }
  FineSalvataggio Save() {
    return SalvaConfigurazione(b.C, {controls_, inputs_, false}, progress_, answer_);
  }
  /// Saves with the copies; how many files the copy was of.
  int FilesInTheCopy() {
    answer_.Copies = true;
    int most = 0;
    b.Copia.SuProgresso = [&](const CopyState& state) {
      most = std::max(most, int(state.FileCount));
    };
    EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
    ExpectSaved();
    return most;
  }
  bool Exists(const std::string& name) const { return b.Cartella.Exists(kHall + name); }
  std::string Read(const std::string& name) const { return b.Cartella.Read(kHall + name); }
  void Write(const std::string& name, const std::string& text) {
    b.Cartella.Write(kHall + name, text);
  }
  std::string Path(const std::string& name) const { return b.Percorso(kHall + name); }
  void ExpectSaved() {
    const auto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "Project");
    EXPECT_EQ(box.Testo, "Saved.");
    EXPECT_EQ(box.Segno, Icona::Informazione);
  }

  std::unique_ptr<test::FaultyFileSystem> disk_;
  test::Banco b{[this](FileSystem& disk) -> FileSystem& {
    disk_ = std::make_unique<test::FaultyFileSystem>(disk);
    return *disk_;
  }};
  ControlliHub controls_;
  TabellaIngressi inputs_{b.C};
  test::ProgressoVisto progress_{b.C};
  Answer answer_{b.C};
};

TEST_F(Saves, WriteDescriptorParametersAndReport) {
  controls_["LOUT"].Numero = 3;
  Write("Config.cfg", "[CONFIG]\r\nProjectName=old\r\nUse485=1\r\n");
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_TRUE(Read("Config.cfg").starts_with("[CONFIG]\r\nProjectName=Hall\r\n"));
  EXPECT_EQ(Read("Config.cfg").find("Use485"), std::string::npos) << "is lost at each save";
  EXPECT_NE(Read("Config.txt").find("\r\nLOUT=3\r\n"), std::string::npos);
  EXPECT_NE(Read("Hall.htm").find("LOUT=3<BR>"), std::string::npos) << "written behind Config.txt";
  EXPECT_FALSE(progress_.Caricata());
}

TEST_F(Saves, ShowTheirTwoSteps) {
  Save();
  ExpectSaved();
  EXPECT_EQ(progress_.Seen,
            (std::vector<std::string>{"Writing the files of the project 0/2",
                                      "Writing the report 0/2", "Writing the report 1/2"}));
}

TEST_F(Saves, AskOnceAndWithTheBoxUntickedCopyNothing) {
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_EQ(answer_.Asked, 1);
  EXPECT_FALSE(Exists("a.mp3"));
}

TEST_F(Saves, GivenUpAtTheQuestionLeaveAllFilesAndSayNothing) {
  controls_["LOUT"].Numero = 3;
  answer_.Cancels = true;
  const auto config = Read("Config.txt");
  const auto descriptor = Read("Config.cfg");
  const auto names = b.Nomi(kHall);
  EXPECT_EQ(Save(), FineSalvataggio::Rinunciato);
  EXPECT_EQ(Read("Config.txt"), config);
  EXPECT_EQ(Read("Config.cfg"), descriptor);
  EXPECT_EQ(b.Nomi(kHall), names);
  EXPECT_TRUE(progress_.Seen.empty());
}

TEST_F(Saves, CopyTheFilesOfTheInputsUnderTheirOwnNames) {
  b.ScriviMp3("music/a.mp3", 1);
  b.ScriviMp3("other/b.mp3", 2);
  Input(5, "a.mp3");
  Input(6, "b.mp3", "other");
  answer_.Copies = true;
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_TRUE(b.Cartella.Same(std::string(kHall) + "a.mp3", "music/a.mp3"));
  EXPECT_TRUE(b.Cartella.Same(std::string(kHall) + "b.mp3", "other/b.mp3"));
}

TEST_F(Saves, OfTwoFilesOfOneNameCopyTheOneOfTheFirstCode) {
  b.ScriviMp3("music/a.mp3", 1);
  b.ScriviMp3("other/A.MP3", 2);
  Input(9, "a.mp3");
  Input(5, "A.MP3", "other");
  answer_.Copies = true;
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_TRUE(b.Cartella.Same(std::string(kHall) + "A.MP3", "other/A.MP3"));
}

TEST_F(Saves, OneFileOnTwoInputsIsCopiedOnce) {
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  Input(6, "a.mp3");
  EXPECT_EQ(FilesInTheCopy(), 1);
  EXPECT_TRUE(Exists("a.mp3"));
}

TEST_F(Saves, ANameThatAListedOneBeginsWithCountsAsListed) {
  b.ScriviMp3("music/a.mp3.mp3", 1);
  b.ScriviMp3("music/a.mp3", 2);
  Input(5, "a.mp3.mp3");
  Input(6, "a.mp3");
  answer_.Copies = true;
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_TRUE(Exists("a.mp3.mp3"));
  EXPECT_FALSE(Exists("a.mp3")) << "a search in the text of the list, on purpose";
}

TEST_F(Saves, AMissingFileEndsThemWithItsNameAndNoCopyAtAll) {
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  Input(6, "gone.mp3");
  Input(7, "gone too.mp3");
  answer_.Copies = true;
  controls_["LOUT"].Numero = 3;
  bool window = true;
  b.Finestre.SuBox = [&](const test::BoxVisto&) { window = progress_.Caricata(); };
  EXPECT_EQ(Save(), FineSalvataggio::FileMancante);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "MP3 files not copied");
  EXPECT_TRUE(box.Testo.ends_with(":\r\ngone.mp3")) << box.Testo;
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(box.TestoOk, "OK");
  EXPECT_FALSE(window) << "the progress window is closed before";
  EXPECT_FALSE(Exists("a.mp3"));
  EXPECT_NE(Read("Config.txt").find("LOUT=3"), std::string::npos) << "what was written stays";
  EXPECT_TRUE(Exists("Hall.htm"));
}

TEST_F(Saves, AMissingFileKeepsTheAnalysersBackToo) {
  Input(6, "gone.mp3");
  answer_.Copies = true;
  b.C.Stato.Analyzer = 1;
  EXPECT_EQ(Save(), FineSalvataggio::FileMancante);
  b.Finestre.Prossimo();
  EXPECT_FALSE(Exists("Analyzer.mp3"));
}

TEST_F(Saves, AFileIsLookedForAlsoWhereItsNameIsListedAlready) {
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  Input(6, "a.mp3", "gone");
  answer_.Copies = true;
  EXPECT_EQ(Save(), FineSalvataggio::FileMancante);
  b.Finestre.Prossimo();
  EXPECT_FALSE(Exists("a.mp3"));
}

TEST_F(Saves, BringFilesOfInputsAndAnalyserInOneCopy) {
  b.Cartella.Write("program/Analyzer.mp3", "signal");
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  b.C.Stato.Analyzer = 1;
  EXPECT_EQ(FilesInTheCopy(), 2);
  EXPECT_TRUE(Exists("a.mp3"));
  EXPECT_EQ(Read("Analyzer.mp3"), "signal");
}

TEST_F(Saves, ARowWithoutANameOrWithABarStandsForAMissingFile) {
  b.ScriviMp3("music/a.mp3");
  answer_.Copies = true;
  for (const char* name : {"", "a|b.mp3"}) {
    b.AggiungiRiga("inputcfg.mdb", 1, 5, name, b.Percorso("music") + "\\", "5.mp3");
    EXPECT_EQ(Save(), FineSalvataggio::FileMancante) << name;
    const auto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "MP3 files not copied");
    const std::string folder = (b.Cartella.Host() / "music").string();
    EXPECT_TRUE(box.Testo.ends_with(name[0] == 0 ? folder : name)) << box.Testo;
    inputs_.Libera(5);
  }
}

TEST_F(Saves, OfAPlayerWithoutInputsAskNothing) {
  Project(4, 5);
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_EQ(answer_.Asked, 0);
  EXPECT_FALSE(Exists("Analyzer.mp3"));
}

TEST_F(Saves, WithTheAnalyserOnBringItsFile) {
  b.Cartella.Write("program/Analyzer.mp3", "signal");
  b.C.Stato.Analyzer = 1;
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_EQ(Read("Analyzer.mp3"), "signal");
  Project(4, 5);
  b.C.Stato.Analyzer = 1;
  b.Cartella.Write("program/Analyzer.mp3", "another");
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_EQ(Read("Analyzer.mp3"), "another") << "without inputs too";
}

TEST_F(Saves, AnAnalyserFileThatTheProgramLacksIsToldByTheCopyWindowAlone) {
  b.C.Stato.Analyzer = 1;
  Ignora(b.Disco.Delete(b.Percorso("program/Analyzer.mp3")));
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_EQ(b.Copia.Guasti.size(), 1U);
}

TEST_F(Saves, CancelledInTheCopyWindowSaySo) {
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  answer_.Copies = true;
  b.Copia.AnnullaAlla = 1;
  EXPECT_EQ(Save(), FineSalvataggio::Annullato);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Project");
  EXPECT_EQ(box.Testo, "Cancelled: not everything was saved. Save again to complete it.");
  EXPECT_EQ(box.Segno, Icona::Informazione);
}

TEST_F(Saves, CancelledAtTheFirstStepLeaveParametersAndReport) {
  controls_["LOUT"].Numero = 3;
  const auto config = Read("Config.txt");
  Write("Config.cfg", "old");
  b.Messaggi.Accade = [&] {
    if (progress_.Visibile() && progress_.ValoreCorrente == 0) b.C.Stato.AnnullatoDaUtente = true;
  };
  EXPECT_EQ(Save(), FineSalvataggio::Annullato);
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "Cancelled: not everything was saved. Save again to complete it.");
  EXPECT_TRUE(Read("Config.cfg").starts_with("[CONFIG]")) << "the first step was done";
  EXPECT_EQ(Read("Config.txt"), config);
  EXPECT_FALSE(Exists("Hall.htm"));
}

TEST_F(Saves, CancelledAtTheSecondStepWriteTheReportAndCopyNothing) {
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  answer_.Copies = true;
  b.C.Stato.Analyzer = 1;
  b.Messaggi.Accade = [&] {
    const bool already = b.C.Stato.AnnullatoDaUtente;
    if (!already && progress_.Visibile() && progress_.ValoreCorrente == 1) progress_.Annulla();
  };
  EXPECT_EQ(Save(), FineSalvataggio::Annullato);
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "Cancelled: not everything was saved. Save again to complete it.");
  EXPECT_TRUE(Read("Hall.htm").ends_with("</HTML>\r\n"));
  EXPECT_FALSE(Exists("a.mp3"));
  EXPECT_FALSE(Exists("Analyzer.mp3"));
}

TEST_F(Saves, ACancelFromBeforeCountsForNothing) {
  b.C.Stato.AnnullatoDaUtente = true;
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
}

TEST_F(Saves, AnErrorFromBeforeCountsForNothing) {
  b.C.Errore.Record(Error(errors::DiskFull));
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
}

TEST_F(Saves, AnySwallowedFailureIsToldAtTheEndAndTheOtherStepsAreDone) {
  ASSERT_FALSE(b.Disco.CreateFolder(Path("Hall.htm")));  // the report can't be written
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  answer_.Copies = true;
  EXPECT_EQ(Save(), FineSalvataggio::ConErrori);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Not all was completed: please repeat");
  EXPECT_EQ(box.Segno, Icona::Avviso);
  EXPECT_EQ(box.Testo, "This step could not be completed\r\nN°:75\r\nPath/File access error")
      << "what kept the page from being opened, not what became of its lines";
  EXPECT_TRUE(Exists("a.mp3"));
}

TEST_F(Saves, OnAFullDiskTellItAndDoWhatFollowsAllTheSame) {
  b.ScriviMp3("music/a.mp3", 1);
  Input(5, "a.mp3");
  answer_.Copies = true;
  for (const char* full : {"Config.cfg", "Hall.htm"}) {
    SCOPED_TRACE(full);
    std::filesystem::remove(b.Cartella.Host() / kHall / "a.mp3");
    disk_->FailWritesAfter(Path(full), 5, errors::DiskFull);
    EXPECT_EQ(Save(), FineSalvataggio::ConErrori);
    EXPECT_EQ(b.Finestre.Prossimo().Testo,
              "This step could not be completed\r\nN°:61\r\nDisk full");
    EXPECT_TRUE(b.Cartella.Same(std::string(kHall) + "a.mp3", "music/a.mp3"));
    EXPECT_EQ(b.C.Stato.ReportIntero, full != std::string("Hall.htm"));
    disk_->Repair();
  }
}

TEST_F(Saves, AParameterFileThatTheDiskHasNoRoomForStaysAsItWas) {
  controls_["LOUT"].Numero = 3;
  const std::string before = Read("Config.txt");
  disk_->FailWritesAfter(b.Percorso("program/Projects/Hall"), 5, errors::DiskFull);
  EXPECT_EQ(Save(), FineSalvataggio::ConErrori);
  EXPECT_EQ(b.Finestre.Prossimo().Testo, "This step could not be completed\r\nN°:61\r\nDisk full");
  EXPECT_EQ(Read("Config.txt"), before);
}

TEST_F(Saves, AReadOnlyParameterFileIsToldByNumberAndWords) {
  std::filesystem::permissions(b.Cartella.Host() / (std::string(kHall) + "Config.txt"),
                               std::filesystem::perms::owner_read);
  controls_["LOUT"].Numero = 3;
  EXPECT_EQ(Save(), FineSalvataggio::ConErrori);
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "This step could not be completed\r\nN°:75\r\nPath/File access error");
}

TEST_F(Saves, AnErrorOutranksACancel) {
  ASSERT_FALSE(b.Disco.CreateFolder(Path("Hall.htm")));
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");
  answer_.Copies = true;
  b.Copia.AnnullaAlla = 1;
  EXPECT_EQ(Save(), FineSalvataggio::ConErrori);
  b.Finestre.Prossimo();
}

TEST_F(Saves, OfAProjectThatHasNoTableOfInputsWarnOfNothing) {
  Project(2, 0);
  inputs_.Chiudi();
  ASSERT_FALSE(b.Disco.Delete(Path("inputcfg.mdb")));
  inputs_.Apri();
  answer_.Copies = true;
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
    ExpectSaved();
  }
  EXPECT_FALSE(Exists("inputcfg.mdb"));
}

TEST_F(Saves, ReadTheTableAsItIsByNow) {
  EXPECT_EQ(inputs_.Righe().size(), 0U);
  b.ScriviMp3("music/a.mp3");
  Input(5, "a.mp3");  // by another program, behind the open recordset
  answer_.Copies = true;
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_TRUE(Exists("a.mp3"));
  EXPECT_NE(Read("Hall.htm").find("a.mp3"), std::string::npos);
}

TEST_F(Saves, ATableThatCantBeOpenedAnyMoreIsTold) {
  Write("inputcfg.mdb", "no database at all, but long enough to be looked at as one");
  EXPECT_EQ(Save(), FineSalvataggio::ConErrori);
  b.Finestre.Prossimo();
}

TEST_F(Saves, AVanishedParameterFileStaysGoneAndIsNotTold) {
  ASSERT_FALSE(b.Disco.Delete(Path("Config.txt")));
  EXPECT_EQ(Save(), FineSalvataggio::Compiuto);
  ExpectSaved();
  EXPECT_FALSE(Exists("Config.txt"));
}

TEST_F(Saves, KeepEveryKeyThatNoScreenKnowsThroughAnyNumberOfThem) {
  Write(
      "Config.txt",
      "; "
      "mine\r\n[Config]\r\nLOUT=99\r\nXTRA=7\r\nMPLL=5\r\nLOUT=5\r\nMIRS=0\r\n[Other]\r\nA=b\r\n");
  controls_.Leggi(b.C);
  for (int i = 0; i < 3; ++i) {
    Save();
    ExpectSaved();
  }
  EXPECT_EQ(Read("Config.txt"),
            "; mine\r\n[Config]\r\nLOUT=14\r\nXTRA=7\r\nMPLL=5\r\nLOUT=5\r\nMIRS=1\r\nLLOU=0\r\n"
            "LTRE=10\r\nLBAS=10\r\nMOMN=0\r\nIMOD=0\r\nTPCM=0\r\nMICP=0\r\n[Other]\r\nA=b\r\n");
}

TEST_F(Saves, OfAParameterFileOfAMillionLinesAreDone) {
  std::string text = "[Config]\r\n";
  for (int i = 0; i < 1000000; ++i) text += "K" + std::to_string(i) + "=1\r\n";
  Write("Config.txt", text + "LOUT=2\r\n");
  controls_.Leggi(b.C);
  EXPECT_EQ(controls_["LOUT"].Numero, 2);
  Ignora(b.Disco.CreateFolder(Path("Hall.htm")));  // a report of it all isn't wanted here
  Save();
  b.Finestre.Prossimo();
  EXPECT_TRUE(Read("Config.txt").starts_with(text + "LOUT=2\r\nLLOU=0\r\n"));
}

}  // namespace
}  // namespace kvr5
