#include "mp3/EtichetteMp3.h"

#include "core/FormattaDurata.h"
#include "mp3/Accettazione.h"
#include "mp3/TabelleMp3.h"

namespace kvr5 {

EtichetteMp3 ComponiEtichette(const InfoMp3& info, std::uint64_t fileLength, const Locale& locale) {
  const std::string layer = std::to_string(info.Layer);
  const std::string kbit = NumberToText(info.Bitrate / 1000.0, locale);
  const std::string channels = std::to_string(info.Channels);
  const double kilobytes = static_cast<double>(fileLength) / 1024.0;
  return {
      .lblVersioneMpeg = std::string(NomeVersioneMpeg(info.Version)) + " Layer " + layer,
      .lblBitrate = "Bitrate: " + kbit + "kbit" + (info.IsVbr ? " (VBR)" : " (CBR)"),
      .lblFreq = std::to_string(info.SampleRate) + " - " + channels + " Ch (" +
                 std::string(NomeModoCanale(info.ChannelMode)) + ")",
      .lblDurata = FormattaDurata(info.Duration) + "  " + FormatGrouped(kilobytes, locale) + " Kb",
  };
}

PannelloMp3 PulisciInfoMp3() {
  return {};
}

PannelloMp3 MostraInfoMp3(SchermoMp3 screen, const InfoMp3& info, std::uint64_t fileLength,
                          const Locale& locale) {
  const bool hub = screen == SchermoMp3::Ingressi;
  const bool good = hub ? BuonoPerIngressi(info) : BuonoPerEditor(info);
  PannelloMp3 panel = PulisciInfoMp3();
  panel.lblBadFileType = !good;
  if (info.Valid) panel.Verdetto = good ? VerdettoMp3::Buono : VerdettoMp3::Rifiutato;
  const bool figures = good || (hub && info.Layer == 3);
  if (figures) panel.Etichette = ComponiEtichette(info, fileLength, locale);
  return panel;
}

}  // namespace kvr5
