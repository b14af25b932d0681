#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/Contesto.h"
#include "core/FinestraProgresso.h"
#include "core/SelezioneFlash.h"
#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {

/// How a recording ended.
enum class FineRegistrazione {
  Compiuta,       ///< to its end, in silence
  SenzaScheda,    ///< no card was chosen; nothing was said or touched
  NonScrivibile,  ///< told by a box; nothing was copied
  FileMancante,   ///< told by a box; the project's own files are on the card, no MP3
  Annullata,      ///< told by a box at the end; everything that was copied stays
};

/// A recording in figures.
struct EsitoRegistrazione {
  FineRegistrazione Fine = FineRegistrazione::Compiuta;
  std::size_t File = 0;    ///< files copied onto the card
  std::uint64_t Byte = 0;  ///< their bytes
  /// The project's databases that are there but can't be read: their passes were skipped in
  /// silence, as if they were missing.
  std::vector<std::string> NonLetti{};
  bool CopieRiuscite = true;  ///< one that failed was told by the copy window

  /// Whether everything of the project is on the card.
  bool Intera() const {
    return Fine == FineRegistrazione::Compiuta && NonLetti.empty() && CopieRiuscite;
  }
};

/// Turns the project's folder, as it stands on the disk, into the card's contents: a write test,
/// seven stages that copy the project's own files and gather the MP3 files, and one copy of all
/// MP3 files.
///
/// Free space is never measured; the card is not cleared. A copy that fails is told by the copy
/// window alone, and the run goes on. A cancel is looked at once, at the end. `ingressi` is the
/// hub's table: it is closed while the databases are copied, and reopened.
EsitoRegistrazione RegistraProgettoSuFlash(Contesto& contesto, TabellaIngressi& ingressi,
                                           FinestraProgresso& progresso, SelezioneFlash& scelta);

}  // namespace kvr5
