#include "mp3/ParoleRifiuto.h"

#include <algorithm>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "mp3/TabelleMp3.h"
#include "platform/Locale.h"

namespace kvr5 {
namespace {

std::string Range(Contesto& contesto, std::string_view key, std::string_view fallback, double value,
                  std::int32_t least, std::int32_t most) {
  const Locale& locale = contesto.Luogo;
  return ConValori(
      TestoLinguaO(contesto, key, fallback),
      {FormatGrouped(value, locale), FormatGrouped(least, locale), FormatGrouped(most, locale)});
}

}  // namespace

std::string ParoleRifiuto(Contesto& contesto, RifiutoMp3 motivo, const InfoMp3& info) {
  switch (motivo) {
    case RifiutoMp3::Nessuno:
      break;
    case RifiutoMp3::NessunFlusso:
      return TestoLinguaO(contesto, "0130040", "No MPEG audio was found at the file's beginning");
    case RifiutoMp3::TagNascondeFrame:
      return TestoLinguaO(
          contesto, "0130041",
          "The tag at the start of this file hides where its sound begins. Save the file "
          "without tags, then choose it again.");
    case RifiutoMp3::NonLayer3:
      return ConValori(TestoLinguaO(contesto, "0130042", "Layer %1; the player takes Layer 3"),
                       {std::to_string(info.Layer)});
    case RifiutoMp3::NonMpeg1:
      return ConValori(TestoLinguaO(contesto, "0130043", "%1; the inputs take MPEG 1"),
                       {NomeVersioneMpeg(info.Version)});
    case RifiutoMp3::BitrateFuori:
      return Range(contesto, "0130044", "%1 kbit/s; the player takes %2 to %3 kbit/s",
                   ArrotondaPari(info.Bitrate / 1000.0), limiti_mp3::MinKbit, limiti_mp3::MaxKbit);
    case RifiutoMp3::FrequenzaFuori:
      return Range(contesto, "0130045", "%1 Hz; the player takes %2 to %3 Hz", info.SampleRate,
                   limiti_mp3::MinHz, limiti_mp3::MaxHz);
    case RifiutoMp3::ErroreInAnalisi:
      return TestoLinguaO(contesto, "0130046",
                          "A figure of this file can't be worked out. Convert the file anew, then "
                          "choose it again.");
  }
  return {};
}

std::string ParoleRifiutoDelFile(Contesto& contesto, const modMp3Infos& lettore, bool manca,
                                 RifiutoMp3 motivo, const InfoMp3& info) {
  const bool unread = std::ranges::any_of(lettore.Errori(), [](const ErroreMp3& each) {
    return each.Luogo.ends_with(".Open") || each.Luogo.ends_with(".Get");
  });
  if (manca || (unread && !info.Valid)) {
    return TestoLinguaO(contesto, "0130258",
                        "This file isn't there any more, or it can't be read.");
  }
  return ParoleRifiuto(contesto, motivo, info);
}

}  // namespace kvr5
