#include "playlists/DisposizionePlaylist.h"

#include "core/Lingua.h"
#include "core/Parole.h"

namespace kvr5 {
namespace {

constexpr const char* kPlaylist = "0050033";
constexpr std::int16_t kNamed = 9;

std::string Numbered(Contesto& context, int number, const char* key) {
  return std::to_string(number) + " " + TestoLingua(context, key);
}

/// Entries `first` to `last`, whose data count from 0.
std::vector<VocePlaylist> Numbers(Contesto& context, int first, int last) {
  std::vector<VocePlaylist> entries;
  for (int i = first; i <= last; ++i) {
    entries.push_back({Numbered(context, i, kPlaylist), i - first});
  }
  return entries;
}

std::vector<VocePlaylist> Days(Contesto& context) {
  std::vector<VocePlaylist> entries;
  for (int i = 1; i <= 7; ++i) {
    entries.push_back({NomeDelGiorno(context, i), i - 1});
  }
  return entries;
}

/// A list of its own, then six numbered ones, whose data begin at 0 again.
std::vector<VocePlaylist> MainAndSix(Contesto& context) {
  std::vector<VocePlaylist> entries{{TestoLingua(context, "0050035"), 0}};
  for (int i = 1; i <= 6; ++i) entries.push_back({Numbered(context, i, "0050034"), i - 1});
  return entries;
}

DisposizionePlaylist WithSelector(std::vector<VocePlaylist> entries) {
  DisposizionePlaylist layout;
  layout.picfraSelezionePlaylist = true;
  layout.Voci = std::move(entries);
  return layout;
}

DisposizionePlaylist OneList() {
  DisposizionePlaylist layout;
  layout.PlaylistMultiple = false;
  layout.PlaylistCorrente = 1;
  return layout;
}

DisposizionePlaylist OfOstrel(Contesto& context, std::int16_t mode) {
  constexpr int kLast = 7;
  if (mode == 4) return OneList();
  if (mode == 5) return WithSelector(Numbers(context, 0, kLast));
  if (mode == 6) return WithSelector(Days(context));
  if (mode == 7) {
    DisposizionePlaylist layout = WithSelector(Numbers(context, 0, kLast));
    layout.picFraIngresso = true;
    return layout;
  }
  if (mode == 8) return WithSelector(MainAndSix(context));
  if (mode != kNamed) return {};
  DisposizionePlaylist layout = WithSelector({});
  layout.picfraAddRemovePL = true;
  layout.NomiDaHead = true;
  return layout;
}

DisposizionePlaylist OfKvr5(Contesto& context, std::int16_t mode) {
  if (mode == 4) return OneList();
  if (mode < 5 || mode > 7) return {};
  DisposizionePlaylist layout = WithSelector(Numbers(context, 1, 7));
  layout.PlaylistCorrente = 1;
  return layout;
}

}  // namespace

DisposizionePlaylist DisposizionePlaylistDi(Contesto& contesto, std::int16_t playerType,
                                            std::int16_t playerMode) {
  if (playerType == 2) return OneList();
  if (playerType == 3) return OfOstrel(contesto, playerMode);
  if (playerType == 4) return OfKvr5(contesto, playerMode);
  return {};
}

bool IndiceDaUno(std::int16_t playerMode) {
  return (playerMode >= 5 && playerMode <= 7) || playerMode == kNamed;
}

}  // namespace kvr5
