#pragma once

#include "core/Contesto.h"

namespace kvr5 {

/// The dialog that chooses the card, as a routine asks for it.
class SelezioneFlash {
 public:
  virtual ~SelezioneFlash() = default;
  /// Shows the dialog modally: sets SelezioneFlashAnnullata, and PercorsoMemoryCard when a card
  /// was confirmed.
  virtual void Scegli() = 0;
  /// Whether the host has the chosen card still; one of Drives.ini as long as its folder is there.
  virtual bool Presente() const = 0;
};

/// Shows the dialog. False when it was cancelled or no card is chosen: the work is given up without
/// a word.
bool ScegliScheda(Contesto& contesto, SelezioneFlash& scelta);

/// The same where no card is chosen yet; the one that is chosen already will do.
bool ScegliSchedaSeManca(Contesto& contesto, SelezioneFlash& scelta);

}  // namespace kvr5
