#include "platform/audio/SoundHost.h"

#define SDL_MAIN_HANDLED  // the program has its own beginning
#include <SDL.h>

#include <string>

namespace kvr5 {

SoundHost::~SoundHost() {
  if (started_) SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

Error SoundHost::Start() {
  if (started_) return {};
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");                // Ctrl-C goes on ending the program
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "KVR5Software");  // in the host's mixer
  started_ = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
  return started_ ? Error() : NoSound();
}

Error NoSound() {
  const std::string words = SDL_GetError();
  Error plain(errors::DeviceUnavailable);
  if (words.empty()) return plain;
  return {plain.Number(), plain.Description() + ": " + words};
}

}  // namespace kvr5
