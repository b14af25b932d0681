#include <gtest/gtest.h>

#include <algorithm>

#include "playerconfig/ConfigTxt.h"
#include "playerconfig/LineaSeriale.h"
#include "playerconfig/ValoriSchermo.h"
#include "projects/Descrittore.h"
#include "support/Banco.h"

// The tables of the three screens of parameters: what each reads, writes, and resets.

namespace kvr5 {
namespace {

using Screen = SchermoParametro;
using Keys = std::vector<std::string_view>;

constexpr const char* kConfig = "program/Projects/Hall/Config.txt";

Keys All(std::span<const std::string_view> keys) {
  return {keys.begin(), keys.end()};
}

class ScreenValues : public testing::Test {
 protected:
  ScreenValues() { b.CreaProgetto("Hall", 4, 1); }
  void Config(const std::string& lines) { b.Cartella.Write(kConfig, "[Config]\r\n" + lines); }
  std::string Config() const { return b.Cartella.Read(kConfig); }
  /// What the file holds after a screen was opened and saved at once.
  std::string SavedAsRead(Screen screen) {
    ValoriSchermo values(screen);
    values.Leggi(b.C);
    values.Scrivi(b.C);
    return Config();
  }

  test::Banco b;
};

TEST(ScreenTables, HoldTheKeysOfTheirScreenEachOnce) {
  for (const Screen screen : {Screen::Fade, Screen::Extra, Screen::Seriale}) {
    Keys owned;
    for (const auto& each : Parametri()) {
      if (each.Schermo == screen) owned.push_back(each.Chiave);
    }
    std::ranges::sort(owned);
    for (Keys keys : {All(OrdineDiLettura(screen)), All(OrdineDiScrittura(screen))}) {
      std::ranges::sort(keys);
      EXPECT_EQ(keys, owned);
    }
  }
}

TEST(ScreenTables, HaveAnOrderForTheLoadAndOneForTheSave) {
  EXPECT_EQ(All(OrdineDiLettura(Screen::Fade)),
            (Keys{"LMP3", "LLIN", "LLI2", "TFOU", "TFIN", "TADU", "TAVC"}));
  EXPECT_EQ(All(OrdineDiScrittura(Screen::Fade)),
            (Keys{"LMP3", "LLIN", "LLI2", "TAVC", "TFOU", "TFIN", "TADU"}));
  EXPECT_EQ(All(OrdineDiLettura(Screen::Extra)).back(), "INVR");
  EXPECT_EQ(All(OrdineDiScrittura(Screen::Extra)),
            (Keys{"OMON", "INVR", "PYDT", "PYDL", "TAPL", "RSPL", "MOMD"}));
}

TEST_F(ScreenValues, ASaveCompletesAFileThatLacksKeysInItsOwnOrder) {
  Config("LOUT=3\r\n");
  EXPECT_EQ(SavedAsRead(Screen::Fade),
            "[Config]\r\nLOUT=3\r\nLMP3=14\r\nLLIN=14\r\nLLI2=14\r\nTAVC=0\r\nTFOU=1\r\nTFIN=1\r\n"
            "TADU=1\r\n");
  Config("");
  EXPECT_EQ(SavedAsRead(Screen::Extra),
            "[Config]\r\nOMON=0\r\nINVR=0\r\nPYDT=0\r\nPYDL=0\r\nTAPL=0\r\nRSPL=1\r\nMOMD=0\r\n");
  Config("");
  EXPECT_EQ(SavedAsRead(Screen::Seriale),
            "[Config]\r\nCMAD=31\r\nCMCK=0\r\nCMCL=0\r\nCMBR=0\r\nCMPR=0\r\nCMSB=1\r\nCMDB=7\r\n"
            "CMDR=0\r\nCMI3=0\r\nORI3=0\r\n");
}

TEST_F(ScreenValues, ASaveKeepsEveryLineThatIsNotItsOwn) {
  Config("; made by hand\r\nWXYZ=9\r\nLMP3=3\r\nMPLL=5\r\n\r\n[Other]\r\nLMP3=8\r\nCMAD=4\r\n");
  EXPECT_EQ(SavedAsRead(Screen::Fade).substr(0, 59),
            "[Config]\r\n; made by hand\r\nWXYZ=9\r\nLMP3=3\r\nMPLL=5\r\nLLIN=14\r\n");
  EXPECT_TRUE(Config().ends_with("[Other]\r\nLMP3=8\r\nCMAD=4\r\n"));
}

TEST_F(ScreenValues, OfAKeyThatStandsTwiceTheFirstLineCounts) {
  Config("LMP3=3\r\nLMP3=5\r\n");
  ValoriSchermo values(Screen::Fade);
  values.Leggi(b.C);
  EXPECT_EQ(values["LMP3"].Numero, 3);
  values["LMP3"].Numero = 7;
  values.Scrivi(b.C);
  EXPECT_TRUE(Config().starts_with("[Config]\r\nLMP3=7\r\nLMP3=5\r\n"));
}

TEST_F(ScreenValues, AKeyThatIsTakenOutIsNeitherReadNorWritten) {
  Config("CMAD=4\r\nCMBR=2\r\n");
  ValoriSchermo values(Screen::Seriale);
  values.Escludi("CMAD");
  values.Leggi(b.C);
  EXPECT_EQ(values["CMAD"].Numero, 31);
  EXPECT_EQ(values["CMBR"].Numero, 2);
  values.Scrivi(b.C);
  EXPECT_TRUE(Config().starts_with("[Config]\r\nCMAD=4\r\nCMBR=2\r\n"));
}

TEST_F(ScreenValues, AMissingFileStaysMissingAtASave) {
  ValoriSchermo values(Screen::Extra);
  values.Leggi(b.C);
  std::filesystem::remove(b.Cartella.Host() / kConfig);
  values.Scrivi(b.C);
  EXPECT_FALSE(std::filesystem::exists(b.Cartella.Host() / kConfig));
}

TEST_F(ScreenValues, AReadOnlyFileStaysAsItIsAndIsAPendingError) {
  Config("LMP3=3\r\n");
  std::filesystem::permissions(b.Cartella.Host() / kConfig, std::filesystem::perms::owner_read);
  ValoriSchermo values(Screen::Fade);
  values.Leggi(b.C);
  values["LMP3"].Numero = 9;
  b.C.Errore.Clear();
  values.Scrivi(b.C);
  EXPECT_EQ(b.C.Errore.Last().Number(), 75);
  EXPECT_EQ(Config(), "[Config]\r\nLMP3=3\r\n");
}

TEST_F(ScreenValues, TheSerialPortIsResetToWhatThePlayersComeWith) {
  Config(
      "CMAD=3\r\nCMCK=0\r\nCMCL=1\r\nCMBR=0\r\nCMPR=2\r\nCMSB=2\r\nCMDB=7\r\nCMDR=9\r\nCMI3=1\r\n"
      "ORI3=1\r\n");
  ValoriSchermo values(Screen::Seriale);
  values.Leggi(b.C);
  values.Predefinisci();
  EXPECT_TRUE(Config().starts_with("[Config]\r\nCMAD=3\r\n")) << "nothing is written";
  values.Scrivi(b.C);
  EXPECT_EQ(Config(),
            "[Config]\r\nCMAD=31\r\nCMCK=1\r\nCMCL=0\r\nCMBR=3\r\nCMPR=0\r\nCMSB=1\r\nCMDB=8\r\n"
            "CMDR=0\r\nCMI3=4\r\nORI3=0\r\n");
}

TEST_F(ScreenValues, TheExtrasAreResetToTheFirstItems) {
  Config("OMON=1\r\nINVR=1\r\nPYDT=1\r\nPYDL=240\r\nTAPL=18\r\nRSPL=50\r\nMOMD=1\r\n");
  ValoriSchermo values(Screen::Extra);
  values.Leggi(b.C);
  values.Predefinisci();
  values.Scrivi(b.C);
  EXPECT_EQ(Config(),
            "[Config]\r\nOMON=0\r\nINVR=0\r\nPYDT=0\r\nPYDL=0\r\nTAPL=0\r\nRSPL=1\r\nMOMD=0\r\n");
}

TEST_F(ScreenValues, WithoutInvrBridgeModeIsOff) {
  Config("OMON=1\r\n");
  ValoriSchermo values(Screen::Extra);
  values.Leggi(b.C);
  EXPECT_EQ(values["INVR"].Numero, 0);
  EXPECT_EQ(values["OMON"].Numero, 1);
}

TEST_F(ScreenValues, TheDescriptorKeepsWhetherTheLinkIsInUse) {
  ScriviUse485(b.C, true);
  EXPECT_TRUE(b.C.Stato.Usa485);
  EXPECT_TRUE(LeggiUse485(b.C));
  ScriviUse485(b.C, false);
  EXPECT_FALSE(b.C.Stato.Usa485);
  EXPECT_FALSE(LeggiUse485(b.C));
  EXPECT_NE(b.Cartella.Read("program/Projects/Hall/Config.cfg").find("Use485=0"),
            std::string::npos);
}

TEST_F(ScreenValues, OnlyAKvr5SaysWhetherTheLinkIsInUse) {
  for (const std::int16_t type : std::initializer_list<std::int16_t>{0, 1, 2, 3, 4, 5}) {
    b.C.Stato.PlayerType = type;
    EXPECT_EQ(SceglieUse485(b.C), type == 4) << type;
  }
}

}  // namespace
}  // namespace kvr5
