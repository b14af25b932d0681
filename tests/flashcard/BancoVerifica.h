#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "BancoRegistrazione.h"
#include "flashcard/Estranei.h"
#include "flashcard/Verifica.h"
#include "projects/BancoLettura.h"
#include "projects/CartellaProgetto.h"

namespace kvr5::test {

/// Who watches a verification in a test: remembers all, cancels at the call that the test names.
class OsservatoreFinto : public OsservatoreVerifica {
 public:
  bool Avanza(const CopyState& stato) override {
    States.push_back(stato);
    if (OnState) OnState(stato);
    return StopAt == 0 || States.size() < StopAt;
  }
  void Trovato(const Riscontro& riscontro) override { Told.push_back(riscontro); }

  std::size_t StopAt = 0;
  std::function<void(const CopyState&)> OnState;
  std::vector<CopyState> States;
  std::vector<Riscontro> Told;
};

/// A model with its mode.
struct Modello {
  std::int16_t Type = 0;
  std::int16_t Mode = 0;
  std::int16_t Config = 0;
};

/// All of them that a project can have.
inline std::vector<Modello> TuttiIModelli() {
  return {{1, 0, 0}, {2, 0, 0}, {2, 0, 1}, {2, 0, 2}, {2, 0, 3}, {3, 1, 0}, {3, 2, 0},
          {3, 3, 0}, {3, 4, 0}, {3, 5, 0}, {3, 6, 0}, {3, 7, 0}, {3, 8, 0}, {3, 9, 0},
          {4, 1, 0}, {4, 2, 0}, {4, 5, 0}, {4, 6, 0}, {4, 7, 0}};
}

/// A recorded project and its card.
class Verifica : public testing::Test {
 protected:
  void SetUp() override { s.PercorsoMemoryCard = b.Percorso("card") + "\\"; }

  /// A project with something in each of its databases and the lists that belong to them.
  void Project(const Modello& model, const std::string& name = "Hall") {
    project_ = name;
    b.CreaProgetto(name, model.Type, model.Mode, model.Config);
    int seed = 0;
    for (const char* file : {"a", "b", "c", "d", "e", "f"}) {
      ++seed;
      b.ScriviMp3(std::string("music/") + file + ".mp3", seed, 10 + seed);
    }
    for (const std::string& database : DatabaseDelProgetto(model.Type, model.Config, model.Mode)) {
      if (database == "inputcfg.mdb") FillInputs();
      if (database == "playlist.mdb") FillPlaylists(model.Mode == 9);
      if (database == "scheduler.mdb") FillSchedule();
    }
    Put("Report.htm", "<html>");
  }
  void FillInputs() {
    b.AggiungiRiga("inputcfg.mdb", 1, 5, "a.mp3", Music(), "5.mp3");
    b.AggiungiRiga("inputcfg.mdb", 1, 128, "b.mp3", Music(), "128.mp3");
  }
  void FillPlaylists(bool named) {
    b.AggiungiRiga("playlist.mdb", 1, 1, "c.mp3", Music(), "P01-001.mp3");
    b.AggiungiRiga("playlist.mdb", 1, 2, "d.mp3", Music(), "P01-002.mp3");
    const std::string list = named ? "Morning" : "PLAYLIST";
    Put(list + ".m3u", "P01-001\r\nP01-002\r\n");
    Put(list + "_LOCAL_.m3u", Music() + "c.mp3\r\n" + Music() + "d.mp3\r\n");
  }
  void FillSchedule() {
    b.AggiungiRiga("scheduler.mdb", 0, 1, "e.mp3", Music(), "F0-0011.mp3", 1);
    b.AggiungiRiga("scheduler.mdb", 0, 2, "f.mp3", Music(), "F0-0012.mp3", 1);
    Put("PALIN.TXT", "00:30\tF0-0011\t\tF0-0012\t\r\n");
    Put("1.pal", "08:00\tF0-0012\t\r\n");
  }
  std::string Music() const { return b.Percorso("music") + "\\"; }
  std::string InProject(const std::string& name) const {
    return "program/Projects/" + project_ + "/" + name;
  }
  void Put(const std::string& name, const std::string& bytes) const {
    b.Cartella.Write(InProject(name), bytes);
  }
  void OnCard(const std::string& name, const std::string& bytes) const {
    b.Cartella.Write("card/" + name, bytes);
  }
  std::filesystem::path Card(const std::string& name) const {
    return b.Cartella.Host() / "card" / name;
  }
  void EmptyCard() const {
    std::filesystem::remove_all(b.Cartella.Host() / "card");
    std::filesystem::create_directories(b.Cartella.Host() / "card");
  }
  FineRegistrazione Record() {
    TabellaIngressi inputs(b.C);
    inputs.ApriSeCiSono();
    FinestraProgresso progress(b.C);
    SceltaDaProva choice(s);
    return RegistraProgettoSuFlash(b.C, inputs, progress, choice).Fine;
  }
  /// A project on its card, as a recording left it.
  void Recorded(const Modello& model) {
    Project(model);
    ASSERT_EQ(Record(), FineRegistrazione::Compiuta);
    ASSERT_TRUE(b.Copia.Guasti.empty());
  }
  /// Verifies; the findings as "missing 5.mp3" in their order.
  std::vector<std::string> Verify() {
    watch.States.clear();
    watch.Told.clear();
    outcome = VerificaScheda(b.C, s.PercorsoMemoryCard, watch);
    EXPECT_EQ(watch.Told, outcome.Riscontri) << "each is told as it is made";
    if (!outcome.Annullata && !outcome.Sparita && !outcome.SenzaScheda) {
      EXPECT_EQ(ContaEstranei(b.C, s.PercorsoMemoryCard), outcome.Quanti(Difetto::Estraneo));
    }
    std::vector<std::string> found;
    for (const Riscontro& each : outcome.Riscontri) {
      found.push_back(std::string(NomeDifetto(each.Tipo)) + " " + each.File);
    }
    return found;
  }

  BancoDiScheda bench;
  Banco& b = bench.B;
  StatoApplicazione& s = b.C.Stato;
  OsservatoreFinto watch;
  EsitoVerifica outcome;  ///< of the last Verify

 private:
  std::string project_;
};

inline constexpr Modello kInputs{4, 1, 0};
inline constexpr Modello kSchedule{4, 2, 0};
inline constexpr Modello kPlaylists{4, 5, 0};
inline constexpr Modello kNamed{3, 9, 0};
inline constexpr Modello kBoth{2, 0, 0};

}  // namespace kvr5::test
