#pragma once

#include <cstdint>
#include <string>

#include "mp3/InfoMp3.h"
#include "platform/Locale.h"

namespace kvr5 {

/// The panel that tells of the MP3 file picked in a file pane, on three screens.

/// The four texts; all empty where nothing is to be told.
struct EtichetteMp3 {
  std::string lblVersioneMpeg;  ///< "MPEG 1 Layer 3"
  std::string lblBitrate;       ///< "Bitrate: 128kbit (CBR)"
  std::string lblFreq;          ///< "44100 - 2 Ch (Joint Stereo)"
  std::string lblDurata;        ///< "00.03.05  2,901 Kb"

  bool operator==(const EtichetteMp3&) const = default;
};

/// How the analysis came out, as far as the screens' controls tell it apart.
enum class VerdettoMp3 {
  NonLetto,   ///< no record: the editor of lists also disables its button
  Rifiutato,  ///< a record, but not of a file that this screen takes
  Buono,
};

/// What the panel shows after a call of `PulisciInfoMp3` or `MostraInfoMp3`.
struct PannelloMp3 {
  EtichetteMp3 Etichette;
  bool lblBadFileType = false;  ///< visible: the warning
  VerdettoMp3 Verdetto = VerdettoMp3::NonLetto;

  bool operator==(const PannelloMp3&) const = default;
};

/// The two kinds of screen that carry the panel.
enum class SchermoMp3 {
  Editor,    ///< lists and schedule: figures only of a file that is good
  Ingressi,  ///< the hub: figures of every Layer III file, so that the reason can be seen
};

/// The four texts of an analysed file. `fileLength` is its length on the disk in bytes, tags and
/// all.
EtichetteMp3 ComponiEtichette(const InfoMp3& info, std::uint64_t fileLength, const Locale& locale);

/// The panel with nothing to tell: texts empty, warning hidden.
PannelloMp3 PulisciInfoMp3();

/// The panel after the analysis of a file.
PannelloMp3 MostraInfoMp3(SchermoMp3 screen, const InfoMp3& info, std::uint64_t fileLength,
                          const Locale& locale);

}  // namespace kvr5
