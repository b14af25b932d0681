#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Error.h"

namespace kvr5 {

/// One player of MP3 files, as a screen listens to a file before it takes it: open, play, stop,
/// close, and word of the end. There is no pause and no position.
class Anteprima {
 public:
  /// The code of SuNotifica for a file that was played to its end.
  static constexpr int kFinita = 1;

  virtual ~Anteprima() = default;
  /// Opens a file (system form). 53 or 76 where it isn't there, 13 where it is no MP3, 68 where the
  /// host has no device for sound; nothing can be played then.
  virtual Error Open(const std::string& file) = 0;
  /// Plays the open file from where it stands; 68 where none is open.
  virtual Error Play() = 0;
  /// Falls silent; harmless when nothing plays.
  virtual void Stop() = 0;
  /// Lets the file go; harmless when none is open. No notification comes any more.
  virtual void Close() = 0;
  /// Called from the event loop, once a file; not at all after a stop.
  std::function<void(int codice)> SuNotifica;
};

/// Makes the players of the screens, each screen two.
class Anteprime {
 public:
  virtual ~Anteprime() = default;
  virtual std::unique_ptr<Anteprima> Nuova() = 0;
};

}  // namespace kvr5
