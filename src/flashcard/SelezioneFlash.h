#pragma once

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

}  // namespace kvr5
