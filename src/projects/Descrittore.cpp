#include "projects/Descrittore.h"

#include <array>
#include <string>
#include <utility>

#include "core/Aiuti.h"
#include "core/Impostazioni.h"
#include "platform/CodePage.h"
#include "platform/FileOps.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

std::string DescriptorText(const StatoApplicazione& state) {
  const std::array<std::pair<const char*, std::string>, 7> lines{{
      {"ProjectName", state.ProjectName},
      {"PlayerName", state.PlayerName},
      {"PlayerType", std::to_string(state.PlayerType)},
      {"PlayerConfig", std::to_string(state.PlayerConfig)},
      {"PlayerConfigDesc", state.PlayerConfigDesc},
      {"PlayerMode", std::to_string(state.PlayerMode)},
      {"Analyzer", std::to_string(state.Analyzer)},
  }};
  std::string text = "[CONFIG]\r\n";
  for (const auto& [key, value] : lines) text.append(key).append("=").append(value).append("\r\n");
  return text;
}

std::string Value(Contesto& contesto, std::string_view key, std::string_view fallback = {}) {
  return LeggiParametroIni(contesto, FileDelProgetto(contesto, "Config.cfg"), "CONFIG", key,
                           fallback);
}

void ReadNumber(Contesto& contesto, std::string_view key, std::int16_t& target,
                std::string_view fallback = {}) {
  const auto number = TextToInt16(Value(contesto, key, fallback), contesto.Luogo);
  if (number) target = number.Value();
}

}  // namespace

bool SalvaDescrittoreProgetto(Contesto& contesto) {
  auto& state = contesto.Stato;
  const std::string path = FileDelProgetto(contesto, "Config.cfg");
  if (FileExists(contesto.Files, path)) contesto.Errore.Record(contesto.Files.Delete(path));
  auto file = contesto.Files.Open(path, OpenMode::Write);
  if (state.ProjectName.empty()) state.ProjectName = EstraiNomeFile(state.CartellaProgetto);
  if (!contesto.Errore.Record(file.Err())) return true;
  const CodePage page(contesto.Luogo.AnsiCodePage);
  contesto.Errore.Record(file.Value()->Write(page.Encode(DescriptorText(state))));
  // The old one is gone: a power cut must not find neither.
  contesto.Errore.Record(file.Value()->Flush());
  contesto.Errore.Record(file.Value()->Close());
  return true;
}

void LeggiDescrittore(Contesto& contesto) {
  auto& state = contesto.Stato;
  state.ProjectName = Value(contesto, "ProjectName");
  if (state.ProjectName.empty()) state.ProjectName = EstraiNomeFile(state.CartellaProgetto);
  ReadNumber(contesto, "PlayerType", state.PlayerType);
  state.PlayerName = NomeModello(state.PlayerType);
  ReadNumber(contesto, "PlayerConfig", state.PlayerConfig);
  state.PlayerConfigDesc = Value(contesto, "PlayerConfigDesc");
  ReadNumber(contesto, "PlayerMode", state.PlayerMode);
  ReadNumber(contesto, "Analyzer", state.Analyzer, "0");
}

bool LeggiUse485(Contesto& contesto) {
  const auto number = TextToNumber(Value(contesto, "Use485", "0"), contesto.Luogo);
  return number && *number == 1;
}

}  // namespace kvr5
