#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>

#include "platform/HostFileSystem.h"
#include "platform/audio/Mp3Player.h"
#include "platform/audio/Tone.h"
#include "road/Encoder.h"
#include "support/FaultyFileSystem.h"
#include "support/TempFolder.h"

namespace kvr5::test {

/// Players on devices that are no hardware: "dummy" takes its time and is silent, "disk" is quick
/// and writes what it is given into a file.
class Devices : public testing::Test {
 protected:
  ~Devices() override;

  /// What is brought up next.
  static void Use(const char* driver);
  /// The file that a disk device writes which is opened from now on.
  void HearInto(const std::string& name);
  /// All that it was given so far, silence too.
  Sound Heard(const std::string& name) const;
  std::uintmax_t Length(const std::string& name) const;
  /// Encodes a tone of two seconds at 44,100 Hz; false where no encoder is, which skips the test.
  bool Encode(const std::string& name, int hertz = 440, const std::string& options = {});
  int Open(Mp3Player& player, const std::string& name) {
    return player.Open(folder.System(name)).Number();
  }
  /// Waits until something is so, at most ten seconds.
  static bool Eventually(const std::function<bool()>& condition);

  TempFolder folder;
  PathMap paths;
  HostFileSystem files{paths};
  FaultyFileSystem faulty{files};
  SoundHost host;
};

/// Counts the ends that a player tells.
struct Ends {
  explicit Ends(Mp3Player& player) {
    player.OnEnd = [this] { ++Count; };
  }
  std::atomic<int> Count = 0;
};

}  // namespace kvr5::test
