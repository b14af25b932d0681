#include <gtest/gtest.h>

#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"
#include "support/Banco.h"

// What new projects of models 1 to 3 are made of.

namespace kvr5 {
namespace {

using test::Banco;
using Names = std::vector<std::string>;

/// The staged templates are told apart by a line of their own: some of them are alike.
class OtherModels : public testing::Test {
 protected:
  void SetUp() override {
    for (const auto& name : b.Nomi("program/Defaults")) {
      b.Cartella.Write("program/Defaults/" + name, Template(name) + "NAME=" + name + "\r\n");
    }
  }
  std::string Template(const std::string& name) const {
    return b.Cartella.Read("program/Defaults/" + name);
  }
  std::string OfProject(const std::string& name) const {
    return b.Cartella.Read("program/Projects/P/" + name);
  }
  /// Makes the project P anew.
  void Make(std::int16_t type, std::int16_t mode, std::int16_t config = 0) {
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/P");
    b.CreaProgetto("P", type, mode, config);
  }

  Banco b;
};

TEST_F(OtherModels, VeskadroTakesItsOneTemplate) {
  Make(1, 7, 5);
  EXPECT_EQ(OfProject("Config.txt"), Template("1Config.txt"));
  EXPECT_TRUE(OfProject("Veskadro.gif") == b.Cartella.Read("program/Pictures/Veskadro.gif"));
  EXPECT_TRUE(OfProject("inputcfg.mdb") == b.Cartella.Read("program/source.mdb"));
}

TEST_F(OtherModels, ZubTakesTheTemplateOfItsConfiguration) {
  for (std::int16_t config = 0; config <= 3; ++config) {
    Make(2, 7, config);
    EXPECT_EQ(OfProject("Config.txt"), Template("2" + std::to_string(config) + "Config.txt"));
  }
}

TEST_F(OtherModels, OstrelTakesTheTemplateOfItsMode) {
  for (std::int16_t mode = 1; mode <= 9; ++mode) {
    Make(3, mode);
    EXPECT_EQ(OfProject("Config.txt"), Template("3" + std::to_string(mode) + "Config.txt"));
  }
}

TEST_F(OtherModels, ZubWithInputsAndPlaylistHoldsBothDatabases) {
  for (const auto& [config, words] :
       {std::pair<std::int16_t, const char*>{1, "Zub Player (Inputs and playlist)"},
        std::pair<std::int16_t, const char*>{2, "Zub Player (Inputs, playlist, serial)"}}) {
    Make(2, 7, config);
    EXPECT_EQ(b.Nomi("program/Projects/P"),
              (Names{"Config.cfg", "Config.txt", "Zub.gif", "inputcfg.mdb", "playlist.mdb"}));
    EXPECT_EQ(OfProject("Config.cfg"),
              "[CONFIG]\r\nProjectName=P\r\nPlayerName=Zub\r\nPlayerType=2\r\nPlayerConfig=" +
                  std::to_string(config) + "\r\nPlayerConfigDesc=" + words +
                  "\r\nPlayerMode=0\r\nAnalyzer=0\r\n");
    for (const char* database : {"inputcfg.mdb", "playlist.mdb"}) {
      EXPECT_TRUE(OfProject(database) == b.Cartella.Read("program/source.mdb")) << database;
    }
  }
}

TEST_F(OtherModels, AConfigurationWithoutATextHasAnEmptyDescription) {
  b.Cartella.Write("program/Defaults/24Config.txt", "[Config]\r\n");
  Make(2, 0, 4);
  EXPECT_EQ(b.C.Stato.PlayerConfigDesc, "");
  EXPECT_NE(OfProject("Config.cfg").find("PlayerConfigDesc=\r\n"), std::string::npos);
}

}  // namespace
}  // namespace kvr5
