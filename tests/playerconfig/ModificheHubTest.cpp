#include <gtest/gtest.h>

#include <map>

#include "playerconfig/ModificheHub.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;
using Keys = std::vector<std::string_view>;

class UnsavedSign : public testing::Test {
 protected:
  void SetUp() override { b.CreaProgetto("Hall", 4, 1); }
  void Put(const std::string& text) { b.Cartella.Write("program/Projects/Hall/Config.txt", text); }
  void Set(const char* key, const char* value) { ScriviChiaveConfig(b.C, key, value); }
  void Load() {
    hub.Leggi(b.C);
    sign.Rileggi(b.C);
  }
  Keys Different() { return sign.Diverse(hub); }
  /// What a load makes of one value that stands in the file.
  Keys After(const char* key, const char* value) {
    hub = ControlliHub();
    hub.AggiornaFile_ConfigTXT(b.C);
    Set("MIRS", "1");
    Set(key, value);
    Load();
    return Different();
  }

  Banco b;
  ControlliHub hub;
  ModificheHub sign;
};

TEST_F(UnsavedSign, IsOffInEveryNewProject) {
  int count = 0;
  const auto folder = b.Cartella.Host() / "program/Defaults";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    Put(b.Cartella.Read("program/Defaults/" + entry.path().filename().string()));
    Load();
    EXPECT_EQ(Different(), Keys{}) << entry.path();
    ++count;
  }
  EXPECT_GT(count, 0);
}

TEST_F(UnsavedSign, IsOnWhileAControlDiffersAndOffOnceItIsBack) {
  Load();
  hub["LOUT"].Numero = 3;
  hub["TPCM"] = {1, "9"};
  EXPECT_EQ(Different(), (Keys{"LOUT", "TPCM"}));
  EXPECT_TRUE(sign.DaSalvare(hub));
  hub["LOUT"].Numero = 14;
  hub["TPCM"] = {0, "0"};
  EXPECT_FALSE(sign.DaSalvare(hub));
}

TEST_F(UnsavedSign, GoesOffWithASaveAndStaysOffAfterTheNextLoad) {
  Load();
  hub["LBAS"].Numero = 0;
  hub["IMOD"].Numero = 1;
  hub["TPCM"] = {1, "007"};
  hub.AggiornaFile_ConfigTXT(b.C);
  EXPECT_TRUE(sign.DaSalvare(hub)) << "the file wasn't read again yet";
  sign.Rileggi(b.C);
  EXPECT_FALSE(sign.DaSalvare(hub));
  Load();
  EXPECT_EQ(Different(), Keys{}) << "007 comes back as 7";
}

TEST_F(UnsavedSign, IsOnAtOnceWhereTheLoadShowsRestartAgainstTheFile) {
  EXPECT_EQ(After("MIRS", "0"), Keys{"MIRS"});
}

TEST_F(UnsavedSign, IsOnAtOnceForAValueThatTheControlsCannotShow) {
  EXPECT_EQ(After("LOUT", "25"), Keys{"LOUT"});
  EXPECT_EQ(After("LTRE", "loud"), Keys{"LTRE"});
  EXPECT_EQ(After("MICP", "2"), Keys{"MICP"});
  EXPECT_EQ(After("MOMN", "on"), Keys{"MOMN"});
  EXPECT_EQ(After("IMOD", "3"), Keys{"IMOD"});
  EXPECT_EQ(After("TPCM", "abc"), Keys{"TPCM"});
  EXPECT_EQ(After("LOUT", "14.0"), Keys{"LOUT"}) << "nobody can say how the player reads it";
}

TEST_F(UnsavedSign, IsOffForTheSameNumberInOtherDigits) {
  EXPECT_EQ(After("LOUT", "014"), Keys{});
  EXPECT_EQ(After("TPCM", "007"), Keys{});
  EXPECT_EQ(After("LLOU", "00"), Keys{});
}

TEST_F(UnsavedSign, IsOnForAKeyThatTheFileLacks) {
  EXPECT_EQ(After("MICP", ""), Keys{"MICP"});
  Put("[Config]\r\n");
  Load();
  EXPECT_EQ(Different(),
            (Keys{"LOUT", "LLOU", "LTRE", "LBAS", "MOMN", "IMOD", "TPCM", "MICP", "MIRS"}));
}

TEST_F(UnsavedSign, TellsExactlyTheKeysThatASaveWouldChange) {
  Put("[Config]\r\nLOUT=99\r\nLLOU=4\r\nMOMN=x\r\nTPCM=12\r\nMIRS=0\r\n");
  Load();
  const Keys told = Different();
  std::map<std::string, std::string> old;
  for (const auto& parameter : Parametri()) {
    old[std::string(parameter.Chiave)] = LeggiChiaveConfig(b.C, parameter.Chiave);
  }
  hub.AggiornaFile_ConfigTXT(b.C);
  Keys changed;
  for (const auto& parameter : Parametri()) {
    if (LeggiChiaveConfig(b.C, parameter.Chiave) != old[std::string(parameter.Chiave)]) {
      changed.push_back(parameter.Chiave);
    }
  }
  EXPECT_EQ(told, changed);
}

TEST_F(UnsavedSign, MindsTheLoopModeOnlyWhereItIsSaved) {
  Set("MPLL", "6");
  Load();
  EXPECT_EQ(Different(), Keys{});
  hub.MpllVisibile = true;
  EXPECT_EQ(Different(), Keys{"MPLL"});
}

TEST_F(UnsavedSign, KeysOfOtherScreensDoNotCount) {
  Load();
  Set("LMP3", "1");
  Set("INVR", "1");
  sign.Rileggi(b.C);
  EXPECT_EQ(Different(), Keys{});
}

TEST_F(UnsavedSign, IsOnWithoutAFileAndMakesNone) {
  Load();
  std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall/Config.txt");
  sign.Rileggi(b.C);
  EXPECT_EQ(Different().size(), 9U);
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/Hall/Config.txt"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

}  // namespace
}  // namespace kvr5
