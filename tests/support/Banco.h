#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/Contesto.h"
#include "platform/HostFileSystem.h"
#include "support/DialoghiFinti.h"
#include "support/TempFolder.h"

namespace kvr5::test {

/// What a test sees in place of the end of the process.
class FineDelProgramma : public std::runtime_error {
 public:
  explicit FineDelProgramma(MotivoFine motivo) : std::runtime_error("end"), Motivo(motivo) {}
  MotivoFine Motivo;
};

class ProcessoFinto : public Processo {
 public:
  [[noreturn]] void Termina(MotivoFine motivo) override { throw FineDelProgramma(motivo); }
};

/// Pending events: what a test wants to happen while a routine lets them run.
class EventiFinti : public Eventi {
 public:
  void LasciaCorrere() override {
    ++Volte;
    if (Accade) Accade();
  }
  void ImpostaPuntatore(Puntatore puntatore) override { Ora = puntatore; }

  int Volte = 0;
  std::function<void()> Accade;
  Puntatore Ora = Puntatore::Normale;
};

class OrologioFinto : public Orologio {
 public:
  std::tm Adesso() const override { return Ora; }
  /// 2006-10-20 08:05:09.
  std::tm Ora{9, 5, 8, 20, 9, 106, 0, 0, 0, 0, nullptr};
};

/// The copy window of a test: remembers failures, cancels at the call that the test names.
class CopiaFinta : public CopyObserver {
 public:
  bool Progress(const CopyState& state) override {
    ++Volte;
    if (SuProgresso) SuProgresso(state);
    return AnnullaAlla == 0 || Volte < AnnullaAlla;
  }
  void Failed(const CopyFailure& failure) override { Guasti.push_back(failure); }

  int Volte = 0;
  int AnnullaAlla = 0;
  std::function<void(const CopyState&)> SuProgresso;
  std::vector<CopyFailure> Guasti;
};

/// A staged program in a temporary folder, with a projects folder and a folder for a card, on the
/// real disk, and a user who answers from a script. English texts, code page 1252.
class Banco {
 public:
  Banco();
  /// The same with a file system of the test's own over the real one.
  explicit Banco(const std::function<FileSystem&(FileSystem&)>& wrap);
  /// The same with ports to the user, and an end of the process, of the test's own.
  Banco(Dialoghi& finestre, Eventi& messaggi, CopyObserver& copia, Processo& programma);

  TempFolder Cartella;
  PathMap Percorsi;
  HostFileSystem Disco{Percorsi};
  DialoghiFinti Finestre;
  EventiFinti Messaggi;
  CopiaFinta Copia;
  OrologioFinto Ora;
  ProcessoFinto Programma;
  Contesto C;

  /// System path of a file of the temporary folder.
  std::string Percorso(const std::string& name) const { return Cartella.System(name); }
  /// Names below a folder of the temporary folder, sorted, each file once.
  std::vector<std::string> Nomi(const std::string& folder) const;
  /// A file of a few real MPEG frames (MPEG 1 Layer III, 128 kbit/s, 44,100 Hz), distinct by
  /// `seed`.
  void ScriviMp3(const std::string& name, int seed = 0, int frames = 8) const;
  /// Makes a project by its model's own rules below Projects and leaves it in the state; the path
  /// is "program/Projects/NAME".
  void CreaProgetto(const std::string& name, std::int16_t playerType, std::int16_t playerMode,
                    std::int16_t playerConfig = 0);
  /// Adds a row to the table List of a database of the open project.
  void AggiungiRiga(const std::string& database, int nPlaylist, int pos,
                    const std::string& fileName, const std::string& filePath,
                    const std::string& alias, int idSched = 0);

  /// Leaves a database of the open project as a crash in the middle of a change would: half
  /// changed, its journal beside it.
  void InterrompiModifica(const std::string& database);

 private:
  void Prepara();
};

}  // namespace kvr5::test
