#include <gtest/gtest.h>

#include "projects/ApriProgetto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

class Opening : public testing::Test {
 protected:
  EsitoApertura Open(const std::string& folder) { return ApriProgetto(b.C, b.Percorso(folder)); }
  void Project(const std::string& folder, int type, int mode, int config = 0) {
    b.Cartella.Write(folder + "/Config.txt", "[Config]\r\n");
    b.Cartella.Write(folder + "/Config.cfg",
                     "[CONFIG]\r\nProjectName=stored\r\nPlayerType=" + std::to_string(type) +
                         "\r\nPlayerConfig=" + std::to_string(config) +
                         "\r\nPlayerConfigDesc=words\r\nPlayerMode=" + std::to_string(mode) +
                         "\r\nAnalyzer=1\r\n");
  }
  void ExpectMissing(const std::string& name) {
    const auto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "Project not complete");
    EXPECT_EQ(box.Testo, "Missing or incomplete: the file '" + name +
                             "'\r\nThe folder can't be opened as a project. Choose another one.");
    EXPECT_EQ(box.Segno, Icona::Informazione);
    EXPECT_FALSE(box.SiNo);
  }

  Banco b;
  StatoApplicazione& s = b.C.Stato;
};

TEST_F(Opening, ReadsTheDescriptorIntoTheState) {
  Project("anywhere/p", 4, 6);
  EXPECT_EQ(Open("anywhere/p"), EsitoApertura::Aperto);
  EXPECT_EQ(s.CartellaProgetto, b.Percorso("anywhere/p"));
  EXPECT_EQ(s.ProjectName, "stored");
  EXPECT_EQ(s.PlayerType, 4);
  EXPECT_EQ(s.PlayerName, "KVR5");
  EXPECT_EQ(s.PlayerConfig, 0);
  EXPECT_EQ(s.PlayerConfigDesc, "words");
  EXPECT_EQ(s.PlayerMode, 6);
  EXPECT_EQ(s.Analyzer, 1);
}

TEST_F(Opening, ABlankNameOrNoFolderChangesNothing) {
  s.CartellaProgetto = "before";
  EXPECT_EQ(ApriProgetto(b.C, ""), EsitoApertura::NessunaCartella);
  EXPECT_EQ(ApriProgetto(b.C, "   "), EsitoApertura::NessunaCartella);
  EXPECT_EQ(Open("gone"), EsitoApertura::NessunaCartella);
  EXPECT_EQ(s.CartellaProgetto, "before");
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Opening, AFolderWithoutConfigTxtIsRefusedByName) {
  Project("p", 4, 6);
  std::filesystem::remove(b.Cartella.Host() / "p/Config.txt");
  EXPECT_EQ(Open("p"), EsitoApertura::FileMancante);
  ExpectMissing("Config.txt");
  EXPECT_EQ(s.CartellaProgetto, b.Percorso("p")) << "it names the refused folder";
  EXPECT_EQ(s.PlayerType, 0) << "the descriptor wasn't read";
}

TEST_F(Opening, AFolderWithoutConfigCfgIsRefusedByName) {
  Project("p", 4, 6);
  std::filesystem::remove(b.Cartella.Host() / "p/Config.cfg");
  EXPECT_EQ(Open("p"), EsitoApertura::FileMancante);
  ExpectMissing("config.cfg");
  EXPECT_EQ(s.CartellaProgetto, b.Percorso("p")) << "it names the refused folder";
  EXPECT_EQ(s.ProjectName, "") << "nothing was read";
}

TEST_F(Opening, TheFolderIsSetAndTheDescriptorReadBeforeTheBoxOfTheDatabase) {
  Project("p", 2, 7, 2);
  s.CartellaProgetto = "before";
  StatoApplicazione atTheBox;
  b.Finestre.SuBox = [&](const test::BoxVisto&) { atTheBox = s; };
  EXPECT_EQ(Open("p"), EsitoApertura::FileMancante);
  ExpectMissing("input.mdb");
  for (const auto& state : {atTheBox, s}) {
    EXPECT_EQ(state.CartellaProgetto, b.Percorso("p"));
    EXPECT_EQ(state.ProjectName, "stored");
    EXPECT_EQ(state.PlayerType, 2);
    EXPECT_EQ(state.PlayerName, "Zub");
    EXPECT_EQ(state.PlayerConfig, 2);
    EXPECT_EQ(state.PlayerConfigDesc, "words");
    EXPECT_EQ(state.PlayerMode, 7);
    EXPECT_EQ(state.Analyzer, 1);
  }
}

TEST_F(Opening, TheFolderIsSetBeforeTheBoxOfEachConfigFile) {
  for (const char* missing : {"Config.txt", "Config.cfg"}) {
    Project("p", 4, 6);
    std::filesystem::remove(b.Cartella.Host() / "p" / missing);
    s.CartellaProgetto = "before";
    std::string atTheBox;
    b.Finestre.SuBox = [&](const test::BoxVisto&) { atTheBox = s.CartellaProgetto; };
    EXPECT_EQ(Open("p"), EsitoApertura::FileMancante);
    b.Finestre.Prossimo();
    EXPECT_EQ(atTheBox, b.Percorso("p")) << missing;
  }
}

TEST_F(Opening, AFolderOfTheDescriptorsNameIsNoDescriptor) {
  Project("p", 4, 6);
  std::filesystem::remove(b.Cartella.Host() / "p/Config.cfg");
  b.Cartella.Write("p/Config.cfg/inside", "");
  EXPECT_EQ(Open("p"), EsitoApertura::FileMancante);
  ExpectMissing("config.cfg");
}

TEST_F(Opening, AnInputsProjectNeedsItsDatabaseWhichTheBoxCallsOtherwise) {
  const struct {
    int type, mode, config;
    bool needed;
  } rows[] = {{1, 0, 0, true},  {1, 5, 9, true},  {2, 0, 2, true}, {2, 0, 3, false},
              {3, 1, 0, true},  {3, 2, 0, false}, {4, 1, 0, true}, {4, 2, 0, false},
              {4, 5, 0, false}, {4, 0, 0, true},  {9, 9, 9, true}};
  for (const auto& row : rows) {
    Project("p", row.type, row.mode, row.config);
    EXPECT_EQ(Open("p"), row.needed ? EsitoApertura::FileMancante : EsitoApertura::Aperto)
        << row.type << " " << row.mode << " " << row.config;
    if (row.needed) {
      ExpectMissing("input.mdb");
      EXPECT_EQ(s.PlayerType, row.type) << "the descriptor was read";
    }
  }
  b.Cartella.Write("p/INPUTCFG.MDB", "");
  Project("p", 4, 1);
  EXPECT_EQ(Open("p"), EsitoApertura::Aperto);
}

TEST_F(Opening, TurnsTheBusyPointerOffAfterTheBoxThatRefuses) {
  b.Finestre.SuBox = [&](const test::BoxVisto& box) {
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Attesa) << box.Testo;
  };
  for (const char* missing : {"Config.txt", "Config.cfg"}) {
    b.Messaggi.Ora = Puntatore::Attesa;
    Project("q", 4, 6);
    std::filesystem::remove(b.Cartella.Host() / "q" / missing);
    Open("q");
    b.Finestre.Prossimo();
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale) << missing;
  }
  b.Messaggi.Ora = Puntatore::Attesa;
  Project("p", 4, 1);
  Open("p");
  ExpectMissing("input.mdb");
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

}  // namespace
}  // namespace kvr5
