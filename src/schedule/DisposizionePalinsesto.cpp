#include "schedule/DisposizionePalinsesto.h"

namespace kvr5 {

DisposizionePalinsesto DisposizionePalinsestoDi(std::int16_t playerType, std::int16_t playerMode) {
  constexpr std::int16_t kOstrel = 3;
  constexpr std::int16_t kKvr5 = 4;
  constexpr std::int16_t kOneSchedule = 2;
  DisposizionePalinsesto layout;
  if (playerType == kOstrel) {
    layout.NumeroMassimoSegmenti = 128;
    layout.picFraDay = playerMode != kOneSchedule;
    layout.GiornoCorrente = layout.picFraDay ? 1 : 0;
  }
  layout.OreBloccate = playerType == kKvr5;
  return layout;
}

}  // namespace kvr5
