#include <gtest/gtest.h>

#include "core/Avvio.h"
#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "support/Banco.h"

// What a start leaves, and the starts after the first: in a new process, and again in the same one
// after a visit to the settings.

namespace kvr5 {
namespace {

using test::Banco;

class Start : public testing::Test {
 protected:
  using Routine = void (*)(Contesto&);
  /// Both ways to start: with the language chosen here, and by the caller.
  static constexpr Routine kBoth[] = {AvviaSenzaSchermate, AvviaConLingua};

  std::string Program(const std::string& name) { return b.Percorso("program") + "\\" + name; }
  void Settings(const std::string& text) { b.Cartella.Write("program/KVR5Software.ini", text); }
  void MakeReadOnly(const std::string& name) {
    std::filesystem::permissions(b.Cartella.Host() / name, std::filesystem::perms::owner_read);
  }
  void RemoveFolder(const std::string& name) {
    std::filesystem::remove_all(b.Cartella.Host() / name);
  }

  Banco b;
};

TEST_F(Start, WithEnableDebugMakesTheLogFolder) {
  Settings("[Config]\r\nEnableDebug=1\r\n");
  for (const Routine start : kBoth) {
    RemoveFolder("program/Logs");
    start(b.C);
    EXPECT_TRUE(b.Cartella.Exists("program/Logs"));
    EXPECT_TRUE(b.Nomi("program/Logs").empty());
    EXPECT_FALSE(b.C.Stato.DebugAbilitato);
  }
}

TEST_F(Start, WithoutEnableDebugMakesNoLogFolder) {
  Settings("[Config]\r\nEnableDebug=0\r\n");
  for (const Routine start : kBoth) {
    start(b.C);
    EXPECT_FALSE(b.Cartella.Exists("program/Logs"));
  }
}

TEST_F(Start, LeavesNoErrorOfSettingsThatCannotBeWritten) {
  Settings("[Config]\r\n");
  MakeReadOnly("program/KVR5Software.ini");
  LeggiOpzioniApplicazione(b.C);
  ASSERT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
  for (const Routine start : kBoth) {
    start(b.C);
    EXPECT_FALSE(b.C.Errore) << b.C.Errore.Last().Description();
  }
}

TEST_F(Start, LeavesNoErrorOfALogFolderThatCannotBeMade) {
  b.Cartella.Write("program/Logs", "a file bears the name");
  Settings("[Config]\r\nEnableDebug=1\r\n");
  for (const Routine start : kBoth) {
    start(b.C);
    EXPECT_FALSE(b.C.Errore) << b.C.Errore.Last().Description();
  }
}

TEST_F(Start, WithADefaultFolderOfOver99CharactersWritesItWholeAndUsesItCut) {
  // The program's folder has 95 characters: of "\Projects" behind it, "\Pro" comes back.
  const std::size_t before = b.Percorso("").size() + 1;
  ASSERT_LT(before, 90U);
  const std::string name(95 - before, 'p');
  std::filesystem::rename(b.Cartella.Host() / "program", b.Cartella.Host() / name);
  RemoveFolder(name + "/Projects");
  b.C.CartellaProgramma = b.Percorso(name);
  ASSERT_EQ(b.C.CartellaProgramma.size(), 95U);
  b.Cartella.Write(name + "/KVR5Software.ini", "[Config]\r\n");
  AvviaSenzaSchermate(b.C);
  EXPECT_EQ(b.Cartella.Read(name + "/KVR5Software.ini"),
            "[Config]\r\nUseExternalPlayer=0\r\n[Path]\r\nProjectsDir=" + b.Percorso(name) +
                "\\Projects\r\n");
  EXPECT_EQ(b.C.Stato.CartellaProgetti, b.Percorso(name) + "\\Pro");
  EXPECT_TRUE(b.Cartella.Exists(name + "/Pro"));
  EXPECT_TRUE(b.Cartella.Exists(name + "/Projects")) << "it was made before the key was read again";
}

class SecondStart : public testing::Test {
 protected:
  void SetUp() override {
    b.Cartella.Write("program/KVR5Software.ini", "[Config]\r\n");
    AvviaSenzaSchermate(b.C);
    ASSERT_EQ(b.C.Stato.FileLingua, Program("Language\\English.lan"));
    ASSERT_EQ(b.C.Stato.CartellaProgetti, Program("Projects"));
    ASSERT_FALSE(b.C.Stato.UsaPlayerEsterno);
  }
  std::string Program(const std::string& name) { return b.Percorso("program") + "\\" + name; }
  std::string Text() { return b.Cartella.Read("program/KVR5Software.ini"); }
  void Set(const char* section, const char* key, const std::string& value) {
    ScriviParametroIni(b.C, FileImpostazioni(b.C), section, key, value);
  }
  /// What the screen of the settings stores.
  void ChangeAll() {
    Set("Path", "ProjectsDir", b.Percorso("mine") + "\\");
    Set("Config", "UseExternalPlayer", "1");
    Set("Config", "LanguageFile", "Italiano.lan");
  }
  void ExpectChanged(Contesto& contesto) {
    EXPECT_EQ(contesto.Stato.FileLingua, Program("Language\\Italiano.lan"));
    EXPECT_EQ(TestoLingua(contesto, "0160001"), "Ingressi");
    EXPECT_EQ(contesto.Stato.CartellaProgetti, b.Percorso("mine") + "\\");
    EXPECT_TRUE(contesto.Stato.UsaPlayerEsterno);
    EXPECT_TRUE(b.Cartella.Exists("mine"));
  }

  Banco b;
};

TEST_F(SecondStart, ChangesNothingByItself) {
  const std::string before = Text();
  AvviaSenzaSchermate(b.C);
  EXPECT_EQ(Text(), before);
  EXPECT_EQ(b.C.Stato.FileLingua, Program("Language\\English.lan"));
  EXPECT_EQ(b.C.Stato.CartellaProgetti, Program("Projects"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(SecondStart, TakesChangedSettingsInTheSameProcess) {
  ChangeAll();
  const std::string before = Text();
  AvviaSenzaSchermate(b.C);
  ExpectChanged(b.C);
  EXPECT_EQ(Text(), before);
}

TEST_F(SecondStart, TakesChangedSettingsInANewProcess) {
  ChangeAll();
  Contesto next{b.Disco, b.Finestre, b.Messaggi, b.Copia, b.Ora, b.Programma, b.C.CartellaProgramma,
                {},      {},         {}};
  AvviaSenzaSchermate(next);
  ExpectChanged(next);
}

TEST_F(SecondStart, TakesSettingsBackToTheirDefaults) {
  ChangeAll();
  AvviaSenzaSchermate(b.C);
  Set("Path", "ProjectsDir", "");
  Set("Config", "UseExternalPlayer", "");
  Set("Config", "LanguageFile", "");
  AvviaSenzaSchermate(b.C);
  EXPECT_EQ(b.C.Stato.FileLingua, Program("Language\\English.lan"));
  EXPECT_EQ(b.C.Stato.CartellaProgetti, Program("Projects"));
  EXPECT_FALSE(b.C.Stato.UsaPlayerEsterno);
  EXPECT_EQ(Text(), "[Config]\r\nUseExternalPlayer=0\r\nLanguageFile=\r\n[Path]\r\nProjectsDir=" +
                        Program("Projects") + "\r\n");
}

TEST_F(SecondStart, MakesAProjectsFolderThatWentAway) {
  std::filesystem::remove(b.Cartella.Host() / "program/Projects");
  AvviaSenzaSchermate(b.C);
  EXPECT_TRUE(b.Cartella.Exists("program/Projects"));
}

TEST_F(SecondStart, WithoutTheSettingsWarnsAndStartsFromTheDefaults) {
  ChangeAll();
  AvviaSenzaSchermate(b.C);
  std::filesystem::remove(b.Cartella.Host() / "program/KVR5Software.ini");
  AvviaSenzaSchermate(b.C);
  EXPECT_EQ(b.Finestre.Prossimo().Testo, "Unable to find configuration file.File will be created");
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.C.Stato.FileLingua, Program("Language\\English.lan"));
  EXPECT_EQ(b.C.Stato.CartellaProgetti, Program("Projects"));
  EXPECT_FALSE(b.C.Stato.UsaPlayerEsterno);
}

TEST_F(Start, AProjectIsAFolderWithBothItsFilesHiddenOrNot) {
  b.Cartella.Write("program/Projects/file", "");
  b.Cartella.Write("program/Projects/pictures/a.jpg", "");
  b.Cartella.Write("program/Projects/only-cfg/Config.cfg", "");
  b.Cartella.Write("program/Projects/only-txt/Config.txt", "");
  EXPECT_FALSE(HaProgetti(b.C));
  b.Cartella.Write("program/Projects/.hidden/CONFIG.TXT", "");
  b.Cartella.Write("program/Projects/.hidden/config.cfg", "");
  EXPECT_TRUE(HaProgetti(b.C));
  b.C.Stato.CartellaProgetti = b.Percorso("no-where");
  EXPECT_FALSE(HaProgetti(b.C));
}

}  // namespace
}  // namespace kvr5
