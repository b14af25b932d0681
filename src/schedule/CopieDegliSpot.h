#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "schedule/EditorPalinsesto.h"

namespace kvr5 {

/// The copies in the project's folder that bear the names that spots have on the card, as a save
/// with Yes, or reading a card back, leaves them. A recording takes a copy for the spot that has
/// its name, whatever the row says: once the order of the spots changes the copies are others'.
class CopieDegliSpot {
 public:
  /// Looks which there are as the editor comes up: nothing has been edited yet, so that a copy
  /// belongs to the row that has its name. Where the row's own file is there, too, the copy has to
  /// be as long and as old as it: a spot that was replaced and saved with No has the copy of the
  /// one before.
  void Leggi(EditorPalinsesto& editor);

  /// Whether there is a copy of this row's file: the row is what it was then.
  bool Propria(std::int64_t id, const std::string& cartella, const std::string& nome) const;
  /// Whether there is one that is all that the project has of its file.
  bool SenzaNome(Contesto& contesto) const;
  /// Copies each of those under its file's own name, or one like it where that is taken, and has
  /// its row find it there: a save with Yes then finds all sources. One copy operation, with its
  /// window and cancel.
  void RidaiNomi(EditorPalinsesto& editor);

 private:
  struct Copia {
    std::string Alias, Cartella, Nome;
  };
  /// Whether the file that the row names isn't there.
  static bool SenzaFile(const Contesto& contesto, const Copia& copia);
  /// Has a row find its file in the project under a new name, where it is there and the row is
  /// still the same.
  static void PortaInProgetto(EditorPalinsesto& editor, std::int64_t id, Copia& copia,
                              const std::string& nome);

  std::map<std::int64_t, Copia> copie_;
};

}  // namespace kvr5
