#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "core/Ascolto.h"
#include "platform/db/Recordset.h"

namespace kvr5 {

/// Listening on the editors of playlists and schedule: `mci1` plays the file of their pane,
/// `mciPreview` that of a row of their list.
class AscoltoEditor : public Ascolto {
 public:
  /// `quanti`: how many buttons play a row: one, cmdPlayMp3, or the elements of picPlay. All
  /// references must outlive it.
  AscoltoEditor(Contesto& contesto, Esecutore& documenti, Anteprima& mci1, Anteprima& mciPreview,
                std::size_t quanti = 1);

  /// cmdPlayFileSx gets the picture PlayOn or PlayOff.
  std::function<void(bool on)> SuPlayFileSx;
  /// cmdPlayMp3 (`indice` 0), or picPlay(`indice`), does.
  std::function<void(std::size_t indice, bool on)> SuPlayRiga;
  /// What cmdPlayFileSx, or the row's button, was to play stays silent, under the picture PlayOn.
  std::function<void()> SuMutoFileSx;
  std::function<void(std::size_t indice)> SuMutoRiga;

  // Stop: cmdStopFileSx, cmdStopMp3 and picStop; stops both, also with the external player.

  /// The notification of a player; a file that was played to its end stops both.
  void Notifica(int codice);
  /// cmdPlayFileSx: the selected file of the pane, be it there or not.
  void PlayFileSx(const std::string& cartella, const std::string& file);
  /// cmdPlayMp3 of the playlists: the current row. A box tells of a file that is missing.
  void PlayRiga(const Recordset& rsList);
  /// picPlay(`indice`) of the schedule: the spot of that slot, in `rsDettaglio`, which moves to it.
  /// A box tells of a file that is missing; the external player gets the file of the pane, whatever
  /// the spot's is.
  void PlaySpot(std::size_t indice, Recordset& rsDettaglio, const std::string& cartella,
                const std::string& file);

 private:
  void Ferma() override;
  void MostraFileSx(bool on) const;
  void MostraRiga(std::size_t indice, bool on) const;
  /// Goes to the row of a slot; false when there is none.
  static bool Cerca(Recordset& rsDettaglio, std::size_t indice);
  void SuonaRiga(std::size_t indice, const std::string& path);
  void DiciMancante(const std::string& path);

  Anteprima& mci1_;
  Anteprima& mciPreview_;
  std::size_t quanti_;
};

}  // namespace kvr5
