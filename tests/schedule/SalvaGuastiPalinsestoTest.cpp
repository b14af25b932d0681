#include <filesystem>

#include "schedule/BancoSalvaPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Saves on a disk that fails, in each of their steps.
class ScheduleSaveThatFails : public test::BancoSalvaPalinsesto {
 protected:
  void SetUp() override { Week(); }
  void Week() {
    Progetto(3, 3);
    Segmento(1, "01.00");
    Segmento(2, "02.00");
    Traccia(1, 1, 1, "a.mp3");
    Traccia(1, 1, 2, "b.mp3");
    Traccia(2, 2, 1, "c.mp3");
  }
  std::string Of(const std::string& name) const { return FileDelProgetto(b.C, name); }
  /// Nothing more can be written below this path.
  void FillUp(const std::string& path, std::uint64_t bytes = 0) {
    guasti->FailWritesAfter(path, bytes, errors::DiskFull);
  }
  void FillUpAtTheQuestion() {
    b.Finestre.SuBox = [this](const test::BoxVisto&) { FillUp(b.Percorso("program/Projects")); };
  }
  /// Saves, with the faults beginning behind the load.
  void SaveWith(const std::function<void()>& fault, Risposta answer = Risposta::No) {
    Apri();
    fault();
    b.Finestre.Rispondi(answer);
    SalvaPalinsesto(editor, progresso);
    b.Finestre.SuBox = nullptr;
    b.Copia.SuProgresso = nullptr;
    b.Finestre.Prossimo();
    EXPECT_TRUE(b.Finestre.Silenzio()) << "nothing is told but by the copy window";
    EXPECT_FALSE(progresso.Caricata());
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
    guasti->Repair();
    editor.Chiudi();
    EXPECT_FALSE(Ha("tmpScheduler.mdb"));
  }
  void ExpectCommitted() {
    EXPECT_THAT(b.Copia.Guasti, IsEmpty());
    EXPECT_THAT(Alias(), ElementsAre("F1-0011.mp3", "F1-0012.mp3", "F2-0011.mp3"));
  }
  /// The files of both days.
  void ExpectFiles() {
    EXPECT_EQ(Leggi("1.pal"), "01:00\tF1-0011\t\tF1-0012\t\r\n");
    EXPECT_EQ(Leggi("2.pal"), "02:00\tF2-0011\t\r\n");
  }
};

TEST_F(ScheduleSaveThatFails, WithoutRoomForTheReportDoesAllElse) {
  SaveWith([this] { FillUp(Of("Scheduler.htm"), 50); });
  EXPECT_LE(Leggi("Scheduler.htm").size(), 50U);
  ExpectFiles();
  ExpectCommitted();
}

TEST_F(ScheduleSaveThatFails, WithAReportThatCantBeReplacedDoesAllElse) {
  b.Cartella.Write("program/Projects/Hall/Scheduler.htm", "old");
  SaveWith([this] { guasti->Protect(Of("Scheduler.htm")); });
  EXPECT_EQ(Leggi("Scheduler.htm"), "old");
  ExpectFiles();
  ExpectCommitted();
}

TEST_F(ScheduleSaveThatFails, WithoutRoomForOneDayWritesTheOthersAndCommits) {
  SaveWith([this] { FillUp(Of("1.pal"), 4); });
  EXPECT_LE(Leggi("1.pal").size(), 4U);
  EXPECT_EQ(Leggi("2.pal"), "02:00\tF2-0011\t\r\n");
  EXPECT_TRUE(Ha("7.pal"));
  ExpectCommitted();
}

TEST_F(ScheduleSaveThatFails, WithADayThatCantBeReplacedWritesTheOthersAndCommits) {
  b.Cartella.Write("program/Projects/Hall/1.pal", "old");
  SaveWith([this] { guasti->Protect(Of("1.pal")); });
  EXPECT_EQ(Leggi("1.pal"), "old");
  EXPECT_EQ(Leggi("2.pal"), "02:00\tF2-0011\t\r\n");
  ExpectCommitted();
}

TEST_F(ScheduleSaveThatFails, WithAFolderInThePlaceOfADayWritesTheOthersAndCommits) {
  std::filesystem::create_directory(b.Cartella.Host() / "program/Projects/Hall/1.pal");
  SaveWith([] {});
  EXPECT_EQ(Leggi("2.pal"), "02:00\tF2-0011\t\r\n");
  ExpectCommitted();
}

TEST_F(ScheduleSaveThatFails, WithoutRoomForTheOneFileCommits) {
  Progetto(3, 2);
  Spot(0, Segmento(0, "01.00"), 1, "a.mp3");
  SaveWith([this] { FillUp(Of("PALIN.TXT")); });
  EXPECT_EQ(Leggi("PALIN.TXT"), "");
  EXPECT_THAT(Alias(), ElementsAre("F0-0011.mp3"));
}

TEST_F(ScheduleSaveThatFails, FromTheQuestionOnHasTheFilesAndLosesTheDatabaseAndTellsTheCopy) {
  SaveWith([this] { FillUpAtTheQuestion(); });
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
  ExpectFiles();
  EXPECT_FALSE(Ha("scheduler.mdb")) << "the old one had gone before";
  editor.Carica();
  EXPECT_EQ(Griglia(), Righe{"closed"}) << "the next one comes up empty";
}

TEST_F(ScheduleSaveThatFails, FromTheQuestionOnTellsBothCopiesAfterAYes) {
  SaveWith([this] { FillUpAtTheQuestion(); }, Risposta::Si);
  ASSERT_THAT(b.Copia.Guasti, SizeIs(2));
  EXPECT_FALSE(Ha("F1-0011.mp3"));
  EXPECT_TRUE(b.Cartella.Exists("music/a.mp3"));
}

TEST_F(ScheduleSaveThatFails, WithoutRoomForTheFilesTellsItAndRepointsEveryRowAllTheSame) {
  SaveWith(
      [this] {
        b.Copia.SuProgresso = [this](const CopyState& state) {
          if (state.File.ends_with("b.mp3")) FillUp(b.Percorso("program/Projects/Hall"));
        };
      },
      Risposta::Si);
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(b.Copia.Guasti[0].Cause.Number(), errors::DiskFull);
  EXPECT_FALSE(b.Copia.Guasti[0].Source);
  EXPECT_FALSE(Ha("F1-0012.mp3"));
  EXPECT_THAT(Colonna("FilePath"), ElementsAre(Hall(), Hall(), Hall()));
  ExpectFiles();
}

TEST_F(ScheduleSaveThatFails, WithFilesThatCantBeReadTellsItAndCommits) {
  SaveWith([this] { guasti->FailReadsAfter(b.Percorso("music"), 100, errors::DiskNotReady); },
           Risposta::Si);
  ASSERT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_TRUE(b.Copia.Guasti[0].Source);
  EXPECT_FALSE(Ha("F1-0011.mp3")) << "nor half of it";
  EXPECT_THAT(Alias(), SizeIs(3));
}

TEST_F(ScheduleSaveThatFails, ACancelAmidTheCommitIsNotHeeded) {
  SaveWith([this] { b.Copia.AnnullaAlla = b.Copia.Volte + 1; });
  ExpectCommitted();
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
}

TEST_F(ScheduleSaveThatFails, OfAFolderThatIsWriteProtectedLeavesTheDatabaseAsItWas) {
  const std::string before = Leggi("scheduler.mdb");
  b.Cartella.Write("program/Projects/Hall/1.pal", "old");
  SaveWith([this] { guasti->Protect(b.Percorso("program/Projects/Hall")); });
  EXPECT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
  EXPECT_EQ(Leggi("1.pal"), "old");
}

TEST_F(ScheduleSaveThatFails, OfAWorkingCopyThatWasNeverMadeLeavesTheDatabaseAlone) {
  const std::string before = Leggi("scheduler.mdb");
  FillUp(b.Percorso("program/Projects"), 100);
  Apri();
  EXPECT_THAT(b.Copia.Guasti, SizeIs(1));
  EXPECT_EQ(Griglia(), Righe{"closed"});
  SalvaPalinsesto(editor, progresso);
  editor.Chiudi();
  guasti->Repair();
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "no question";
}

TEST_F(ScheduleSaveThatFails, OfALoadThatWasCancelledLeavesTheDatabaseAlone) {
  const std::string before = Leggi("scheduler.mdb");
  b.Copia.AnnullaAlla = 1;
  Apri();
  b.Copia.AnnullaAlla = 0;
  EXPECT_EQ(Griglia(), Righe{"closed"});
  SalvaPalinsesto(editor, progresso);
  editor.Chiudi();
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
}

TEST_F(ScheduleSaveThatFails, OfAFolderThatVanishedDoesNoHarm) {
  Apri();
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
  b.Finestre.Rispondi(Risposta::Si);
  SalvaPalinsesto(editor, progresso);
  editor.Chiudi();
  b.Finestre.Prossimo();
  EXPECT_FALSE(Ha("scheduler.mdb"));
}

TEST_F(ScheduleSaveThatFails, AtAnySingleOperationKeepsTheSpotsOrTellsTheCopy) {
  for (std::size_t index = 0; index < 1000; ++index) {
    Week();
    b.Copia.Guasti.clear();
    std::string operation;
    SaveWith([&] { guasti->FailOperation(b.Percorso("program/Projects/Hall"), index, 75); },
             Risposta::Si);
    operation = guasti->FailedOperation();
    if (operation.empty()) {
      EXPECT_GT(index, 20U) << "all of them were tried";
      return;
    }
    SCOPED_TRACE(operation + " " + std::to_string(index));
    EXPECT_TRUE(Ha("scheduler.mdb") || !b.Copia.Guasti.empty());
    if (Ha("scheduler.mdb")) {
      EXPECT_THAT(Colonna("FileName"), ElementsAre("a.mp3", "b.mp3", "c.mp3"));
    }
    for (const char* file : {"music/a.mp3", "music/b.mp3", "music/c.mp3"}) {
      EXPECT_TRUE(b.Cartella.Exists(file));
    }
  }
  ADD_FAILURE() << "there is no end of operations";
}

}  // namespace
}  // namespace kvr5
