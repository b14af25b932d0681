#pragma once

#include <string>
#include <vector>

#include "core/Contesto.h"
#include "core/FinestraProgresso.h"
#include "core/SelezioneFlash.h"

namespace kvr5 {

/// How the reading back of a card ended.
enum class FineLettura {
  Copiata,           ///< the copy ran to its end, or to a failure that its window told
  SenzaScheda,       ///< no card was chosen; nothing was said or changed
  SenzaDescrittore,  ///< told by a box
  SenzaNome,         ///< told by a box
  Rinunciata,        ///< the name dialog was left
  SenzaCartella,     ///< told by a box: the folder can't be made
  SchedaVuota,       ///< no file of a project is on the card any more; the new folder stays empty
  Annullata,         ///< told by a box; what was copied stays
};

/// The reading back of a card in figures.
struct EsitoLettura {
  FineLettura Fine = FineLettura::Copiata;
  std::string Cartella{};  ///< the new folder, where one was made: system form, no closing bar
  /// Files of the card that weren't copied, as no card of another computer could hold their names.
  std::vector<std::string> Lasciati{};
};

/// What the reading back asks of the screen that it runs on.
class SchermoLettura {
 public:
  virtual ~SchermoLettura() = default;
  /// Asks modally for a name in the place of `nome`, which a project has. ProjectName, empty before
  /// the call, is the name that was given, or empty.
  virtual void ChiediNome(const std::string& nome) = 0;
  /// The copy begins: the screen takes no more commands.
  virtual void Disabilita() = 0;
  /// The copy was cancelled, which was told: the screen is to be used again.
  virtual void Riabilita() = 0;
};

/// Brings the project of a card into a new folder below CartellaProgetti: asks for the card, takes
/// the name from its descriptor, asks for another one where a project has that, makes the folder
/// and copies everything on the card to it. Nothing on the card is changed; opening the copy is the
/// caller's next step.
///
/// A name that no folder can have (a path, dots alone, a device's) makes none anywhere and is told
/// with error 52. After every stop but those without a card CartellaProgetto goes on naming the
/// card until the next project is opened, and nothing that was made is taken back.
EsitoLettura CaricaDaFlash(Contesto& contesto, SelezioneFlash& scelta, SchermoLettura& schermo,
                           FinestraProgresso& progresso);

/// Says which files of the card weren't copied; says nothing where all were.
void AvvisaLasciati(Contesto& contesto, const EsitoLettura& esito);

}  // namespace kvr5
