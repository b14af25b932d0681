#include <gtest/gtest.h>

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "projects/NuovoProgetto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;
using Names = std::vector<std::string>;

class NewProject : public testing::Test {
 protected:
  EsitoNuovo Create(const std::string& name, std::int16_t mode) {
    s.PlayerName = "KVR5";
    s.PlayerType = 4;
    s.PlayerConfig = 0;
    return CreaProgettoKvr5(b.C, name, mode, ScritteDelWizard(b.C, mode));
  }
  std::string Read(const std::string& name) { return b.Cartella.Read("program/" + name); }
  void Remove(const std::string& name) {
    std::filesystem::remove(b.Cartella.Host() / "program" / name);
  }

  Banco b;
  StatoApplicazione& s = b.C.Stato;
};

TEST_F(NewProject, AnInputsProjectHoldsItsFourFiles) {
  EXPECT_EQ(Create("Hall", 1), EsitoNuovo::Creato);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"),
            (Names{"Config.cfg", "Config.txt", "KVR5.gif", "inputcfg.mdb"}));
  EXPECT_EQ(Read("Projects/Hall/Config.txt"), Read("Defaults/41Config.txt"));
  EXPECT_TRUE(Read("Projects/Hall/KVR5.gif") == Read("Pictures/KVR5.gif"));
  EXPECT_TRUE(Read("Projects/Hall/inputcfg.mdb") == Read("source.mdb"));
  EXPECT_EQ(Read("Projects/Hall/Config.cfg"),
            "[CONFIG]\r\nProjectName=Hall\r\nPlayerName=KVR5\r\nPlayerType=4\r\n"
            "PlayerConfig=0\r\nPlayerConfigDesc=KVR5 (Inputs)\r\nPlayerMode=1\r\nAnalyzer=0\r\n");
  EXPECT_EQ(s.CartellaProgetto, b.Percorso("program/Projects/Hall"));
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(NewProject, EachModeHasItsTemplateDatabaseAndDescription) {
  const struct {
    std::int16_t mode;
    const char* database;
    const char* words;
  } rows[] = {
      {1, "inputcfg.mdb", "KVR5 (Inputs)"},
      {2, "scheduler.mdb", "KVR5 (Scheduled)"},
      {5, "playlist.mdb", "KVR5 (Playlist by input)"},
      {6, "playlist.mdb", "KVR5 (Playlist by day of the week)"},
      {7, "playlist.mdb", "KVR5 (Playlist by combination of inputs)"},
  };
  for (const auto& row : rows) {
    const std::string name = "M" + std::to_string(row.mode);
    EXPECT_EQ(Create(name, row.mode), EsitoNuovo::Creato);
    EXPECT_EQ(b.Nomi("program/Projects/" + name),
              (Names{"Config.cfg", "Config.txt", "KVR5.gif", row.database}));
    EXPECT_EQ(s.PlayerConfigDesc, row.words);
    EXPECT_EQ(Read("Projects/" + name + "/Config.txt"),
              Read("Defaults/4" + std::to_string(row.mode) + "Config.txt"));
  }
}

TEST_F(NewProject, ANewDatabaseHoldsBothTablesWithoutRows) {
  Create("Hall", 2);
  Connection connection(b.C.Files);
  ASSERT_FALSE(connection.Open(b.Percorso("program/Projects/Hall/scheduler.mdb")));
  for (const char* table : {"SELECT * FROM [List]", "SELECT * FROM [HEAD]"}) {
    Recordset rows;
    ASSERT_FALSE(rows.Open(connection, table));
    EXPECT_EQ(rows.RecordCount(), 0);
  }
}

TEST_F(NewProject, AForbiddenCharacterEndsItWithoutAWordAndLeavesThePointer) {
  for (const char character : std::string("\\/:?\"<>|")) {
    b.Messaggi.Ora = Puntatore::Normale;
    EXPECT_EQ(Create(std::string("a") + character, 1), EsitoNuovo::CarattereVietato);
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Attesa);
  }
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_TRUE(b.Nomi("program/Projects").empty());
}

TEST_F(NewProject, TheNoteShowsTheCharacters) {
  EXPECT_EQ(NotaCaratteriVietati(b.C, " "),
            "A name can't hold these characters:  \\ / : ? \" < > |");
}

TEST_F(NewProject, TheNoteOfTheNameDialogShowsThemOnALineOfTheirOwn) {
  EXPECT_EQ(NotaCaratteriVietati(b.C, "\r\n"),
            "A name can't hold these characters:\r\n \\ / : ? \" < > |");
}

TEST_F(NewProject, AnEmptyNameIsAskedFor) {
  EXPECT_EQ(Create("", 1), EsitoNuovo::NomeVuoto);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Name missing");
  EXPECT_EQ(box.Testo, "Write the project's name");
  EXPECT_EQ(box.Segno, Icona::Informazione);
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(NewProject, ANameOfBlanksPassesTheTestAndFailsAtTheFolder) {
  // The name isn't trimmed; a folder can't end in a blank on the file systems of cards.
  EXPECT_EQ(Create("   ", 1), EsitoNuovo::CartellaNonCreata);
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "This step could not be completed\r\nN°:52\r\nBad file name or number");
}

TEST_F(NewProject, ALeadingBlankStaysInTheFoldersName) {
  EXPECT_EQ(Create(" Hall", 1), EsitoNuovo::Creato);
  EXPECT_TRUE(b.Cartella.Exists("program/Projects/ Hall/Config.cfg"));
}

TEST_F(NewProject, AnAsteriskPassesTheTestAndFailsAtTheFolder) {
  EXPECT_EQ(Create("Hall*", 1), EsitoNuovo::CartellaNonCreata);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Project folder not created: check the name and the projects folder");
  EXPECT_EQ(box.Testo, "This step could not be completed\r\nN°:52\r\nBad file name or number");
  EXPECT_EQ(box.Segno, Icona::Avviso);
  EXPECT_EQ(s.ProjectName, "Hall*");
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(NewProject, AnExistingNameIsRefusedWithoutRegardToCaseAndACorrectedOneGoesOn) {
  Create("Hall", 1);
  EXPECT_EQ(Create("HALL", 1), EsitoNuovo::CartellaEsistente);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Name already in use");
  EXPECT_EQ(box.Testo, "A project folder of this name exists. Choose another name.");
  EXPECT_EQ(box.Segno, Icona::Informazione);
  EXPECT_EQ(s.ProjectName, "HALL");
  EXPECT_EQ(s.CartellaProgetto, b.Percorso("program/Projects/HALL"));
  EXPECT_EQ(Create("Hall 2", 1), EsitoNuovo::Creato);
}

TEST_F(NewProject, AFolderThatCannotBeMadeIsTold) {
  s.CartellaProgetti = b.Percorso("no/where");
  EXPECT_EQ(Create("Hall", 1), EsitoNuovo::CartellaNonCreata);
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "This step could not be completed\r\nN°:76\r\nPath not found");
}

TEST_F(NewProject, TheNameAloneMakesNoFolder) {
  EXPECT_EQ(PreparaCartella(b.C, "Hall", true), EsitoNuovo::SoloNome);
  EXPECT_EQ(s.ProjectName, "Hall");
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/Hall"));
}

TEST_F(NewProject, TheNameAloneLeavesThePointer) {
  Create("Hall", 1);
  for (const char* name : {"", "Hall", "a:b", "New"}) {
    b.Messaggi.Ora = Puntatore::Attesa;
    PreparaCartella(b.C, name, true);
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Attesa) << name;
  }
  b.Finestre.Prossimo();
  b.Finestre.Prossimo();
}

TEST_F(NewProject, AFileOfTheNameIsAFolderThatCannotBeMade) {
  b.Cartella.Write("program/Projects/Hall", "a file");
  EXPECT_EQ(Create("Hall", 1), EsitoNuovo::CartellaNonCreata);
  EXPECT_EQ(b.Finestre.Prossimo().Testo,
            "This step could not be completed\r\nN°:75\r\nPath/File access error");
}

TEST_F(NewProject, ReservedAndDottedNamesAreRefusedByTheirBoxes) {
  for (const char* name : {"CON", "nul.x", "end."}) {
    EXPECT_EQ(Create(name, 1), EsitoNuovo::CartellaNonCreata) << name;
    EXPECT_EQ(b.Finestre.Prossimo().Titolo,
              "Project folder not created: check the name and the projects folder");
  }
  for (const char* name : {".", ".."}) {
    EXPECT_EQ(Create(name, 1), EsitoNuovo::CartellaEsistente) << name;
    EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Name already in use");
  }
}

TEST_F(NewProject, AnErrorFromBeforeIsNotThisStepsFailure) {
  b.C.Errore.Record(Error(errors::DeviceIo));
  EXPECT_EQ(Create("Hall", 1), EsitoNuovo::Creato);
}

TEST_F(NewProject, AnotherModelThanKvr5GetsAFolderOnly) {
  s.PlayerType = 3;
  EXPECT_EQ(CreaProgettoKvr5(b.C, "Hall", 1, {}), EsitoNuovo::Creato);
  EXPECT_TRUE(b.Cartella.Exists("program/Projects/Hall"));
  EXPECT_TRUE(b.Nomi("program/Projects/Hall").empty());
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(NewProject, AMissingTemplateEndsTheProgramAndLeavesWhatCameSoFar) {
  Remove("Defaults/46Config.txt");
  EXPECT_THROW(Create("Hall", 6), test::FineDelProgramma);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Project not created: a program file is missing");
  EXPECT_EQ(box.Testo,
            "Project not created: a program file is missing\r\nInstall the program again.\r\n"
            "The program ends now; delete the unfinished project folder.");
  EXPECT_EQ(box.Segno, Icona::Avviso);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), (Names{"Config.cfg", "KVR5.gif"}));
}

TEST_F(NewProject, AMissingSourceDatabaseEndsTheProgram) {
  Remove("source.mdb");
  EXPECT_THROW(Create("Hall", 1), test::FineDelProgramma);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Project not created: a program file is missing");
  EXPECT_EQ(box.Testo,
            "Project not created: the file source.mdb is missing\r\nInstall the program again.\r\n"
            "The program ends now; delete the unfinished project folder.");
  EXPECT_EQ(box.Segno, Icona::Avviso);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), (Names{"Config.cfg", "Config.txt", "KVR5.gif"}));
}

TEST_F(NewProject, AMissingPictureIsIgnored) {
  Remove("Pictures/KVR5.gif");
  EXPECT_EQ(Create("Hall", 1), EsitoNuovo::Creato);
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/Hall/KVR5.gif"));
}

TEST_F(NewProject, TheOtherModelsHoldTheirOwnFiles) {
  s.Analyzer = 1;
  b.CreaProgetto("V", 1, 7, 5);
  EXPECT_EQ(s.PlayerMode, 0);
  EXPECT_EQ(s.PlayerConfig, 0);
  EXPECT_EQ(s.Analyzer, 0);
  EXPECT_EQ(b.Nomi("program/Projects/V"),
            (Names{"Config.cfg", "Config.txt", "Veskadro.gif", "inputcfg.mdb"}));

  b.CreaProgetto("Z0", 2, 7, 0);
  EXPECT_EQ(s.PlayerMode, 0);
  EXPECT_EQ(s.PlayerConfigDesc, "Zub Player (Inputs)");
  EXPECT_EQ(b.Nomi("program/Projects/Z0"),
            (Names{"Config.cfg", "Config.txt", "Zub.gif", "inputcfg.mdb", "playlist.mdb"}));
  b.CreaProgetto("Z3", 2, 0, 3);
  EXPECT_EQ(b.Nomi("program/Projects/Z3"),
            (Names{"Config.cfg", "Config.txt", "Zub.gif", "playlist.mdb"}));

  for (std::int16_t mode = 2; mode <= 9; ++mode) {
    b.CreaProgetto("O" + std::to_string(mode), 3, mode);
    EXPECT_EQ(b.Nomi("program/Projects/O" + std::to_string(mode)),
              (Names{"Config.cfg", "Config.txt", mode <= 3 ? "scheduler.mdb" : "playlist.mdb"}))
        << "model 3 has no picture";
  }
}

TEST_F(NewProject, Model3InMode1ShowsItsNotice) {
  s.PlayerType = 3;
  s.PlayerMode = 1;
  s.PlayerName = "Ostrel";
  ASSERT_EQ(PreparaCartella(b.C, "O", false), EsitoNuovo::Creato);
  RiempiCartella(b.C);
  const auto box = b.Finestre.Prossimo();
  EXPECT_TRUE(box.SiNo);
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(box.Titolo, "Please note");
  EXPECT_NE(box.Testo, "") << "its key ends in a blank";
  EXPECT_EQ(box.TestoOk, "OK");
  EXPECT_EQ(b.Nomi("program/Projects/O"), (Names{"Config.cfg", "Config.txt", "inputcfg.mdb"}));
}

TEST_F(NewProject, AModelOutsideTheFourFillsNothing) {
  s.PlayerType = 0;
  RiempiCartella(b.C);
  EXPECT_TRUE(b.Nomi("program/Projects").empty());
}

TEST_F(NewProject, ANameIsGoodWhenAFolderCanHaveItAndTheDescriptorCanKeepIt) {
  for (const char* name :
       {"Hall", " Hall", "Museum-Hall-2", "Caff\u00E8", "a.b", "CON-1", "\u20AC"}) {
    EXPECT_EQ(DifettoDelNome(b.C, name), DifettoNome::Nessuno) << name;
  }
  const std::vector<std::pair<DifettoNome, Names>> bad{
      {DifettoNome::Carattere, {"Hall*", "a\tb", "Hall: \u65E5", "CON?"}},
      {DifettoNome::Fine, {"Hall ", "Hall.", "nul ", "..", "   "}},
      {DifettoNome::Riservato, {"CON", "com1.x", "nul.txt"}},
      {DifettoNome::Lettera, {"\u65E5\u672C", "\xFF"}},
      {DifettoNome::Lungo, {std::string(100, 'a'), std::string(300, 'a')}}};
  for (const auto& [fault, names] : bad) {
    for (const auto& name : names) EXPECT_EQ(DifettoDelNome(b.C, name), fault) << name;
  }
  EXPECT_EQ(DifettoDelNome(b.C, std::string(98, 'a') + "\u00E8"), DifettoNome::Nessuno);
}

TEST_F(NewProject, ANameThatIsNotAllowedIsRefusedWithItsNumberAsEver) {
  for (const char* name : {"Hall ", "Hall.", "CON", "Hall*", "\u65E5\u672C"}) {
    EXPECT_EQ(Create(name, 1), EsitoNuovo::CartellaNonCreata) << name;
    EXPECT_EQ(b.Finestre.Prossimo().Testo,
              "This step could not be completed\r\nN°:52\r\nBad file name or number");
    EXPECT_EQ(s.ProjectName, name);
  }
}

}  // namespace
}  // namespace kvr5
