#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/Anteprima.h"
#include "core/Contesto.h"
#include "core/Esecutore.h"

namespace kvr5 {

/// What every screen's listening shares: which of the two ways was chosen, and that the last
/// command counts. Events run inside a stop, so that another command may come before the first one
/// is done.
class Ascolto {
 public:
  virtual ~Ascolto() = default;

  /// A stop by the user: both players, harmless when nothing plays.
  void Stop() {
    Comando();
    Ferma();
  }

  /// Starts a file (system form) in the host's player for it, and forgets it.
  static void ApriFuori(Esecutore& documenti, const std::string& file);
  /// Sets a player's file and plays it. False for one that is refused, which stays silent.
  static bool Suona(Anteprima& player, const std::string& file);
  /// Silences a player and lets its file go.
  static void Zittisci(Anteprima& player);

 protected:
  Ascolto(Contesto& contesto, Esecutore& documenti) : contesto_(contesto), documenti_(documenti) {}
  /// Stops both players; a command that comes meanwhile counts.
  virtual void Ferma() = 0;
  /// A command to play begins: stops both. False when another came meanwhile, which counts.
  bool FermaPerSuonare() {
    const unsigned mine = Comando();
    Ferma();
    return comando_ == mine;
  }

  bool Fuori() const { return contesto_.Stato.UsaPlayerEsterno; }
  /// Whether a file is there to be listened to; a nameless one isn't.
  bool Esiste(const std::string& cartella, const std::string& nome) const;
  unsigned UltimoComando() const { return comando_; }
  void Attesa() { contesto_.Messaggi.ImpostaPuntatore(Puntatore::Attesa); }
  void Normale() { contesto_.Messaggi.ImpostaPuntatore(Puntatore::Normale); }
  void LasciaCorrere() { contesto_.Messaggi.LasciaCorrere(); }
  /// The last steps of every play.
  void Fine() {
    LasciaCorrere();
    Normale();
  }

  Contesto& contesto_;
  Esecutore& documenti_;

 private:
  /// A command by the user begins; its number.
  unsigned Comando() { return ++comando_; }

  unsigned comando_ = 0;
};

}  // namespace kvr5
