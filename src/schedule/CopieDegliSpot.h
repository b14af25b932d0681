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
  /// Looks which there are as the editor comes up: nothing has been edited yet, so that each copy
  /// belongs to the row that has its name.
  void Leggi(EditorPalinsesto& editor);

  /// Whether there is a copy of this row's file: the row is what it was then.
  bool Propria(std::int64_t id, const std::string& cartella, const std::string& nome) const;
  /// Whether there is one whose file isn't in the project under its own name as well.
  bool SenzaNome(Contesto& contesto) const;
  /// Copies each under the file's own name, where that is free, and has its row find it there: a
  /// save with Yes then finds all sources. One copy operation, with its window and cancel; of two
  /// files of one name the first spot's gets it.
  void RidaiNomi(EditorPalinsesto& editor);

 private:
  struct Copia {
    std::string Alias, Cartella, Nome;
  };
  /// Has a row find its file in the project, where it is there.
  static void PortaInProgetto(EditorPalinsesto& editor, std::int64_t id, Copia& copia);

  std::map<std::int64_t, Copia> copie_;
};

}  // namespace kvr5
