#include <gtest/gtest.h>

#include <optional>

#include "projects/NuovoProgetto.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"

// The busy pointer while the boxes of a new project stand, and a disk that fails in between.

namespace kvr5 {
namespace {

using test::Banco;

class BoxesOfANewProject : public testing::Test {
 protected:
  void SetUp() override {
    b.Finestre.SuBox = [this](const test::BoxVisto&) { atTheBox = b.Messaggi.Ora; };
  }
  EsitoNuovo Create(const std::string& name) {
    b.C.Stato.PlayerName = "KVR5";
    b.C.Stato.PlayerType = 4;
    b.Messaggi.Ora = Puntatore::Normale;
    atTheBox.reset();
    return CreaProgettoKvr5(b.C, name, 1, ScritteDelWizard(b.C, 1));
  }
  std::string Read(const std::string& name) { return b.Cartella.Read("program/" + name); }

  std::optional<test::FaultyFileSystem> faulty;
  Banco b{[this](FileSystem& inner) -> FileSystem& { return faulty.emplace(inner); }};
  /// The pointer while the last box stood.
  std::optional<Puntatore> atTheBox;
};

TEST_F(BoxesOfANewProject, ThePointerIsOffBeforeTheNameIsAskedFor) {
  EXPECT_EQ(Create(""), EsitoNuovo::NomeVuoto);
  b.Finestre.Prossimo();
  EXPECT_EQ(atTheBox, Puntatore::Normale);
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(BoxesOfANewProject, ThePointerGoesOffOnlyAfterAnExistingNameWasTold) {
  ASSERT_EQ(Create("Hall"), EsitoNuovo::Creato);
  EXPECT_EQ(Create("Hall"), EsitoNuovo::CartellaEsistente);
  b.Finestre.Prossimo();
  EXPECT_EQ(atTheBox, Puntatore::Attesa);
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(BoxesOfANewProject, ThePointerGoesOffOnlyAfterAFolderThatCannotBeMadeWasTold) {
  EXPECT_EQ(Create("Hall*"), EsitoNuovo::CartellaNonCreata);
  b.Finestre.Prossimo();
  EXPECT_EQ(atTheBox, Puntatore::Attesa);
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(BoxesOfANewProject, ThePointerIsStillOnWhenAMissingProgramFileEndsTheProgram) {
  for (const char* name : {"source.mdb", "Defaults/41Config.txt"}) {
    std::filesystem::remove(b.Cartella.Host() / "program" / name);
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    EXPECT_THROW(Create("Hall"), test::FineDelProgramma);
    b.Finestre.Prossimo();
    EXPECT_EQ(atTheBox, Puntatore::Attesa) << name;
  }
}

TEST_F(BoxesOfANewProject, ADescriptorThatCannotBeWrittenIsNotTheTemplatesFailure) {
  faulty->FailWritesAfter(b.Percorso("program/Projects/Hall/Config.cfg"), 0, errors::DiskFull);
  EXPECT_EQ(Create("Hall"), EsitoNuovo::Creato);
  EXPECT_EQ(Read("Projects/Hall/Config.txt"), Read("Defaults/41Config.txt"));
  EXPECT_TRUE(Read("Projects/Hall/inputcfg.mdb") == Read("source.mdb"));
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_FALSE(b.C.Errore) << "it was cleared on the way";
}

}  // namespace
}  // namespace kvr5
