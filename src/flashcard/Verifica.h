#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"
#include "flashcard/RaccoltaMp3.h"
#include "platform/ShellCopy.h"

namespace kvr5 {

/// What is wrong with a file of the card.
enum class Difetto {
  Mancante,   ///< a recording would put it there, and it isn't
  Diverso,    ///< its bytes aren't those of the project's file
  Estraneo,   ///< a recording wouldn't put it there
  VoceVuota,  ///< a list names it, and it isn't there
  Rifiutato,  ///< the player wouldn't take it
  NonLetto,   ///< it, or the project's file, could not be read
};

/// The words of the companion for it: "missing", "different", "stray", "entry", "refused",
/// "unchecked".
std::string_view NomeDifetto(Difetto difetto);

/// One finding.
struct Riscontro {
  Difetto Tipo = Difetto::Mancante;
  std::string File;  ///< its name in the card's root
  /// The project's own file, where that is what can't be had; as its row or path names it.
  std::string DelProgetto{};
  Mancanza Perche = Mancanza::Nessuna;  ///< and why

  /// The same fault of the same file.
  bool operator==(const Riscontro& altro) const { return Tipo == altro.Tipo && File == altro.File; }
};

/// What a verification came to.
struct EsitoVerifica {
  std::vector<Riscontro> Riscontri{};
  std::size_t Attesi = 0;    ///< files that a recording would put there
  std::size_t File = 0;      ///< files that were compared to their end
  std::uint64_t Byte = 0;    ///< their bytes
  bool Annullata = false;    ///< the findings are those up to the cancel
  bool SenzaScheda = false;  ///< there is no card
  bool Sparita = false;      ///< the card went away amid it; the findings are those up to then

  std::size_t Quanti(Difetto tipo) const;
};

/// Who watches a verification.
class OsservatoreVerifica {
 public:
  virtual ~OsservatoreVerifica() = default;
  /// Before each file and after each piece of at most 128 KiB; lets events run. False cancels.
  virtual bool Avanza(const CopyState& stato) = 0;
  virtual void Trovato(const Riscontro& /*riscontro*/) {}
  /// Whether the host has the card: asked before all, and where something of it can't be read. The
  /// folder that a card was mounted at may outlive it.
  virtual bool Presente() { return true; }
};

/// Compares the card in the root `scheda` with what a recording of the open project would put there
/// now, byte for byte, as the device gives them and not as the host remembers them. Then looks
/// whether the player takes the files, whether every name in the card's lists is a file of it, and
/// what else lies there. Nothing on the card is changed.
///
/// The findings come in the order of a recording, then the names in the lists, then the strays by
/// name. Hidden and system files and folders are no findings.
EsitoVerifica VerificaScheda(Contesto& contesto, const std::string& scheda,
                             OsservatoreVerifica& osservatore);

}  // namespace kvr5
