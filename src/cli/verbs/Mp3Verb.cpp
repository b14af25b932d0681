#include <algorithm>

#include "cli/InputLines.h"
#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "mp3/Accettazione.h"
#include "mp3/EtichetteMp3.h"
#include "mp3/modMp3Infos.h"
#include "platform/FileOps.h"

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

/// True where nothing of this name is there; a folder, or what may not be looked at, is something.
bool IsMissing(const Contesto& context, const std::string& path) {
  const auto found = context.Files.Info(path);
  return found.Err().Number() == errors::FileNotFound ||
         found.Err().Number() == errors::PathNotFound;
}

/// False when the name can't be taken at all.
bool Analyse(Session& session, modMp3Infos& reader, const std::string& file) {
  auto& context = session.Context();
  const auto path = context.Files.SystemPath(file);
  const InfoMp3 info = path ? reader.LeggiInfoMp3(path.Value()) : InfoMp3{};
  const EtichetteMp3 labels = LabelsOnHub(context, path ? path.Value() : "", info);
  if (!path) {
    session.Line().Clear();
    session.Out().Say(file + ": a file of this name can't be taken");
  }
  if (session.Out().IsJson()) {
    session.Out().Object(ToJson(file, info, labels));
  } else if (path && IsMissing(context, path.Value())) {
    session.Out().Line(file + ": there is no such file");
  } else {
    session.Out().Line(ForPeople(file, info, labels));
  }
  return static_cast<bool>(path);
}

/// The files of one call, one after another, until Ctrl-C.
class Analysis {
 public:
  /// `count`: how many there are; 0 when nobody knows yet.
  Analysis(Session& session, std::size_t count)
      : session_(session), reader_(session.Context().Files), count_(count) {}

  /// False when the call was cancelled before this file.
  bool Take(const std::string& file) {
    if (Cancelled()) return false;
    ++done_;
    // On a terminal the results themselves tell how far the work is.
    if (!session_.Out().OnTerminal()) session_.Line().Show(Progress());
    all_ = Analyse(session_, reader_, file) && all_;
    return true;
  }

  /// Tells what keeps the call from being done whole.
  void Fail(std::string_view why) {
    session_.Line().Clear();
    session_.Out().Say(why);
    all_ = false;
  }

  int Status() {
    session_.Line().Clear();
    if (!Cancelled()) return all_ ? kDone : kRefused;
    session_.Out().Say("cancelled; files analysed: " + std::to_string(done_));
    return kRefused;
  }

 private:
  bool Cancelled() {
    cancelled_ = cancelled_ || Interrupt::Pressed();
    return cancelled_;
  }

  std::string Progress() const {
    std::string number = "Analysing  " + std::to_string(done_);
    if (count_ == 0) return number;
    return number + "/" + std::to_string(count_) + "  " + std::to_string(done_ * 100 / count_) +
           "%";
  }

  Session& session_;
  modMp3Infos reader_;
  std::size_t count_;
  std::size_t done_ = 0;
  bool all_ = true;
  bool cancelled_ = false;
  Interrupt interrupt_;
};

}  // namespace

int RunMp3(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.empty()) return kUsage;
  if (arguments.size() == 1 && arguments[0] == "-") {
    Analysis run(session, 0);
    InputLines lines;
    std::string line;
    for (bool first = true; lines.Next(line); first = false) {
      constexpr std::string_view kMark = "\xEF\xBB\xBF";
      if (first && line.starts_with(kMark)) line.erase(0, kMark.size());
      if (!line.empty() && !run.Take(line)) break;
    }
    if (lines.Failed()) run.Fail("standard input can't be read");
    return run.Status();
  }
  Analysis run(session, arguments.size());
  static_cast<void>(
      std::ranges::all_of(arguments, [&run](const std::string& file) { return run.Take(file); }));
  return run.Status();
}

}  // namespace kvr5::cli
