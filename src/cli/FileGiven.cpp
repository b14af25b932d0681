#include "cli/FileGiven.h"

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "mp3/modMp3Infos.h"
#include "platform/FileOps.h"

namespace kvr5::cli {
namespace {

std::string WhyRefused(Session& session, modMp3Infos& reader, const std::string& path,
                       const std::function<bool(const InfoMp3&)>& good, const char* words) {
  auto& context = session.Context();
  if (!FileExists(context.Files, path)) {
    return context.Files.Info(path) ? "a folder or a hidden file isn't taken"
                                    : "there is no such file";
  }
  if (!MatchesWildcard(EstraiNomeFile(path), "*.mp3")) return "its name doesn't end in .mp3";
  if (good(reader.LeggiInfoMp3(path))) return {};
  return TestoLinguaO(context, words, "the player can't play this file");
}

}  // namespace

FileGiven LookAtFile(Session& session, modMp3Infos& reader, const std::string& file,
                     const std::function<bool(const InfoMp3&)>& good, const char* words) {
  const auto path = session.Context().Files.SystemPath(file);
  if (!path) return {{}, "a file of this name can't be taken"};
  return {path.Value(), WhyRefused(session, reader, path.Value(), good, words)};
}

}  // namespace kvr5::cli
