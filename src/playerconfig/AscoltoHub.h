#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/Ascolto.h"
#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {

/// Listening on the hub: `mPlayer` plays the file that is picked in the list, `mciPreview` the one
/// that is assigned to the ticked inputs. Any stop stops both.
class AscoltoHub : public Ascolto {
 public:
  /// All references must outlive it.
  AscoltoHub(Contesto& contesto, Esecutore& documenti, Anteprima& mPlayer, Anteprima& mciPreview);

  /// cmdPlayMp3 gets the picture PlayOn or PlayOff.
  std::function<void(bool on)> SuPlayMp3;
  /// cmdMp3Preview_Play does.
  std::function<void(bool on)> SuPlayAssegnato;
  /// What cmdPlayMp3, or cmdMp3Preview_Play, was to play stays silent; its picture is PlayOn none
  /// the less, until the next stop.
  std::function<void()> SuMutoMp3;
  std::function<void()> SuMutoAssegnato;

  // Stop: cmdStopMp3 and cmdMp3Preview_Stop, and a tick of an input; nothing with the external
  // player.

  /// The notification of a player; a file that was played to its end stops both.
  void Notifica(int codice);
  /// cmdPlayMp3: a file of the folder shown. One that isn't there stays silent, and what plays goes
  /// on.
  void PlayMp3(const std::string& cartella, const std::string& file);
  /// cmdMp3Preview_Play: the file of a code's row, which is searched anew since others move the
  /// cursor. It is looked for in the project by its name, where it came from, and in the project by
  /// its alias; the external player gets what was found. The internal one is always given the place
  /// that it came from, and is silent where only the project's copy is left.
  void PlayAssegnato(TabellaIngressi& ingressi, std::int16_t codice);

 private:
  void Ferma() override;
  void PlayTrovato(const std::string& trovato, const std::string& origine);
  /// Stops both and plays a file, unless another command comes meanwhile: that one counts.
  void Cambia(Anteprima& player, const std::function<void(bool)>& immagine,
              const std::function<void()>& muto, const std::string& path);

  Anteprima& mPlayer_;
  Anteprima& mciPreview_;
};

}  // namespace kvr5
