#include "mp3/modMp3Infos.h"

#include <algorithm>
#include <cstring>

#include "mp3/TabelleMp3.h"

namespace kvr5 {
namespace {

std::string_view Text(std::span<const char> bytes) {
  return {bytes.data(), bytes.size()};
}

}  // namespace

modMp3Infos::modMp3Infos(FileSystem& files) : files_(files) {}

InfoMp3 modMp3Infos::LeggiInfoMp3(std::string_view path) {
  failures_.clear();
  sync_ = -1;
  start_.fill(0);
  if (!ApriFile(path)) return {};
  CaricaInizio();
  const bool found = TrovaIntestazione();
  if (found) {
    RilevaTagId3();
    LeggiTagVbr();
    if (!IsVbr_) CalcolaCbr();
  }
  file_.reset();
  return found ? Record() : InfoMp3();
}

RicercaMp3 modMp3Infos::Ricerca() const {
  RicercaMp3 result{.Sincronia = sync_, .LunghezzaId3v2 = 0};
  if (!Text(start_).starts_with("ID3")) return result;
  // ID3v2: four bytes of seven bits each, without the header, nor the footer that a flag tells of
  constexpr int kFooter = 0x10;
  std::int32_t length = 0;
  for (std::size_t i = 6; i < kId3HeaderSize; ++i) length = length << 7 | (start_.at(i) & 0x7F);
  length += static_cast<std::int32_t>(kId3HeaderSize);
  if ((start_[5] & kFooter) != 0) length += static_cast<std::int32_t>(kId3HeaderSize);
  result.LunghezzaId3v2 = length;
  return result;
}

// The look-up comes first, and finds neither folders nor what is hidden.
bool modMp3Infos::ApriFile(std::string_view path) {
  const auto info = files_.Info(path);
  if (!info || info.Value().IsFolder || info.Value().Hidden || info.Value().System) return false;
  fileLength_ = static_cast<std::int64_t>(info.Value().Size);
  auto file = files_.Open(path, OpenMode::Read);
  if (!file) {
    Annota("LeggiInfoMp3.Open", file.Err().Number());
    return false;
  }
  file_ = std::move(file.Value());
  return true;
}

void modMp3Infos::CaricaInizio() {
  bufferOffset_ = 0;
  bufferBytes_ = 0;
  CaricaFino(kFirstStep);
  std::copy_n(buffer_.begin(), kId3HeaderSize, start_.begin());
}

/// Loads more of the buffer, up to `count` bytes in all. Behind the file's end it is zero.
void modMp3Infos::CaricaFino(std::size_t count) {
  const auto target = std::span(buffer_).subspan(bufferBytes_, count - bufferBytes_);
  const auto offset = static_cast<std::int64_t>(bufferBytes_);
  const std::size_t read = LeggiDalFile(offset, target, "TrovaIntestazione.Get");
  bufferBytes_ += read;
  fileEnds_ = read < target.size();
  if (fileEnds_) std::fill(BufferAt(bufferBytes_), buffer_.end(), '\0');
}

/// Finds the first sync that has both bytes in the buffer. The scan looks one byte ahead first:
/// `SyncShift` tells whether it found the sync there, and of two that overlap at the very start
/// the second wins.
bool modMp3Infos::CercaSincronia() {
  const auto isSync = [this](std::size_t at) { return IsSincronia(buffer_[at], buffer_[at + 1]); };
  if (!isSync(1) && isSync(0)) {
    SyncShift_ = 0;
    PosizioneBuffer_ = 0;
    return true;
  }
  for (std::size_t at = 1; at + 1 < bufferBytes_; ++at) {
    const void* next = std::memchr(&buffer_[at], 0xFF, bufferBytes_ - 1 - at);
    if (next == nullptr) return false;
    at = static_cast<std::size_t>(static_cast<const char*>(next) - buffer_.data());
    if (isSync(at)) {
      SyncShift_ = 1;
      PosizioneBuffer_ = at;
      return true;
    }
  }
  return false;
}

/// A sync whose second byte is the first one behind the buffer. The buffer is loaded anew from the
/// sync on; what the file doesn't fill of it keeps its bytes.
bool modMp3Infos::SincroniaATraversoIlBordo() {
  if (bufferBytes_ < kBufferSize || buffer_.back() != '\xFF') return false;
  char next = 0;
  LeggiDalFile(kBufferSize, {&next, 1}, "TrovaIntestazione.Get");
  if (!IsSincronia(buffer_.back(), next)) return false;
  bufferOffset_ = kBufferSize - 1;
  bufferBytes_ = LeggiDalFile(bufferOffset_, buffer_, "TrovaIntestazione.Get");
  PosizioneBuffer_ = 0;
  return IsSincronia(buffer_[0], buffer_[1]);
}

/// Most files show their header in the first bytes; the whole buffer is loaded for the others.
bool modMp3Infos::TrovaIntestazione() {
  bool found = CercaSincronia();
  const bool whole = found && PosizioneBuffer_ + kHeaderSize <= bufferBytes_;
  if (!whole && !fileEnds_) {
    CaricaFino(kBufferSize);
    found = CercaSincronia();
  }
  if (!found && !SincroniaATraversoIlBordo()) return false;
  sync_ = bufferOffset_ + static_cast<std::int32_t>(PosizioneBuffer_);
  return LeggiIntestazione(PosizioneBuffer_, sync_ + 1);
}

bool modMp3Infos::LeggiIntestazione(std::size_t index, std::int32_t position) {
  header_.Decodifica(buffer_, index, failures_);
  if (!header_.Accettabile()) return false;
  HeaderPosition_ = position;
  DimensionaPrimoFrame();
  LeggiByte(position - 1, PrimoFrame_, "LeggiIntestazione.Get");
  return true;
}

/// A frame of length 0 can't be sized: it keeps the size and bytes of the frame before.
void modMp3Infos::DimensionaPrimoFrame() {
  const std::int32_t upper = LunghezzaFrame(header_) - 2 + SyncShift_;
  if (upper < 0) {
    Annota("LeggiIntestazione.ReDim", errors::SubscriptOutOfRange);
    return;
  }
  PrimoFrame_.assign(static_cast<std::size_t>(upper) + 1, '\0');
}

void modMp3Infos::RilevaTagId3() {
  constexpr std::int32_t kFromEnd = 128;
  HasId3v2_ = Text(start_).starts_with("ID3");
  HasId3v1_ = false;
  const auto length = LunghezzaFile();
  if (!length || length.Valore < kFromEnd) {
    Annota("RilevaTagId3.TAG", length ? errors::BadRecordNumber : length.Errore);
    return;
  }
  std::array<char, 3> probe{};
  LeggiByte(length.Valore - kFromEnd, probe, "RilevaTagId3.TAG");
  HasId3v1_ = Text(probe) == "TAG";
}

void modMp3Infos::LeggiTagVbr() {
  IsVbr_ = false;
  const auto tag = CercaTagVbr(PrimoFrame_);
  if (!tag) return;
  // what the tag doesn't tell stays as it stood
  Frames_ = tag->Frames.value_or(Frames_);
  FileBytes_ = tag->FileBytes.value_or(FileBytes_);
  if (FileBytes_ == 0 && Frames_ == 0) return;
  if (Frames_ > 0 && FileBytes_ == 0) {
    Assegna(FileBytes_, LunghezzaFile(), "LeggiTagVbr.FileBytes");
  }
  ValutaTagVbr(tag->Vbri);
}

/// The figures from the tag's two counts. A tag whose rate is that of the first frame doesn't make
/// the file VBR, unless it is one that only VBR encoders write.
void modMp3Infos::ValutaTagVbr(bool vbri) {
  std::int32_t rate = 0;
  Assegna(rate, ByteAlSecondo(Frames_, FileBytes_), "LeggiTagVbr.rate");
  const auto seconds = Dividi(FileBytes_, rate);
  Assegna(
      Duration_,
      seconds ? ArrotondaInTrentadueBit(seconds.Valore) : Calcolo<std::int32_t>{0, seconds.Errore},
      "LeggiTagVbr.Duration");
  Assegna(Bitrate_, BitrateMedio(), "LeggiTagVbr.Bitrate");
  IsVbr_ = Bitrate_ != header_.Bitrate() || vbri;
}

Calcolo<std::int32_t> modMp3Infos::ByteAlSecondo(std::int32_t frames,
                                                 std::int32_t fileBytes) const {
  const auto samples = InTrentadueBit(std::int64_t{header_.Campioni()} * frames);
  if (!samples) return samples;
  const auto seconds = Dividi(samples.Valore, header_.SampleRate());
  if (!seconds) return {0, seconds.Errore};
  const auto rate = Dividi(fileBytes, seconds.Valore);
  if (!rate) return {0, rate.Errore};
  return ArrotondaInTrentadueBit(rate.Valore);
}

/// Bits per second in whole 1000. The divisors are the samples of a Layer 3 frame times 125,
/// whatever the layer.
Calcolo<std::int32_t> modMp3Infos::BitrateMedio() const {
  const double divisor = header_.Version == versione_mpeg::Mpeg1 ? 144000.0 : 72000.0;
  const auto frameBytes = Dividi(FileBytes_, Frames_);
  if (!frameBytes) return {0, frameBytes.Errore};
  const auto kbit = ArrotondaInTrentadueBit(frameBytes.Valore * header_.SampleRate() / divisor);
  return kbit ? InTrentadueBit(std::int64_t{kbit.Valore} * 1000) : kbit;
}

/// Free format has no rate to divide by: that ends the routine before `FileBytes`.
void modMp3Infos::CalcolaCbr() {
  Bitrate_ = header_.Bitrate();
  const auto length = LunghezzaFile();
  if (!length) return Annota("CalcolaCbr.audio", length.Errore);
  // one byte fewer than there are from the header on; an ID3v1 tag counts as audio
  const std::int32_t audio = length.Valore - HeaderPosition_;
  Assegna(Frames_, ArrotondaInTrentadueBit(audio / (LunghezzaFrame(header_) - 0.5)),
          "CalcolaCbr.Frames");
  const auto seconds = Dividi(audio, Bitrate_);
  if (!seconds) return Annota("CalcolaCbr.Duration", seconds.Errore);
  Assegna(Duration_, ArrotondaInTrentadueBit(seconds.Valore * 8.0), "CalcolaCbr.Duration");
  FileBytes_ = audio;
}

InfoMp3 modMp3Infos::Record() const {
  return {.Valid = true,
          .Version = header_.Version,
          .Layer = StratoMpeg(header_.LayerBits),
          .Bitrate = Bitrate_,
          .SampleRate = header_.SampleRate(),
          .Channels = NumeroCanali(header_.ChannelMode),
          .ChannelMode = header_.ChannelMode,
          .Emphasis = header_.Emphasis,
          .IsVbr = IsVbr_,
          .HasId3v1 = HasId3v1_,
          .HasId3v2 = HasId3v2_,
          .Private = header_.Private != 0,
          .Original = header_.Original != 0,
          .Frames = Frames_,
          .FileBytes = FileBytes_,
          .Duration = Duration_,
          .HeaderOffset = HeaderPosition_ - 1};
}

/// Reads from the buffer what lies in it; the file is asked only for bytes that may be beyond.
std::size_t modMp3Infos::LeggiByte(std::int64_t offset, std::span<char> target,
                                   std::string_view luogo) {
  const std::int64_t from = offset - bufferOffset_;
  const auto inBuffer = static_cast<std::int64_t>(bufferBytes_) - from;
  const bool whole = inBuffer >= static_cast<std::int64_t>(target.size());
  if (from < 0 || (!whole && !fileEnds_)) return LeggiDalFile(offset, target, luogo);
  if (inBuffer <= 0) return 0;
  const std::size_t count = std::min(target.size(), static_cast<std::size_t>(inBuffer));
  std::copy_n(BufferAt(static_cast<std::size_t>(from)), count, target.begin());
  return count;
}

/// Bytes past the file's end stay as they are in `target`.
std::size_t modMp3Infos::LeggiDalFile(std::int64_t offset, std::span<char> target,
                                      std::string_view luogo) {
  const auto read = file_->ReadAt(static_cast<std::uint64_t>(offset), target);
  if (read) return read.Value();
  Annota(luogo, read.Err().Number());
  return 0;
}

/// A failing statement is passed over: its target keeps its value.
void modMp3Infos::Assegna(std::int32_t& target, Calcolo<std::int32_t> value,
                          std::string_view luogo) {
  if (value) {
    target = value.Valore;
  } else {
    Annota(luogo, value.Errore);
  }
}

}  // namespace kvr5
