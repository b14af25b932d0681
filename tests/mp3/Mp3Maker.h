#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "mp3/CountingFiles.h"
#include "mp3/modMp3Infos.h"
#include "support/TempFolder.h"

namespace kvr5::test {

/// What the reader takes of a file at a time.
inline constexpr std::size_t kBuffer = 16384;

/// The fields of a frame header to be made; as it stands MPEG 1 Layer III, 128 kbit/s, 44,100 Hz,
/// joint stereo, whose frames are 418 bytes long.
struct HeaderBits {
  int Version = 3;
  int LayerBits = 1;
  int Protection = 1;
  int BitrateIndex = 9;
  int SampleRateIndex = 0;
  int Padding = 0;
  int Private = 0;
  int ChannelMode = 1;
  int ModeExtension = 0;
  int Copyright = 0;
  int Original = 1;
  int Emphasis = 0;

  std::string Bytes() const;
};

/// MPEG 2 Layer III, 64 kbit/s, 22,050 Hz, mono: frames of 209 bytes.
inline constexpr HeaderBits kMpeg2Mono{.Version = 2, .BitrateIndex = 8, .ChannelMode = 3};

/// `size` bytes that begin with the header and hold no other sync.
std::string Stream(const HeaderBits& header, std::size_t size);
/// The same with the header as it stands.
inline std::string Plain(std::size_t size = 20000) {
  return Stream({}, size);
}

/// `bytes` with `text` put over what stands at `at`.
std::string With(std::string bytes, std::size_t at, std::string_view text);

/// A 32-bit number, most significant byte first.
std::string BigEndian(std::uint32_t value);

/// "Xing" or "Info", the flags, and the two counts for the flags 3.
std::string XingTag(std::string_view name, std::uint32_t frames, std::uint32_t bytes,
                    std::uint32_t flags = 3);
std::string VbriTag(std::uint32_t frames, std::uint32_t bytes);

/// An ID3v2.3 tag whose content is `content`.
std::string Id3v2Tag(const std::string& content);

/// A reader of its own in a folder of its own.
class ReaderTest : public testing::Test {
 protected:
  /// Writes the bytes as a file of that name and analyses it.
  InfoMp3 Read(const std::string& name, std::string_view bytes);

  TempFolder folder_;
  CountingFiles files_;
  modMp3Infos reader_{files_};
};

}  // namespace kvr5::test
