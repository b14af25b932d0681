#pragma once

#include <string>

#include "schedule/BancoPalinsesto.h"
#include "schedule/SalvaPalinsesto.h"
#include "support/ProgressoVisto.h"

namespace kvr5::test {

/// Schedules that are saved, with an answer to the question about the MP3 files.
class BancoSalvaPalinsesto : public BancoPalinsesto {
 protected:
  /// A spot whose file is in a folder of the test.
  void Traccia(int giorno, std::int64_t segmento, int pos, const std::string& nome,
               const std::string& cartella = "music") {
    b.ScriviMp3(cartella + "/" + nome, pos);
    Spot(giorno, segmento, pos, nome, In(cartella));
  }
  /// Loads the editor and saves.
  void Salva(Risposta risposta = Risposta::No) {
    Apri();
    SalvaAperto(risposta);
  }
  /// Saves what the open editor holds. The question comes where a segment has a spot.
  void SalvaAperto(Risposta risposta = Risposta::No) {
    const bool asks =
        editor.Copia() != nullptr && Ha("tmpScheduler.mdb") &&
        Sql("SELECT COUNT(*) FROM List JOIN HEAD ON HEAD.ID=IDSched", "tmpScheduler.mdb") != "0";
    if (asks) b.Finestre.Rispondi(risposta);
    SalvaPalinsesto(editor, progresso);
    editor.Chiudi();
    if (asks) {
      EXPECT_EQ(b.Finestre.Prossimo().Titolo, Parola("0140035"));
    }
    EXPECT_TRUE(b.Finestre.Silenzio());
  }
  /// From now on, keeps the files that are copied, the commit included.
  void Guarda() {
    b.Copia.SuProgresso = [this](const CopyState& state) {
      if (copiati.empty() || copiati.back() != state.File) copiati.push_back(state.File);
    };
  }
  /// The files of the week that hold a line, each as "3: " and its text.
  std::string Giorni() const {
    std::string all;
    for (int day = 1; day <= 7; ++day) {
      const std::string text = Leggi(std::to_string(day) + ".pal");
      if (!text.empty()) all += std::to_string(day) + ": " + text;
    }
    return all;
  }
  Righe Alias() { return Colonna("Alias"); }
  std::string In(const std::string& cartella) const { return b.Percorso(cartella) + "\\"; }

  ProgressoVisto progresso{b.C};
  Righe copiati;
};

}  // namespace kvr5::test
