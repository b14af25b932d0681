#include "mp3/Accettazione.h"

#include "mp3/TabelleMp3.h"
#include "platform/Locale.h"

namespace kvr5 {
namespace {

bool BitrateEntroILimiti(const InfoMp3& info) {
  const double kbit = ArrotondaPari(info.Bitrate / 1000.0);
  return kbit >= limiti_mp3::MinKbit && kbit <= limiti_mp3::MaxKbit;
}

bool FrequenzaEntroILimiti(const InfoMp3& info) {
  return info.SampleRate >= limiti_mp3::MinHz && info.SampleRate <= limiti_mp3::MaxHz;
}

RifiutoMp3 Giudica(const InfoMp3& info, bool soloMpeg1) {
  if (!info.Valid) return RifiutoMp3::NessunFlusso;
  if (info.Layer != 3) return RifiutoMp3::NonLayer3;
  if (soloMpeg1 && info.Version != versione_mpeg::Mpeg1) return RifiutoMp3::NonMpeg1;
  if (!BitrateEntroILimiti(info)) return RifiutoMp3::BitrateFuori;
  if (!FrequenzaEntroILimiti(info)) return RifiutoMp3::FrequenzaFuori;
  return RifiutoMp3::Nessuno;
}

/// True when what the search ended at belongs to the tag at the start, not to the audio.
bool IsTagNelMezzo(const RicercaMp3& search) {
  constexpr std::int32_t kReach = 16383;  // a header must begin here at the latest
  if (search.LunghezzaId3v2 == 0) return false;
  if (search.Sincronia < 0) return search.LunghezzaId3v2 > kReach;
  return search.Sincronia < search.LunghezzaId3v2;
}

/// Behind a tag that was fallen for, every other reason would speak of figures that aren't the
/// file's.
RifiutoMp3 Motivo(RifiutoMp3 verdict, const RicercaMp3& search) {
  const bool refused = verdict != RifiutoMp3::Nessuno;
  return refused && IsTagNelMezzo(search) ? RifiutoMp3::TagNascondeFrame : verdict;
}

}  // namespace

bool BuonoPerEditor(const InfoMp3& info) {
  return Giudica(info, false) == RifiutoMp3::Nessuno;
}

bool BuonoPerIngressi(const InfoMp3& info) {
  return Giudica(info, true) == RifiutoMp3::Nessuno;
}

bool BuonoInMassa(const InfoMp3& info, const ErroriMp3& failures) {
  return BuonoPerEditor(info) && failures.empty();
}

RifiutoMp3 MotivoPerEditor(const InfoMp3& info, const RicercaMp3& search) {
  return Motivo(Giudica(info, false), search);
}

RifiutoMp3 MotivoPerIngressi(const InfoMp3& info, const RicercaMp3& search) {
  return Motivo(Giudica(info, true), search);
}

RifiutoMp3 MotivoInMassa(const InfoMp3& info, const RicercaMp3& search, const ErroriMp3& failures) {
  const RifiutoMp3 verdict = MotivoPerEditor(info, search);
  const bool spoilt = verdict == RifiutoMp3::Nessuno && !failures.empty();
  return spoilt ? RifiutoMp3::ErroreInAnalisi : verdict;
}

}  // namespace kvr5
