#pragma once

#include <cstdint>

namespace kvr5 {

/// What the editor of the schedule shows for a model and mode, and the day on which it comes up.
struct DisposizionePalinsesto {
  std::int16_t GiornoCorrente = 0;  ///< 0: one schedule; 1: one for each day of the week
  bool picFraDay = false;           ///< the choice of the day
  bool OreBloccate = false;         ///< all segments lie in hour 00
  /// The number that is told when a day is full. What is tested is another one, on purpose.
  std::int16_t NumeroMassimoSegmenti = 60;

  bool operator==(const DisposizionePalinsesto&) const = default;
};

/// Tells it for any project, whatever the hub offers.
DisposizionePalinsesto DisposizionePalinsestoDi(std::int16_t playerType, std::int16_t playerMode);

}  // namespace kvr5
