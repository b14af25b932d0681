#include <gtest/gtest.h>

#include "core/Impostazioni.h"
#include "core/Registro.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

class Settings : public testing::Test {
 protected:
  std::string Ini() { return FileImpostazioni(b.C); }
  std::string Read(const std::string& section, const std::string& key,
                   const std::string& fallback = "") {
    return LeggiParametroIni(b.C, Ini(), section, key, fallback);
  }
  void Write(const std::string& text) { b.Cartella.Write("program/KVR5Software.ini", text); }
  std::string Text() { return b.Cartella.Read("program/KVR5Software.ini"); }

  Banco b;
};

TEST_F(Settings, ReadingAMissingFileWarnsOnceMakesItAndGivesTheDefault) {
  EXPECT_EQ(Read("Path", "LastMp3Dir", "C:\\"), "C:\\");
  EXPECT_EQ(Text(), "[Config]\r\n");
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Configuration file not found");
  EXPECT_EQ(box.Testo, "Unable to find configuration file.File will be created");
  EXPECT_EQ(box.Segno, Icona::Avviso);
  EXPECT_EQ(Read("Path", "LastMp3Dir", "C:\\"), "C:\\");
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Settings, AFileThatCannotBeMadeEndsTheProgram) {
  b.Cartella.Write("program/KVR5Software.ini/inside", "");  // a folder bears the name
  try {
    Read("Config", "LanguageFile");
    FAIL() << "the program went on";
  } catch (const test::FineDelProgramma& end) {
    EXPECT_EQ(end.Motivo, MotivoFine::ImpostazioniNonCreabili);
  }
  EXPECT_EQ(b.Finestre.Prossimo().Testo, "Unable to find configuration file.File will be created");
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Configuration file not found");
  EXPECT_EQ(box.Testo, "Unable to read configuration file.Program will be ended");
  EXPECT_EQ(box.Segno, Icona::Avviso);
  EXPECT_TRUE(b.Cartella.Exists("program/KVR5Software.ini/inside"));
}

TEST_F(Settings, WritingToAMissingFileChangesNothingAndSaysNothing) {
  ScriviParametroIni(b.C, Ini(), "Config", "UseExternalPlayer", "1");
  EXPECT_FALSE(b.Cartella.Exists("program/KVR5Software.ini"));
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(Settings, AnEmptyValueGivesTheDefault) {
  Write("[Config]\r\nKey=\r\n");
  EXPECT_EQ(Read("Config", "Key", "x"), "x");
  EXPECT_EQ(Read("Config", "Key"), "");
}

TEST_F(Settings, AValueHasAtMost99Characters) {
  for (const auto& [length, expected] : {std::pair{98, 98}, {99, 99}, {100, 99}, {300, 99}}) {
    Write("[Config]\r\nKey=" + std::string(static_cast<std::size_t>(length), 'a') + "\r\n");
    EXPECT_EQ(Read("Config", "Key").size(), static_cast<std::size_t>(expected));
  }
}

TEST_F(Settings, CharactersOfAnAccentedPathCountAsOneEach) {
  std::string accented;
  for (int i = 0; i < 120; ++i) accented += "à";
  Write("[Path]\r\nProjectsDir=" + accented + "\r\n");
  EXPECT_EQ(Read("Path", "ProjectsDir"), accented.substr(0, 99 * 2));
}

TEST_F(Settings, ALanguageTextHasAtMost253CharactersAndMakesNoFile) {
  const std::string file = b.Percorso("program/Language/Test.lan");
  EXPECT_EQ(LeggiIniSemplice(b.C, file, "Strings", "0020000", "x"), "x");
  EXPECT_FALSE(b.Cartella.Exists("program/Language/Test.lan"));
  for (const auto& [length, expected] : {std::pair{253, 253}, {254, 253}}) {
    b.Cartella.Write(
        "program/Language/Test.lan",
        "[Strings]\r\n0020000=" + std::string(static_cast<std::size_t>(length), '\xE0') + "\r\n");
    EXPECT_EQ(LeggiIniSemplice(b.C, file, "Strings", "0020000").size(),
              static_cast<std::size_t>(expected) * 2);
  }
}

TEST_F(Settings, WritingUpdatesOneLineAndKeepsTheRest) {
  Write("; mine\r\n[Config]\r\nUseExternalPlayer=0\r\nOther=1\r\n");
  ScriviParametroIni(b.C, Ini(), "Config", "useexternalplayer", "1");
  EXPECT_EQ(Text(), "; mine\r\n[Config]\r\nUseExternalPlayer=1\r\nOther=1\r\n");
}

TEST_F(Settings, AWriteThatFailsIsThePendingError) {
  Write("[Config]\r\n");
  std::filesystem::permissions(b.Cartella.Host() / "program/KVR5Software.ini",
                               std::filesystem::perms::owner_read);
  ScriviParametroIni(b.C, Ini(), "Config", "Key", "1");
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
  EXPECT_EQ(Text(), "[Config]\r\n");
}

TEST_F(Settings, OptionsTakeTheirDefaultsAndWriteThem) {
  Write("[Config]\r\n");
  LeggiOpzioniApplicazione(b.C);
  EXPECT_EQ(b.C.Stato.CartellaProgetti, b.Percorso("program") + "\\Projects");
  EXPECT_FALSE(b.C.Stato.UsaPlayerEsterno);
  EXPECT_EQ(Text(), "[Config]\r\nUseExternalPlayer=0\r\n[Path]\r\nProjectsDir=" +
                        b.Percorso("program") + "\\Projects\r\n");
}

TEST_F(Settings, TheExternalPlayerIsTakenForOneOnly) {
  for (const auto& [value, external] :
       {std::pair{"1", true}, {"2", false}, {"0", false}, {"yes", false}}) {
    Write("[Config]\r\nUseExternalPlayer=" + std::string(value) +
          "\r\n[Path]\r\nProjectsDir=C:\\\r\n");
    const std::string before = Text();
    LeggiOpzioniApplicazione(b.C);
    EXPECT_EQ(b.C.Stato.UsaPlayerEsterno, external) << value;
    EXPECT_EQ(Text(), before) << "the value is left in the file";
  }
}

TEST_F(Settings, AProjectsFolderTypedInTheHostsFormIsTaken) {
  Write("[Path]\r\nProjectsDir=" + (b.Cartella.Host() / "program/Projects").string() + "\r\n");
  LeggiOpzioniApplicazione(b.C);
  EXPECT_EQ(b.C.Stato.CartellaProgetti, b.Percorso("program/Projects"));
}

TEST_F(Settings, BadSettingsFilesAreReadWithoutHarm) {
  std::string million;
  for (int i = 0; i < 1000000; ++i) million += "a=b\r\n";
  for (const auto& text : {std::string(), std::string(5000, '\0'), std::string("[Confi"),
                           std::string("\xFF\xFE\x00\x01\x02=", 6), million}) {
    Write(text);
    EXPECT_EQ(Read("Path", "LastMp3Dir", "C:\\"), "C:\\");
    EXPECT_EQ(Text(), text);
  }
}

TEST_F(Settings, EnableDebugMakesTheFolderAndNothingElse) {
  for (const auto& value : {"yes", "01", ""}) {
    Write("[Config]\r\nEnableDebug=" + std::string(value) + "\r\n");
    InizializzaLog(b.C);
    EXPECT_FALSE(b.Cartella.Exists("program/Logs")) << value;
  }
  Write("[Config]\r\nEnableDebug=1\r\n");
  InizializzaLog(b.C);
  EXPECT_TRUE(b.Cartella.Exists("program/Logs"));
  EXPECT_FALSE(b.C.Stato.DebugAbilitato);
  ScriviParametroIni(b.C, b.Percorso("program/gone.ini"), "a", "b", "c");
  EXPECT_TRUE(b.Nomi("program/Logs").empty()) << "no line comes from the settings store";
}

TEST_F(Settings, ALogLineIsTheTimeABlankAndTheMessage) {
  ScriviLog(b.C, "frmPlayerConfig/Routine cmdOKFileMp3: err n°53:File not found");
  ScriviLog(b.C, "File: a.mp3");
  EXPECT_EQ(b.Cartella.Read("program/Logs/20061020.log"),
            "08:05:09 frmPlayerConfig/Routine cmdOKFileMp3: err n\xB0"
            "53:File not found\r\n"
            "08:05:09 File: a.mp3\r\n");
}

TEST_F(Settings, AHiddenFileIsReadAndWrittenAndNotAddedTo) {
  b.Cartella.Write(".hidden.ini", "[Config]\r\nKey=1\r\n");
  const std::string file = b.Percorso(".hidden.ini");
  EXPECT_EQ(LeggiParametroIni(b.C, file, "Config", "Key"), "1");
  ScriviParametroIni(b.C, file, "Config", "Key", "2");
  EXPECT_EQ(b.Cartella.Read(".hidden.ini"), "[Config]\r\nKey=2\r\n");
}

TEST_F(Settings, ReadingAnyMissingIniFileMakesIt) {
  for (const char* name : {"Config.txt", "config.cfg", "Test.lan"}) {
    EXPECT_EQ(LeggiParametroIni(b.C, b.Percorso(name), "a", "b", "x"), "x");
    EXPECT_EQ(b.Cartella.Read(name), "[Config]\r\n");
    EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Configuration file not found");
  }
}

TEST_F(Settings, TheFailureLinesOfTheStoreWouldSayWhatFailed) {
  b.C.Stato.DebugAbilitato = true;  // no code of the program does this
  LeggiParametroIni(b.C, b.Percorso("a.ini"), "s", "k");
  b.Finestre.Prossimo();
  ScriviParametroIni(b.C, b.Percorso("b.ini"), "s", "k", "v");
  EXPECT_EQ(b.Cartella.Read("program/Logs/20061020.log"),
            "08:05:09 Read file " + b.Percorso("a.ini") +
                ": File non found.File will be crated\r\n08:05:09 Scrittura file " +
                b.Percorso("b.ini") +
                "Sezione [s] Parametro=k Valore=v : Errore lettura parametri - errore:file "
                "inesistente\r\n");
}

TEST_F(Settings, EmptyOptionsTakeTheirDefaultsAndTheProjectsFolderIsMade) {
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects");
  Write("[Config]\r\nUseExternalPlayer=\r\n[Path]\r\nProjectsDir=\r\n");
  LeggiOpzioniApplicazione(b.C);
  EXPECT_EQ(Text(), "[Config]\r\nUseExternalPlayer=0\r\n[Path]\r\nProjectsDir=" +
                        b.Percorso("program") + "\\Projects\r\n");
  EXPECT_TRUE(b.Cartella.Exists("program/Projects"));
}

TEST_F(Settings, AProjectsFolderOf100CharactersComesBackCut) {
  const std::string longPath = "C:\\" + std::string(120, 'a');
  Write("[Path]\r\nProjectsDir=" + longPath + "\r\n");
  LeggiOpzioniApplicazione(b.C);
  EXPECT_EQ(b.C.Stato.CartellaProgetti, longPath.substr(0, 99));
}

TEST_F(Settings, AReadOnlyFileWithoutKeysLeavesNoProjectsFolderAndTheProgramGoesOn) {
  Write("[Config]\r\n");
  std::filesystem::permissions(b.Cartella.Host() / "program/KVR5Software.ini",
                               std::filesystem::perms::owner_read);
  LeggiOpzioniApplicazione(b.C);
  EXPECT_EQ(b.C.Stato.CartellaProgetti, "");
  EXPECT_EQ(Text(), "[Config]\r\n");
}

TEST_F(Settings, AFolderForTheLogThatCannotBeMadeIsAPendingError) {
  b.Cartella.Write("program/Logs", "a file bears the name");
  Write("[Config]\r\nEnableDebug=1\r\n");
  InizializzaLog(b.C);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
  EXPECT_FALSE(b.C.Stato.DebugAbilitato);
}

TEST_F(Settings, EachDayHasItsLogAndACharacterOutsideThePageIsAQuestionMark) {
  ScriviLog(b.C, "日");
  b.Ora.Ora.tm_mday = 21;
  ScriviLog(b.C, "next day");
  EXPECT_EQ(b.Cartella.Read("program/Logs/20061020.log"), "08:05:09 ?\r\n");
  EXPECT_EQ(b.Cartella.Read("program/Logs/20061021.log"), "08:05:09 next day\r\n");
}

TEST_F(Settings, ALogThatCannotBeWrittenIsSilent) {
  b.Cartella.Write("program/Logs", "a file bears the name");
  ScriviLog(b.C, "lost");
  EXPECT_FALSE(b.C.Errore);
}

}  // namespace
}  // namespace kvr5
