#pragma once

#include <cstdint>

#include "mp3/InfoMp3.h"

namespace kvr5 {

/// Which files the player takes: MPEG Layer III, 60 to 320 kbit/s (the average of a VBR file),
/// 22,050 to 44,100 Hz, all limits included. 32,000 Hz is good. Inputs take MPEG 1 only.

/// The limits, themselves included.
namespace limiti_mp3 {
inline constexpr std::int32_t MinKbit = 60;
inline constexpr std::int32_t MaxKbit = 320;
inline constexpr std::int32_t MinHz = 22050;
inline constexpr std::int32_t MaxHz = 44100;
}  // namespace limiti_mp3

/// Why a file is refused.
enum class RifiutoMp3 {
  Nessuno,
  NessunFlusso,      ///< no MPEG stream in the first 16 KB
  TagNascondeFrame,  ///< the ID3v2 tag at the start holds a false sync or fills the whole 16 KB
  NonLayer3,
  NonMpeg1,         ///< good in lists, not on inputs
  BitrateFuori,     ///< outside 60 to 320 kbit/s
  FrequenzaFuori,   ///< outside 22,050 to 44,100 Hz
  ErroreInAnalisi,  ///< a figure couldn't be computed; only in runs over whole lists
};

/// The rule of the editors, and of single files put into lists.
bool BuonoPerEditor(const InfoMp3& info);

/// The rule of the logic inputs: the editors' rule, and MPEG 1 only.
bool BuonoPerIngressi(const InfoMp3& info);

/// The rule of adding a whole folder and of importing a list: the editors' rule, and nothing failed
/// during the analysis.
bool BuonoInMassa(const InfoMp3& info, const ErroriMp3& failures);

/// The reason behind each of the three; `Nessuno` exactly when the file is good. `search` lets a
/// file be told apart whose real frames stand behind a tag that the search fell for.
RifiutoMp3 MotivoPerEditor(const InfoMp3& info, const RicercaMp3& search);
RifiutoMp3 MotivoPerIngressi(const InfoMp3& info, const RicercaMp3& search);
RifiutoMp3 MotivoInMassa(const InfoMp3& info, const RicercaMp3& search, const ErroriMp3& failures);

}  // namespace kvr5
