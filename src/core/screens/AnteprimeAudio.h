#pragma once

#include <memory>

#include "core/Anteprima.h"
#include "core/Contesto.h"
#include "platform/audio/SoundHost.h"

namespace kvr5 {

/// The players of the program: real sound, its end told from the event loop. A host without a
/// device for sound is told once in the log; all else stays usable there.
class AnteprimeAudio : public Anteprime {
 public:
  /// The context, and this object, must outlive its players.
  explicit AnteprimeAudio(Contesto& contesto) : contesto_(contesto) {}
  std::unique_ptr<Anteprima> Nuova() override;

 private:
  class Lettore;
  void Annota(const Error& error);

  Contesto& contesto_;
  SoundHost suono_;
  bool annotato_ = false;
};

}  // namespace kvr5
