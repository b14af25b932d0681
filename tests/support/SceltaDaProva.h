#pragma once

#include <functional>
#include <string>

#include "core/SelezioneFlash.h"

namespace kvr5::test {

/// The card dialog of a test: gives a card, or is left.
class SceltaDaProva : public SelezioneFlash {
 public:
  explicit SceltaDaProva(StatoApplicazione& state) : state_(state) {}
  void Scegli() override {
    ++Times;
    state_.SelezioneFlashAnnullata = Cancelled;
    if (!Card.empty()) state_.PercorsoMemoryCard = Card;
    if (Chosen) Chosen();
  }
  bool Presente() const override { return !Gone || !Gone(); }

  int Times = 0;
  bool Cancelled = false;
  std::string Card;
  std::function<void()> Chosen;
  std::function<bool()> Gone;

 private:
  StatoApplicazione& state_;
};

}  // namespace kvr5::test
