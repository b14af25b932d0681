#include <gtest/gtest.h>

#include "core/Avvio.h"
#include "core/Lingua.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;
constexpr std::uint32_t kItalian = 1040;
constexpr std::uint32_t kSwissItalian = 2064;

class Language : public testing::Test {
 protected:
  void SetUp() override { Settings("[Config]\r\n"); }
  void Settings(const std::string& text) { b.Cartella.Write("program/KVR5Software.ini", text); }
  void Remove(const std::string& name) {
    std::filesystem::remove(b.Cartella.Host() / "program/Language" / name);
  }
  std::string Chosen(std::uint32_t lcid) {
    b.C.Luogo.Lcid = lcid;
    ImpostaFileLingua(b.C);
    return b.C.Stato.FileLingua.substr(b.C.Stato.FileLingua.rfind('\\') + 1);
  }

  Banco b;
};

TEST_F(Language, TheLocale1040AloneTakesItalian) {
  EXPECT_EQ(Chosen(kItalian), "Italiano.lan");
  EXPECT_EQ(Chosen(kSwissItalian), "English.lan");
  EXPECT_EQ(Chosen(1033), "English.lan");
}

TEST_F(Language, WithoutItalianoLanTheLocale1040TakesEnglish) {
  Remove("Italiano.lan");
  EXPECT_EQ(Chosen(kItalian), "English.lan");
}

TEST_F(Language, WithoutEnglishLanTheLocale1040TakesItalianAllTheSame) {
  Remove("English.lan");
  EXPECT_EQ(Chosen(kItalian), "Italiano.lan");
}

TEST_F(Language, WithoutAnyTheProgramEndsInFixedWords) {
  Remove("Italiano.lan");
  Remove("English.lan");
  try {
    Chosen(kItalian);
    FAIL() << "the program went on";
  } catch (const test::FineDelProgramma& end) {
    EXPECT_EQ(end.Motivo, MotivoFine::LinguaMancante);
  }
  EXPECT_EQ(b.C.Stato.LinguaUtente, kItalian);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Segno, Icona::Avviso);
  EXPECT_EQ(box.Titolo, "Language file not found");
  EXPECT_EQ(box.Testo,
            "Unable to locate the language file 'English.lan'\r\n"
            "Copy the language file in the language directory\r\n"
            "and start the configuration program");
}

TEST_F(Language, ASettingIsTakenUnchecked) {
  Settings("[Config]\r\nLanguageFile=Gone.lan\r\n");
  EXPECT_EQ(Chosen(kItalian), "Gone.lan");
  EXPECT_EQ(b.C.Stato.LinguaUtente, 0U) << "the locale isn't asked";
  EXPECT_EQ(TestoLingua(b.C, "0020000"), "");
  EXPECT_EQ(TestoLinguaO(b.C, "0160001", "Inputs"), "Inputs");
}

TEST_F(Language, TextsComeByTheirKeys) {
  Chosen(1033);
  EXPECT_EQ(TestoLingua(b.C, "0020000"), "KVR5 Software Configuration");
  EXPECT_EQ(TestoLingua(b.C, "9999999"), "");
  EXPECT_EQ(TestoLingua(b.C, "0040054 "), TestoLingua(b.C, "0040054"));
  EXPECT_NE(TestoLingua(b.C, "0040054 "), "");
}

TEST_F(Language, TextsAreOfTheLanguageFilesOwnCodePage) {
  b.C.Luogo.AnsiCodePage = 1251;
  b.Cartella.Write("program/Language/Test.lan", "[Strings]\r\n0010001=citt\xE0\r\n");
  b.C.Stato.FileLingua = b.Percorso("program/Language/Test.lan");
  EXPECT_EQ(TestoLingua(b.C, "0010001"), "città");
}

TEST_F(Language, ADamagedFileGivesNoTextAndStaysAsItIs) {
  for (const auto& text : {std::string(), std::string(4096, '\0'), std::string("[Str"),
                           std::string("\xFE\xFF\x01\x02")}) {
    b.Cartella.Write("program/Language/English.lan", text);
    EXPECT_EQ(TestoLingua(b.C, "0020000"), "");
    EXPECT_EQ(b.Cartella.Read("program/Language/English.lan"), text);
  }
}

TEST_F(Language, AFolderOfTheFilesNameGivesNoText) {
  Remove("English.lan");
  b.Cartella.Write("program/Language/English.lan/inside", "");
  EXPECT_EQ(TestoLingua(b.C, "0020000"), "");
}

TEST_F(Language, AStartWithoutSettingsWarnsInFixedWordsAndFillsThem) {
  std::filesystem::remove(b.Cartella.Host() / "program/KVR5Software.ini");
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects");
  AvviaSenzaSchermate(b.C);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Configuration file not found");
  EXPECT_TRUE(b.Cartella.Exists("program/Projects"));
  EXPECT_NE(b.Cartella.Read("program/KVR5Software.ini").find("UseExternalPlayer=0"),
            std::string::npos);
}

TEST_F(Language, AProjectsFolderThatIsMissingIsMadeAtStart) {
  Settings("[Path]\r\nProjectsDir=" + b.Percorso("mine") + "\r\n");
  AvviaSenzaSchermate(b.C);
  EXPECT_TRUE(b.Cartella.Exists("mine"));
  Settings("[Path]\r\nProjectsDir=" + b.Percorso("no/where") + "\r\n");
  AvviaSenzaSchermate(b.C);  // can't be made: the program goes on
  EXPECT_FALSE(b.Cartella.Exists("no"));
  EXPECT_FALSE(b.C.Errore);
}

}  // namespace
}  // namespace kvr5
