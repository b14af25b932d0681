#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "schedule/CopieDegliSpot.h"

namespace kvr5 {

/// What a recording, or a second save with Yes, would do to the spots without a word, told
/// beforehand.
///
/// A copy in the project's folder has the name that its spot has on the card, and a recording takes
/// it whatever the row says. So a spot that comes to a name under which another's copy lies there
/// would be recorded from that copy. And each spot has a name of its own on the card, but a file
/// gets there once, under the name of the first of its spots: the player finds nothing under the
/// others. And where a copy is all that the project has of a file, a save with Yes finds no source
/// for it, and ends there.
class AvvisiPalinsesto {
 public:
  AvvisiPalinsesto() = default;
  AvvisiPalinsesto(EditorPalinsesto& editor, const CopieDegliSpot& copie);

  /// Whether a recording would take an older copy for the spot of this ID.
  bool CopiaVecchia(std::int64_t id) const { return vecchie_.contains(id); }
  /// Whether its file gets onto the card under the name of another spot alone.
  bool Ripetuto(std::int64_t id) const { return ripetuti_.contains(id); }
  /// Whether a file of such a spot is there to be copied.
  bool Copiabili() const { return copiabili_; }
  /// Whether copies are to be given their own names first.
  bool SenzaNome() const { return senzaNome_; }
  /// What to do about them, a line for each kind that there is, which names the first one.
  std::string Parole(Contesto& contesto) const;
  /// The same about a spot of this name.
  static std::string ParoleCopiaDi(Contesto& contesto, const std::string& nome);
  static std::string ParoleRipetutoDi(Contesto& contesto, const std::string& nome);

 private:
  /// A spot that a recording takes from its source.
  struct Candidato {
    std::int64_t Giorno = 0, Pos = 0, ID = 0;
    std::string Percorso, Nome;
  };
  void SegnaRipetuti(const Contesto& contesto, std::vector<Candidato>& candidati);

  std::set<std::int64_t> vecchie_;
  std::set<std::int64_t> ripetuti_;
  bool senzaNome_ = false;
  bool copiabili_ = false;
  std::string primaVecchia_;  ///< the name of the first one
  std::string primoRipetuto_;
};

}  // namespace kvr5
