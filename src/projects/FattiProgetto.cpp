#include "projects/FattiProgetto.h"

#include <algorithm>
#include <span>

#include "core/Aiuti.h"
#include "core/Parole.h"
#include "platform/CodePage.h"
#include "platform/FileOps.h"
#include "platform/IniFile.h"

namespace kvr5 {
namespace {

/// The first bytes of a file; nothing when it isn't there or can't be read. A pipe that bears the
/// name is never opened.
std::optional<std::string> ReadHead(const Contesto& contesto, const std::string& path) {
  constexpr std::size_t kMost = std::size_t{64} << 10U;
  if (!FileExists(contesto.Files, path)) return {};
  const auto file = contesto.Files.Open(path, OpenMode::Read);
  if (!file) return {};
  std::string bytes(kMost, '\0');
  const auto read = file.Value()->Read(std::span(bytes));
  if (!read) return {};
  bytes.resize(read.Value());
  return bytes;
}

std::optional<std::int64_t> LastChange(const Contesto& contesto, const std::string& folder) {
  std::optional<std::int64_t> newest;
  for (const char* name :
       {"Config.cfg", "Config.txt", "inputcfg.mdb", "playlist.mdb", "scheduler.mdb"}) {
    const auto info = contesto.Files.Info(folder + name);
    if (info) newest = std::max(newest.value_or(info.Value().Modified), info.Value().Modified);
  }
  return newest;
}

}  // namespace

std::optional<FattiProgetto> LeggiFattiProgetto(const Contesto& contesto,
                                                std::string_view cartella) {
  constexpr std::size_t kBuffer = 100;  // the descriptor's values have 99 characters at most
  const std::string folder = AggiungiBarra(cartella);
  const auto bytes = ReadHead(contesto, folder + "Config.cfg");
  if (!bytes) return {};
  const CodePage page(contesto.Luogo.AnsiCodePage);
  const auto value = [&](std::string_view key) {
    return SuUnaRiga(page.Decode(ini::Read(*bytes, "CONFIG", key, "", kBuffer, page)));
  };
  FattiProgetto facts{value("ProjectName"), value("PlayerConfigDesc"),
                      LastChange(contesto, folder)};
  const auto model = TextToInt16(value("PlayerType"), contesto.Luogo);
  if (facts.Modello.empty() && model) facts.Modello = NomeModello(model.Value());
  return facts;
}

}  // namespace kvr5
