#include "core/SelezioneFlash.h"

namespace kvr5 {

bool ScegliScheda(Contesto& contesto, SelezioneFlash& scelta) {
  scelta.Scegli();
  contesto.Messaggi.LasciaCorrere();
  const auto& state = contesto.Stato;
  return !state.SelezioneFlashAnnullata && !state.PercorsoMemoryCard.empty();
}

bool ScegliSchedaSeManca(Contesto& contesto, SelezioneFlash& scelta) {
  return !contesto.Stato.PercorsoMemoryCard.empty() || ScegliScheda(contesto, scelta);
}

}  // namespace kvr5
