#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/ListaCopia.h"
#include "playerconfig/NomiCartella.h"
#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// The copies in the project's folder that bear the names that tracks have on the card, as opening
/// a card leaves them. A recording takes a copy for the track that has its name, whatever the row
/// says: once the order of the tracks changes the copies are others'.
class CopieDeiBrani {
 public:
  /// Looks which there are as the editor comes up: nothing has been edited yet, so that a copy
  /// belongs to the row that has its name. Where the row's own file is there, too, the copy has to
  /// be as long and as old as it.
  void Leggi(EditorPlaylist& editor);

  /// What to do about them; "" where there are none.
  std::string Parole(Contesto& contesto) const;

  /// Has every track find its file under the file's own name: where that is nowhere else, the copy
  /// is copied under it, or one like it where that is taken, within the project's folder. The
  /// copies themselves stay until a save, without which the rows need them. One copy operation,
  /// with its window and cancel.
  void RidaiNomi(EditorPlaylist& editor);

  /// After a save: deletes the copies whose tracks were given their files, unless a row of the
  /// saved lists names one of them as its file.
  void TogliSuperate(Contesto& contesto);

 private:
  struct Copia {
    std::string Alias, Cartella, Nome;
  };
  static bool HaFile(const Contesto& contesto, const Copia& copia);
  void AggiornaRighe(EditorPlaylist& editor, const std::map<std::string, std::string>& nomi);

  std::map<std::string, Copia> copie_;  ///< by the folded name on the card
  std::vector<Copia> superate_;
};

}  // namespace kvr5
