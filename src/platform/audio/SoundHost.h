#pragma once

#include "platform/Error.h"

namespace kvr5 {

/// The host's sound: brought up when it is first needed, let go with this object. To be used by one
/// thread, and to outlive its players.
class SoundHost {
 public:
  SoundHost() = default;
  ~SoundHost();
  SoundHost(const SoundHost&) = delete;
  SoundHost& operator=(const SoundHost&) = delete;

  /// Brings it up unless it is: 68, with the host's words behind, where there is none. A later call
  /// tries again.
  Error Start();

 private:
  bool started_ = false;
};

/// 68 with the words of the host behind its own.
Error NoSound();

}  // namespace kvr5
