#include "mp3/Mp3Maker.h"

namespace kvr5::test {

std::string HeaderBits::Bytes() const {
  const int second = 0xE0 | Version << 3 | LayerBits << 1 | Protection;
  const int third = BitrateIndex << 4 | SampleRateIndex << 2 | Padding << 1 | Private;
  const int fourth =
      ChannelMode << 6 | ModeExtension << 4 | Copyright << 3 | Original << 2 | Emphasis;
  return {'\xFF', static_cast<char>(second), static_cast<char>(third), static_cast<char>(fourth)};
}

std::string Stream(const HeaderBits& header, std::size_t size) {
  std::string bytes = header.Bytes();
  bytes.resize(size, 'U');
  return bytes;
}

std::string With(std::string bytes, std::size_t at, std::string_view text) {
  bytes.replace(at, text.size(), text);
  return bytes;
}

std::string BigEndian(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

std::string XingTag(std::string_view name, std::uint32_t frames, std::uint32_t bytes,
                    std::uint32_t flags) {
  return std::string(name) + BigEndian(flags) + BigEndian(frames) + BigEndian(bytes);
}

std::string VbriTag(std::uint32_t frames, std::uint32_t bytes) {
  return "VBRI" + std::string("\0\1\0\0\0\x50", 6) + BigEndian(bytes) + BigEndian(frames);
}

std::string Id3v2Tag(const std::string& content) {
  std::string size;
  for (int shift = 21; shift >= 0; shift -= 7) {
    size += static_cast<char>(content.size() >> shift & 0x7F);
  }
  return std::string("ID3\3\0\0", 6) + size + content;
}

InfoMp3 ReaderTest::Read(const std::string& name, std::string_view bytes) {
  folder_.Write(name, bytes);
  return reader_.LeggiInfoMp3(folder_.System(name));
}

}  // namespace kvr5::test
