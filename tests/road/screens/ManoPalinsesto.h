#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "road/screens/ManoPlaylist.h"
#include "schedule/screens/frmPalinsesto.h"

namespace kvr5::test {

/// The hand of a person at the editor of the schedule.

/// Clicks a file of the pane; a missing one ends the test. The verdict on it comes at once.
void CliccaFile(frmPalinsesto& editor, const std::string& nome);

/// Carries out the commands of a session of kvr5card with mouse and keys. A command that is told
/// by notices has an "!" behind it for each; a removal is answered with yes. The files are named
/// below `radice`, a folder of the host.
class PalinsestoAMano {
 public:
  PalinsestoAMano(frmPalinsesto& editor, std::filesystem::path radice)
      : e_(editor), radice_(std::move(radice)) {}
  void Esegui(const Passi& passi);

 private:
  using Parole = std::vector<std::string>;

  void UnComando(const Parole& parole);
  void Segmento(const Parole& parole);
  void Spot(const Parole& parole);
  void Orario(const std::string& ore, const std::string& minuti);
  /// Types into a field, whose text is selected, and leaves it by Enter.
  void Digita(CampoOra& campo, const std::string& testo);
  void Scegli(std::int64_t id);
  void Aggiungi(std::size_t slot, const std::filesystem::path& file);
  void VaiA(const std::filesystem::path& cartella);
  int QuantiSpot() const { return e_.Editor().QuantiSpot(); }
  /// Lets the timers of what was left run, and whatever boxes they bring.
  void LasciaCorrere();

  frmPalinsesto& e_;
  std::filesystem::path radice_;
  int aggiunti_ = 0;
  int copiati_ = 0;
};

/// The same commands as lines, for the standard input of kvr5card.
std::string TestoPalinsesto(const Passi& passi, const std::filesystem::path& radice);

}  // namespace kvr5::test
