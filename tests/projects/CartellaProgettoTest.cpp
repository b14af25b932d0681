#include <gtest/gtest.h>

#include "projects/CartellaProgetto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;
using Names = std::vector<std::string>;

TEST(ProjectKind, TellsWhichProjectsHaveNoInputcfg) {
  EXPECT_FALSE(ProgettoSenzaInputcfg(1, 9, 9));
  for (std::int16_t config = 0; config <= 5; ++config) {
    EXPECT_EQ(ProgettoSenzaInputcfg(2, config, 0), config >= 3) << config;
  }
  for (const std::int16_t type : std::initializer_list<std::int16_t>{3, 4}) {
    for (std::int16_t mode = 0; mode <= 9; ++mode) {
      EXPECT_EQ(ProgettoSenzaInputcfg(type, 0, mode), mode >= 2) << type << " " << mode;
    }
  }
  EXPECT_FALSE(ProgettoSenzaInputcfg(0, 9, 9));
  EXPECT_FALSE(ProgettoSenzaInputcfg(7, 9, 9));
}

TEST(ProjectKind, TellsTheDatabasesOfANewProject) {
  EXPECT_EQ(DatabaseDelProgetto(1, 0, 0), Names{"inputcfg.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(2, 2, 0), (Names{"inputcfg.mdb", "playlist.mdb"}));
  EXPECT_EQ(DatabaseDelProgetto(2, 3, 0), Names{"playlist.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(3, 0, 1), Names{"inputcfg.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(3, 0, 2), Names{"scheduler.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(3, 0, 3), Names{"scheduler.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(3, 0, 9), Names{"playlist.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(4, 0, 1), Names{"inputcfg.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(4, 0, 2), Names{"scheduler.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(4, 0, 3), Names{"playlist.mdb"});
  EXPECT_EQ(DatabaseDelProgetto(4, 0, 7), Names{"playlist.mdb"});
  EXPECT_TRUE(DatabaseDelProgetto(5, 0, 1).empty());
}

TEST(ProjectKind, TellsTheTemplate) {
  EXPECT_EQ(ModelloConfig(1, 0, 0), "Defaults\\1Config.txt");
  EXPECT_EQ(ModelloConfig(2, 0, 0), "Defaults\\20Config.txt");
  EXPECT_EQ(ModelloConfig(3, 0, 8), "Defaults\\38Config.txt");
  EXPECT_EQ(ModelloConfig(4, 0, 46), "Defaults\\446Config.txt");
  EXPECT_EQ(ModelloConfig(4, 0, 6), "Defaults\\46Config.txt");
  EXPECT_EQ(ModelloConfig(0, 0, 0), "");
}

TEST(ElencoProgetti, ListsTheFoldersThatHoldBothFilesByName) {
  Banco b;
  b.Cartella.Write("program/Projects/beta/Config.txt", "");
  b.Cartella.Write("program/Projects/beta/Config.cfg", "");
  b.Cartella.Write("program/Projects/Alfa/CONFIG.TXT", "");
  b.Cartella.Write("program/Projects/Alfa/config.CFG", "");
  b.Cartella.Write("program/Projects/only-cfg/Config.cfg", "");
  b.Cartella.Write("program/Projects/only-txt/Config.txt", "");
  b.Cartella.Write("program/Projects/folders/Config.txt/x", "");
  b.Cartella.Write("program/Projects/folders/Config.cfg/x", "");
  b.Cartella.Write("program/Projects/file", "");
  EXPECT_EQ(ElencoProgetti(b.C), (Names{"Alfa", "beta"}));
}

TEST(ElencoProgetti, ListsAccentedNamesAsTheyAreSpelled) {
  Banco b;
  for (const char* name : {"città", "Bücher", "alfa", "Παιδιά", "Déjà vu", "Città 2"}) {
    b.Cartella.Write("program/Projects/" + std::string(name) + "/Config.txt", "");
    b.Cartella.Write("program/Projects/" + std::string(name) + "/Config.cfg", "");
  }
  EXPECT_EQ(ElencoProgetti(b.C),
            (Names{"alfa", "Bücher", "città", "Città 2", "Déjà vu", "Παιδιά"}));
}

TEST(ElencoProgetti, ListsANameWithItsLeadingBlank) {
  Banco b;
  b.Cartella.Write("program/Projects/ Hall/Config.txt", "");
  b.Cartella.Write("program/Projects/ Hall/Config.cfg", "");
  EXPECT_EQ(ElencoProgetti(b.C), Names{" Hall"});
}

TEST(ElencoProgetti, ListsAHiddenFolderToo) {
  Banco b;
  b.Cartella.Write("program/Projects/.hidden/Config.txt", "");
  b.Cartella.Write("program/Projects/.hidden/Config.cfg", "");
  EXPECT_EQ(ElencoProgetti(b.C), Names{".hidden"});
}

TEST(ElencoProgetti, IsEmptyWithoutSubfoldersOrWithoutTheFolder) {
  Banco b;
  EXPECT_TRUE(ElencoProgetti(b.C).empty());
  b.C.Stato.CartellaProgetti = b.Percorso("no-where");
  EXPECT_TRUE(ElencoProgetti(b.C).empty());
}

}  // namespace
}  // namespace kvr5
