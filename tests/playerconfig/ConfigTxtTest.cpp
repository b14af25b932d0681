#include <gtest/gtest.h>

#include "playerconfig/ConfigTxt.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

class DeviceFile : public testing::Test {
 protected:
  void SetUp() override { b.CreaProgetto("Hall", 4, 1); }
  void Put(const std::string& text) { b.Cartella.Write("program/Projects/Hall/Config.txt", text); }
  std::string Text() { return b.Cartella.Read("program/Projects/Hall/Config.txt"); }
  std::string Value(const char* key) { return LeggiChiaveConfig(b.C, key); }

  Banco b;
};

TEST_F(DeviceFile, EveryTemplateHoldsEveryKeyWithAValueThatItsScreenCanHold) {
  const auto folder = b.Cartella.Host() / "program/Defaults";
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    Put(b.Cartella.Read("program/Defaults/" + entry.path().filename().string()));
    for (const auto& parameter : Parametri()) {
      const auto value = LeggiChiaveConfig(b.C, parameter.Chiave);
      EXPECT_EQ(ValoreAccettato(parameter, value), value) << entry.path() << parameter.Chiave;
    }
    ++count;
  }
  EXPECT_EQ(count, 19);
}

/// What a new player begins with: the levels, fades, extras and link that its screens begin with,
/// and a list that goes on by itself where the player has one.
TEST_F(DeviceFile, EveryTemplateHoldsTheFactoryValuesAndNothingElse) {
  const std::string before =
      "[Config]\r\nLOUT=14\r\nLLOU=0\r\nLTRE=10\r\nLBAS=10\r\nMOMN=0\r\nIMOD=0\r\nTPCM=0\r\n";
  const std::string after =
      "MIRS=1\r\nMPLL=5\r\nLMP3=14\r\nLLIN=14\r\nLLI2=14\r\nTFOU=2\r\nTFIN=2\r\nTADU=5\r\n"
      "TAVC=0\r\nCMAD=31\r\nCMCK=1\r\nCMCL=0\r\nCMBR=3\r\nCMPR=0\r\nCMSB=1\r\nCMDB=8\r\n"
      "CMDR=0\r\nCMI3=4\r\nORI3=0\r\nOMON=0\r\nINVR=0\r\nPYDT=0\r\nPYDL=0\r\nTAPL=0\r\nRSPL=1\r\n"
      "MOMD=0\r\n";
  for (const char* inputsOrTimes : {"1", "20", "31", "32", "33", "41", "42"}) {
    EXPECT_EQ(b.Cartella.Read(std::string("program/Defaults/") + inputsOrTimes + "Config.txt"),
              before + "MICP=0\r\n" + after)
        << inputsOrTimes;
  }
  for (const char* lists :
       {"21", "22", "23", "34", "35", "36", "37", "38", "39", "45", "46", "47"}) {
    EXPECT_EQ(b.Cartella.Read(std::string("program/Defaults/") + lists + "Config.txt"),
              before + "MICP=1\r\n" + after)
        << lists;
  }
}

TEST_F(DeviceFile, AKeyIsWrittenInPlaceAndTheRestStays) {
  Put("; first\r\n[Config]\r\nZZZZ=9\r\nLOUT=14\r\nMPLL=5\r\n[Other]\r\nLOUT=1\r\n");
  ScriviChiaveConfig(b.C, "LOUT", "3");
  EXPECT_EQ(Text(), "; first\r\n[Config]\r\nZZZZ=9\r\nLOUT=3\r\nMPLL=5\r\n[Other]\r\nLOUT=1\r\n");
}

TEST_F(DeviceFile, AMissingFileMakesEveryWriteANoOp) {
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/Config.txt");
  ScriviChiaveConfig(b.C, "LOUT", "3");
  ControlliHub().AggiornaFile_ConfigTXT(b.C);
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/Hall/Config.txt"));
}

TEST_F(DeviceFile, OnlyInvrHasADefault) {
  Put("[Config]\r\n");
  EXPECT_EQ(Value("INVR"), "0");
  EXPECT_EQ(Value("LOUT"), "");
}

TEST_F(DeviceFile, TheHubWritesItsKeysInOrderAndLeavesTheOthers) {
  Put("[Config]\r\nXTRA=7\r\n");
  ControlliHub().AggiornaFile_ConfigTXT(b.C);
  EXPECT_EQ(Text(),
            "[Config]\r\nXTRA=7\r\nLOUT=14\r\nLLOU=0\r\nLTRE=10\r\nLBAS=10\r\nMOMN=0\r\n"
            "IMOD=0\r\nTPCM=0\r\nMICP=0\r\nMIRS=0\r\n");
}

TEST_F(DeviceFile, EveryParameterOfTheHubHasItsControlInItsFormsState) {
  const ControlliHub hub;
  for (const auto& parameter : Parametri()) {
    if (parameter.Schermo != SchermoParametro::Hub) continue;
    EXPECT_EQ(hub[parameter.Chiave], StatoIniziale(parameter)) << parameter.Chiave;
  }
}

TEST_F(DeviceFile, AZeroMirsIsShownAsRestartAndSavedAsOne) {
  Put("[Config]\r\nMIRS=0\r\n");
  ControlliHub hub;
  hub.Leggi(b.C);
  EXPECT_EQ(hub["MIRS"].Numero, 1);
  hub.AggiornaFile_ConfigTXT(b.C);
  EXPECT_EQ(Value("MIRS"), "1");
}

TEST_F(DeviceFile, MpllKeepsTheTemplatesValueThroughAnyNumberOfSaves) {
  ScriviChiaveConfig(b.C, "MPLL", "5");
  ControlliHub hub;
  for (int i = 0; i < 3; ++i) {
    hub.Leggi(b.C);
    hub["MPLL"].Numero = 6;
    hub.AggiornaFile_ConfigTXT(b.C);
  }
  EXPECT_EQ(Value("MPLL"), "5");
  hub.MpllVisibile = true;
  hub.AggiornaFile_ConfigTXT(b.C);
  EXPECT_EQ(Value("MPLL"), "6");
}

TEST_F(DeviceFile, AnUnknownKeyOfTheTemplateSurvivesEverySave) {
  Put(Text() + "ABCD=keep me\r\n");
  ControlliHub hub;
  hub.Leggi(b.C);
  hub.AggiornaFile_ConfigTXT(b.C);
  EXPECT_NE(Text().find("ABCD=keep me\r\n"), std::string::npos);
}

TEST_F(DeviceFile, TheTextOfTheTimeBoxIsWrittenAsItStands) {
  ControlliHub hub;
  hub["TPCM"].Testo = "007";
  hub.AggiornaFile_ConfigTXT(b.C);
  EXPECT_EQ(Value("TPCM"), "007");
}

TEST_F(DeviceFile, ASavedProjectReadsBackTheSame) {
  ControlliHub hub;
  hub["LOUT"].Numero = 20;
  hub["LLOU"].Numero = 3;
  hub["IMOD"].Numero = 1;
  hub["TPCM"] = {1, "255"};
  hub["MICP"].Numero = 1;
  hub.AggiornaFile_ConfigTXT(b.C);
  ControlliHub again;
  again.Leggi(b.C);
  for (const auto* key : {"LOUT", "LLOU", "LTRE", "LBAS", "MOMN", "IMOD", "TPCM", "MICP"}) {
    EXPECT_EQ(again[key], hub[key]) << key;
  }
}

TEST_F(DeviceFile, DamagedFilesLeaveTheControlsAndAreNotMadeWorse) {
  for (const auto& text : {std::string(), std::string("[Conf"), std::string(9999, '\0'),
                           std::string("\xFE\xED\xFA\xCE")}) {
    Put(text);
    ControlliHub hub;
    hub.Leggi(b.C);
    EXPECT_EQ(hub["LOUT"].Numero, 14);
    EXPECT_EQ(Text(), text);
    hub.AggiornaFile_ConfigTXT(b.C);
    EXPECT_TRUE(Text().starts_with(text)) << "what was there stays";
  }
}

}  // namespace
}  // namespace kvr5
