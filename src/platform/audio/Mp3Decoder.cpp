#include "platform/audio/Mp3Decoder.h"

#include <mpg123.h>
#include <sys/types.h>

#include <array>
#include <cstdio>
#include <utility>

namespace kvr5 {
namespace {

// As far into the file as the reader of headers looks for the first frame.
constexpr long kSearch = 16L * 1024;

}  // namespace

/// The file under the decoder's own reading.
struct Mp3Decoder::Source {
  std::unique_ptr<File> Open;
  std::uint64_t At = 0;

  static ssize_t Read(void* self, void* buffer, std::size_t size) {
    auto& source = *static_cast<Source*>(self);
    const auto read = source.Open->ReadAt(source.At, {static_cast<char*>(buffer), size});
    if (!read) return -1;
    source.At += read.Value();
    return static_cast<ssize_t>(read.Value());
  }

  static off_t Seek(void* self, off_t offset, int from) {
    auto& source = *static_cast<Source*>(self);
    off_t start = 0;
    if (from == SEEK_CUR) start = static_cast<off_t>(source.At);
    if (from == SEEK_END) {
      const auto size = source.Open->Size();
      if (!size) return -1;
      start = static_cast<off_t>(size.Value());
    }
    if (start + offset < 0) return -1;
    source.At = static_cast<std::uint64_t>(start + offset);
    return start + offset;
  }
};

void Mp3Decoder::Deleter::operator()(mpg123_handle_struct* handle) const {
  mpg123_delete(handle);  // closes it, too
}

Mp3Decoder::Mp3Decoder(std::unique_ptr<File> file)
    : source_(std::make_unique<Source>(Source{std::move(file), 0})) {}

Mp3Decoder::~Mp3Decoder() = default;

Result<std::unique_ptr<Mp3Decoder>> Mp3Decoder::Open(FileSystem& files, std::string_view path) {
  auto file = files.Open(path, OpenMode::Read);
  if (!file) return file.Err();
  std::unique_ptr<Mp3Decoder> decoder(new Mp3Decoder(std::move(file.Value())));
  if (Error error = decoder->Start()) return error;
  return decoder;
}

Error Mp3Decoder::Start() {
  static const bool ready = mpg123_init() == MPG123_OK;  // older libraries want it
  if (ready) handle_.reset(mpg123_new(nullptr, nullptr));
  if (!handle_) return Error(errors::OutOfMemory);
  mpg123_handle* handle = handle_.get();
  // The tags, and the pictures in them, are of no use here.
  constexpr long kFlags = MPG123_QUIET | MPG123_FORCE_STEREO | MPG123_SKIP_ID3V2;
  const bool open =
      mpg123_param(handle, MPG123_ADD_FLAGS, kFlags, 0) == MPG123_OK &&
      mpg123_param(handle, MPG123_RESYNC_LIMIT, kSearch, 0) == MPG123_OK &&
      mpg123_replace_reader_handle(handle, Source::Read, Source::Seek, nullptr) == MPG123_OK &&
      mpg123_open_handle(handle, source_.get()) == MPG123_OK;
  return open && ChooseFormat() ? Error() : Error(errors::TypeMismatch);
}

bool Mp3Decoder::ChooseFormat() {
  mpg123_handle* handle = handle_.get();
  const auto only = [handle](long rate) {
    return mpg123_format(handle, rate, MPG123_STEREO, MPG123_ENC_SIGNED_16) == MPG123_OK;
  };
  const long* rates = nullptr;
  std::size_t count = 0;
  mpg123_rates(&rates, &count);
  if (mpg123_format_none(handle) != MPG123_OK) return false;
  for (const long rate : std::span(rates, count)) {
    if (!only(rate)) return false;
  }
  long rate = 0;
  int channels = 0;
  int encoding = 0;
  if (mpg123_getformat(handle, &rate, &channels, &encoding) != MPG123_OK) return false;
  rate_ = static_cast<int>(rate);
  return rate > 0 && mpg123_format_none(handle) == MPG123_OK && only(rate);
}

std::size_t Mp3Decoder::Read(std::span<std::int16_t> samples) {
  const auto bytes = std::as_writable_bytes(samples);
  std::size_t filled = 0;
  while (!ended_ && filled < bytes.size()) {
    std::size_t done = 0;
    const int outcome =
        mpg123_read(handle_.get(), reinterpret_cast<unsigned char*>(bytes.data() + filled),
                    bytes.size() - filled, &done);
    filled += done;
    ended_ = outcome != MPG123_OK && outcome != MPG123_NEW_FORMAT;
  }
  return filled / sizeof(std::int16_t);
}

}  // namespace kvr5
