#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "projects/OraDelSegmento.h"
#include "projects/SommarioProgetto.h"
#include "schedule/EditorPalinsesto.h"

namespace kvr5 {

/// A spot as it is shown.
struct RigaSpot {
  std::int64_t ID = 0;
  RigaProgetto Brano;
};

/// A segment as it is shown.
struct RigaSegmento {
  std::int64_t ID = 0;
  std::optional<Ora> Inizio;
  std::vector<RigaSpot> Spot;  ///< those of its day, by Pos
  bool StessaOra = false;      ///< another segment of the day starts then too
};

/// The segments of the current day in the order of the grid, with their spots; rsSegmenti keeps its
/// place. None where it is closed.
std::vector<RigaSegmento> RigheDellaGriglia(EditorPalinsesto& editor);

/// A segment on the picture of the week.
struct SegmentoVisto {
  std::int64_t ID = 0;
  std::int16_t Giorno = 0;
  std::optional<Ora> Inizio;
  std::size_t Spot = 0;
  bool StessaOra = false;
  bool operator==(const SegmentoVisto&) const = default;
};

/// The segments of all days at a glance. Read whole once; after that the day that is edited is
/// renewed from the rows of its grid.
class SettimanaPalinsesto {
 public:
  void Leggi(EditorPalinsesto& editor);
  void Rinnova(std::int16_t giorno, const std::vector<RigaSegmento>& righe);
  /// The segments of a day, by time.
  const std::vector<SegmentoVisto>& Del(std::int16_t giorno) const;

 private:
  std::array<std::vector<SegmentoVisto>, 8> giorni_;  ///< the one schedule, Monday to Sunday
};

}  // namespace kvr5
