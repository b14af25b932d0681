#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "platform/FileSystem.h"
#include "platform/audio/Mp3Decoder.h"
#include "platform/audio/SoundHost.h"

namespace kvr5 {

/// Plays one MP3 file at a time through a device of its own, which the host mixes with others. Its
/// calls are of one thread; the file is decoded in the device's.
class Mp3Player {
 public:
  /// Both must outlive it.
  Mp3Player(FileSystem& files, SoundHost& host) : files_(files), host_(host) {}
  ~Mp3Player() { Close(); }
  Mp3Player(const Mp3Player&) = delete;
  Mp3Player& operator=(const Mp3Player&) = delete;

  /// Closes what was open and opens a file (system form): 53 or 76 where it isn't there, 75 for a
  /// folder, 13 where it holds no MPEG audio, 68 where the host has no device.
  Error Open(std::string_view path);
  /// Whether it was the device, or its lack, that the last Open failed for, and not the file.
  bool NoDevice() const { return noDevice_; }
  /// Plays from where it stands; 68 where no file is open.
  Error Play();
  /// Falls silent at once and keeps the place; nothing of the file is decoded when it returns.
  void Stop();
  /// Lets file and device go, after what the device has taken was heard. OnEnd isn't under way when
  /// it returns, and won't be called for that file.
  void Close();

  /// Called once a file, when the last of it was given to the device: in the device's thread, where
  /// the player must not be called. To be set while no file is open.
  std::function<void()> OnEnd;

 private:
  void Fill(std::span<std::int16_t> samples);

  FileSystem& files_;
  SoundHost& host_;
  std::unique_ptr<Mp3Decoder> decoder_;
  std::uint32_t device_ = 0;  ///< 0 is none
  bool noDevice_ = false;
  bool ended_ = false;  ///< the end was told; the device's thread's own while one is open
};

}  // namespace kvr5
