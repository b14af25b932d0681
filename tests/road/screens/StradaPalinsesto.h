#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "road/screens/ManoPalinsesto.h"
#include "road/screens/StradaPlaylist.h"

namespace kvr5::test {

/// The whole program at the hub of a project named Bar that has a schedule, with MP3 files in
/// "music/a", "music/b" and "music/c"; and kvr5card over the same folders.
class StradaPalinsesto : public StradaPlaylist {
 protected:
  void SetUp() override;

  /// To the hub: of a new KVR5 that the wizard makes, or of an Ostrel, by the list of projects.
  void CreaKvr5();
  void ApriOstrel(std::int16_t modo);
  void Apri(std::int16_t tipo, std::int16_t modo);
  /// From the hub to the editor: by its button, or by the menu where that is hidden.
  frmPalinsesto& ApriPalinsesto();
  /// Saves, answers whether the files are to be copied ({}: it isn't asked), and is back at the
  /// hub.
  void SalvaPalinsesto(frmPalinsesto& editor, std::optional<bool> risposta);
  /// A whole session from the hub to the hub.
  void Palinsesto(const Passi& passi, std::optional<bool> risposta);
  /// The same by kvr5card.
  void PalinsestoDelCompagno(const Passi& passi, bool risposta);

  static std::string NelProgetto(const std::string& nome) {
    return std::string(kProgetto) + "/" + nome;
  }
  std::string LeggiProgetto(const std::string& nome) const {
    return b.Cartella.Read(NelProgetto(nome));
  }
  /// The segments of the project's database by ID, "1 0 20:30:00".
  std::vector<std::string> Segmenti();
  /// The spots by ID, "1 0/1/1 welcome.mp3 F0-0011.mp3".
  std::vector<std::string> Spot();
};

}  // namespace kvr5::test
