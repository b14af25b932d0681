#include <gtest/gtest.h>

#include "projects/ApriProgetto.h"
#include "projects/CartellaProgetto.h"
#include "projects/NuovoProgetto.h"
#include "support/Banco.h"

// The two failures in the making of a project that end the program, and what they leave.

namespace kvr5 {
namespace {

using test::Banco;
using Names = std::vector<std::string>;

class FatalEnd : public testing::Test {
 protected:
  void Remove(const std::string& name) {
    ASSERT_TRUE(std::filesystem::remove(b.Cartella.Host() / "program" / name)) << name;
  }
  EsitoNuovo NewKvr5(const std::string& name, std::int16_t mode) {
    b.C.Stato.PlayerType = 4;
    b.C.Stato.PlayerName = "KVR5";
    return CreaProgettoKvr5(b.C, name, mode, ScritteDelWizard(b.C, mode));
  }
  /// Why the program ended while `make` ran; nothing where it went on.
  template <typename Make>
  std::optional<MotivoFine> EndOf(Make make) {
    try {
      make();
    } catch (const test::FineDelProgramma& end) {
      return end.Motivo;
    }
    return std::nullopt;
  }

  Banco b;
};

TEST_F(FatalEnd, AMissingTemplateEndsItForThatReason) {
  Remove("Defaults/45Config.txt");
  EXPECT_EQ(EndOf([this] { NewKvr5("Hall", 5); }), MotivoFine::ModelloMancante);
  EXPECT_TRUE(b.Finestre.Prossimo().Testo.starts_with(
      "Project not created: a program file is missing\r\n"));
}

TEST_F(FatalEnd, AMissingSourceDatabaseEndsItForThatReason) {
  Remove("source.mdb");
  EXPECT_EQ(EndOf([this] { NewKvr5("Hall", 5); }), MotivoFine::ModelloMancante);
  EXPECT_TRUE(b.Finestre.Prossimo().Testo.starts_with(
      "Project not created: the file source.mdb is missing\r\n"));
}

TEST_F(FatalEnd, TheOtherModelsEndItForTheSameReasons) {
  const struct {
    std::int16_t type, mode, config;
    const char* missing;
  } rows[] = {{1, 0, 0, "1Config.txt"}, {2, 0, 1, "21Config.txt"}, {3, 9, 0, "39Config.txt"}};
  for (const auto& row : rows) {
    Remove(std::string("Defaults/") + row.missing);
    const std::string name = "T" + std::to_string(row.type);
    EXPECT_EQ(EndOf([&] { b.CreaProgetto(name, row.type, row.mode, row.config); }),
              MotivoFine::ModelloMancante);
    EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Project not created: a program file is missing");
    EXPECT_FALSE(b.Cartella.Exists("program/Projects/" + name + "/Config.txt"));
  }
  Remove("source.mdb");
  for (const std::int16_t config : std::initializer_list<std::int16_t>{0, 3}) {
    const std::string name = "Z" + std::to_string(config);
    EXPECT_EQ(EndOf([&] { b.CreaProgetto(name, 2, 0, config); }), MotivoFine::ModelloMancante);
    EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Project not created: a program file is missing");
    EXPECT_EQ(b.Nomi("program/Projects/" + name), (Names{"Config.cfg", "Config.txt", "Zub.gif"}));
  }
}

TEST_F(FatalEnd, WithoutSourceTheProjectIsListedAndOpeningItMissesTheInputs) {
  Remove("source.mdb");
  EXPECT_TRUE(EndOf([this] { NewKvr5("Hall", 1); }));
  b.Finestre.Prossimo();
  EXPECT_EQ(ElencoProgetti(b.C), Names{"Hall"});
  EXPECT_EQ(ApriProgetto(b.C, b.Percorso("program/Projects/Hall")), EsitoApertura::FileMancante);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Project not complete");
  EXPECT_TRUE(box.Testo.starts_with("Missing or incomplete: the file 'input.mdb'\r\n"))
      << box.Testo;
}

TEST_F(FatalEnd, WithoutSourceAPlaylistProjectIsListedAndOpens) {
  Remove("source.mdb");
  EXPECT_TRUE(EndOf([this] { NewKvr5("Hall", 5); }));
  b.Finestre.Prossimo();
  EXPECT_EQ(ElencoProgetti(b.C), Names{"Hall"});
  EXPECT_EQ(ApriProgetto(b.C, b.Percorso("program/Projects/Hall")), EsitoApertura::Aperto);
}

TEST_F(FatalEnd, WithoutATemplateTheFolderIsNotListedAndBlocksItsName) {
  Remove("Defaults/41Config.txt");
  EXPECT_TRUE(EndOf([this] { NewKvr5("Hall", 1); }));
  b.Finestre.Prossimo();
  EXPECT_TRUE(ElencoProgetti(b.C).empty());
  EXPECT_EQ(NewKvr5("Hall", 2), EsitoNuovo::CartellaEsistente);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Name already in use");
}

}  // namespace
}  // namespace kvr5
