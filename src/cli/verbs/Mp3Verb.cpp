#include <iostream>

#include "cli/verbs/Verb.h"
#include "mp3/Accettazione.h"
#include "mp3/EtichetteMp3.h"
#include "mp3/modMp3Infos.h"

namespace kvr5::cli {
namespace {

Json ToJson(const std::string& file, const InfoMp3& info, const EtichetteMp3& labels) {
  return {
      {"File", file},
      {"Valid", info.Valid},
      {"Version", info.Version},
      {"Layer", info.Layer},
      {"Bitrate", info.Bitrate},
      {"SampleRate", info.SampleRate},
      {"Channels", info.Channels},
      {"ChannelMode", info.ChannelMode},
      {"Emphasis", info.Emphasis},
      {"IsVbr", info.IsVbr},
      {"HasId3v1", info.HasId3v1},
      {"HasId3v2", info.HasId3v2},
      {"Private", info.Private},
      {"Original", info.Original},
      {"Frames", info.Frames},
      {"FileBytes", info.FileBytes},
      {"Duration", info.Duration},
      {"HeaderOffset", info.HeaderOffset},
      {"GoodPlaylist", BuonoPerEditor(info)},
      {"GoodInput", BuonoPerIngressi(info)},
      {"Labels", {labels.lblVersioneMpeg, labels.lblBitrate, labels.lblFreq, labels.lblDurata}}};
}

std::string ForPeople(const std::string& file, const InfoMp3& info, const EtichetteMp3& labels) {
  std::string text = file + ": ";
  if (labels.lblVersioneMpeg.empty()) return text + "not an MP3 file that the player takes";
  text += labels.lblVersioneMpeg + ", " + labels.lblBitrate + ", " + labels.lblFreq + ", " +
          labels.lblDurata + ": ";
  if (BuonoPerIngressi(info)) return text + "good";
  return text + (BuonoPerEditor(info) ? "good for playlists and schedules" : "refused");
}

/// The texts as the hub shows them, where a file that the lists would take without a word and one
/// that is refused both show their figures.
EtichetteMp3 LabelsOnHub(const Contesto& context, const std::string& path, const InfoMp3& info) {
  if (!info.Valid) return {};
  const auto file = context.Files.Info(path);
  const std::uint64_t length = file ? file.Value().Size : 0;
  return MostraInfoMp3(SchermoMp3::Ingressi, info, length, context.Luogo).Etichette;
}

/// False when the name can't be taken at all.
bool Analyse(Session& session, modMp3Infos& reader, const std::string& file) {
  auto& context = session.Context();
  const auto path = context.Files.SystemPath(file);
  if (!path) session.Out().Say(file + ": a file of this name can't be taken");
  const InfoMp3 info = path ? reader.LeggiInfoMp3(path.Value()) : InfoMp3{};
  const EtichetteMp3 labels = LabelsOnHub(context, path ? path.Value() : "", info);
  if (session.Out().IsJson()) {
    session.Out().Object(ToJson(file, info, labels));
  } else {
    session.Out().Line(ForPeople(file, info, labels));
  }
  return static_cast<bool>(path);
}

}  // namespace

int RunMp3(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.empty()) return kUsage;
  modMp3Infos reader(session.Context().Files);
  bool all = true;
  if (arguments.size() == 1 && arguments[0] == "-") {
    for (std::string line; std::getline(std::cin, line);) {
      if (line.ends_with('\r')) line.pop_back();
      if (!line.empty()) all = Analyse(session, reader, line) && all;
    }
  } else {
    for (const auto& file : arguments) all = Analyse(session, reader, file) && all;
  }
  return all ? kDone : kRefused;
}

}  // namespace kvr5::cli
