#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "platform/FileSystem.h"

struct mpg123_handle_struct;

namespace kvr5 {

/// An MP3 file as samples of signed 16 bits, two channels in turn. One channel is given twice, and
/// what changes its rate further on is brought to that of the first frame, so that a device which
/// was opened for it goes on to the end.
class Mp3Decoder {
 public:
  /// Opens a file (system form). 53 or 76 where it isn't there, 75 for a folder, 13 where it holds
  /// no MPEG audio, 7 without memory.
  static Result<std::unique_ptr<Mp3Decoder>> Open(FileSystem& files, std::string_view path);
  ~Mp3Decoder();
  Mp3Decoder(const Mp3Decoder&) = delete;
  Mp3Decoder& operator=(const Mp3Decoder&) = delete;

  /// Samples a second of each channel.
  int Rate() const { return rate_; }
  /// Fills `samples` from where it stands, and tells how many there were: fewer at the end, then
  /// none. A file that can't be read or made out any further ends there.
  std::size_t Read(std::span<std::int16_t> samples);

 private:
  struct Source;
  struct Deleter {
    void operator()(mpg123_handle_struct* handle) const;
  };

  explicit Mp3Decoder(std::unique_ptr<File> file);
  Error Start();
  bool ChooseFormat();

  std::unique_ptr<Source> source_;  // the decoder reads it to its own end
  std::unique_ptr<mpg123_handle_struct, Deleter> handle_;
  int rate_ = 0;
  bool ended_ = false;
};

}  // namespace kvr5
