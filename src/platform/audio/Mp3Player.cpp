#include "platform/audio/Mp3Player.h"

#define SDL_MAIN_HANDLED  // the program has its own beginning
#include <SDL.h>

#include <algorithm>
#include <bit>
#include <utility>

namespace kvr5 {
namespace {

/// A buffer of at most 25 milliseconds: what a stop and a close take.
Uint16 BufferFor(int rate) {
  constexpr unsigned kPerSecond = 40;
  return static_cast<Uint16>(std::bit_floor(static_cast<unsigned>(rate) / kPerSecond));
}

}  // namespace

Error Mp3Player::Open(std::string_view path) {
  Close();
  noDevice_ = false;
  auto decoder = Mp3Decoder::Open(files_, path);
  if (!decoder) return decoder.Err();
  noDevice_ = true;
  if (Error error = host_.Start()) return error;
  decoder_ = std::move(decoder.Value());
  ended_ = false;
  SDL_AudioSpec wanted{};
  wanted.freq = decoder_->Rate();
  wanted.format = AUDIO_S16SYS;
  wanted.channels = 2;
  wanted.samples = BufferFor(decoder_->Rate());
  wanted.userdata = this;
  wanted.callback = [](void* self, Uint8* bytes, int length) {
    static_cast<Mp3Player*>(self)->Fill({reinterpret_cast<std::int16_t*>(bytes),
                                         static_cast<std::size_t>(length) / sizeof(std::int16_t)});
  };
  // No change of format is allowed: the layer below converts to what the device takes.
  device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
  noDevice_ = device_ == 0;
  if (!noDevice_) return {};
  decoder_.reset();
  return NoSound();
}

Error Mp3Player::Play() {
  if (device_ == 0) return Error(errors::DeviceUnavailable);
  SDL_PauseAudioDevice(device_, 0);
  return {};
}

void Mp3Player::Stop() {
  if (device_ == 0) return;
  SDL_PauseAudioDevice(device_, 1);
  SDL_LockAudioDevice(device_);  // waits for the piece that is being decoded
  SDL_UnlockAudioDevice(device_);
}

void Mp3Player::Close() {
  if (device_ != 0) SDL_CloseAudioDevice(std::exchange(device_, 0));
  decoder_.reset();
}

void Mp3Player::Fill(std::span<std::int16_t> samples) {
  const std::size_t got = decoder_->Read(samples);
  std::ranges::fill(samples.subspan(got), std::int16_t{0});
  // All silence: what came before has gone to the device.
  if (got == 0 && !std::exchange(ended_, true) && OnEnd) OnEnd();
}

}  // namespace kvr5
