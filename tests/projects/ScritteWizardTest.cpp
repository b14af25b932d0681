#include <gtest/gtest.h>

#include "projects/NuovoProgetto.h"
#include "support/Banco.h"

// The words of the three kinds of project, and the description that is made of them.

namespace kvr5 {
namespace {

using test::Banco;

class WizardWords : public testing::Test {
 protected:
  void Language(const std::string& texts) {
    b.Cartella.Write("program/Language/Test.lan", "[Strings]\r\n" + texts);
    b.C.Stato.FileLingua = b.Percorso("program/Language/Test.lan");
  }
  std::string Description(std::int16_t mode) {
    return DescrizioneKvr5(mode, ScritteDelWizard(b.C, mode));
  }

  Banco b;
};

TEST_F(WizardWords, AreTheBuiltInOnesWhereTheLanguageLacksThem) {
  Language("0020000=x\r\n");
  const auto words = ScritteDelWizard(b.C, 6);
  EXPECT_EQ(words.Ingressi, "Inputs");
  EXPECT_EQ(words.Palinsesto, "Scheduled");
  EXPECT_EQ(words.Playlist, "Playlist");
  EXPECT_EQ(words.VariantePlaylist, "") << "an item of the list has no text of its own";
}

TEST_F(WizardWords, AreTheBuiltInOnesWhereTheirTextsAreEmptyOrTheFileIsMissing) {
  Language("0160001=\r\n0160002=\r\n0160003=\r\n");
  EXPECT_EQ(Description(1), "KVR5 (Inputs)");
  b.C.Stato.FileLingua = b.Percorso("program/Language/Gone.lan");
  EXPECT_EQ(Description(2), "KVR5 (Scheduled)");
  EXPECT_FALSE(b.Cartella.Exists("program/Language/Gone.lan"));
}

TEST_F(WizardWords, FallBackOneByOne) {
  Language("0160002=Orari\r\n0160009=giorno\r\n");
  EXPECT_EQ(Description(1), "KVR5 (Inputs)");
  EXPECT_EQ(Description(2), "KVR5 (Orari)");
  EXPECT_EQ(Description(5), "KVR5 (Playlist )");
  EXPECT_EQ(Description(6), "KVR5 (Playlist giorno)");
  EXPECT_EQ(Description(7), "KVR5 (Playlist )");
}

TEST_F(WizardWords, ABlankTextIsAText) {
  Language("0160001=\" \"\r\n");
  EXPECT_EQ(Description(1), "KVR5 ( )");
}

TEST_F(WizardWords, AreThoseOfTheLanguage) {
  b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
  EXPECT_EQ(Description(1), "KVR5 (Ingressi)");
  EXPECT_EQ(Description(2), "KVR5 (Palinsesto)");
  EXPECT_EQ(Description(7), "KVR5 (Playlist da combinazione di ingressi)");
}

TEST_F(WizardWords, ReachTheDescriptorOfANewProject) {
  Language("0160009=giorno\r\n");
  b.C.Stato.PlayerType = 4;
  b.C.Stato.PlayerName = "KVR5";
  ASSERT_EQ(CreaProgettoKvr5(b.C, "Hall", 6, ScritteDelWizard(b.C, 6)), EsitoNuovo::Creato);
  EXPECT_NE(b.Cartella.Read("program/Projects/Hall/Config.cfg")
                .find("PlayerConfigDesc=KVR5 (Playlist giorno)\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace kvr5
