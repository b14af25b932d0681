#include <gtest/gtest.h>

#include "core/Avvio.h"
#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "support/Banco.h"

// Starts after the first: in a new process, and again in the same one after a visit to the
// settings.

namespace kvr5 {
namespace {

using test::Banco;

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

}  // namespace
}  // namespace kvr5
