#include "projects/CartellaProgetto.h"

#include "core/Aiuti.h"
#include "core/Avvio.h"

namespace kvr5 {

bool ProgettoSenzaInputcfg(std::int16_t playerType, std::int16_t playerConfig,
                           std::int16_t playerMode) {
  if (playerType == 2) return playerConfig >= 3;
  if (playerType == 3 || playerType == 4) return playerMode >= 2;
  return false;
}

std::vector<std::string> DatabaseDelProgetto(std::int16_t playerType, std::int16_t playerConfig,
                                             std::int16_t playerMode) {
  switch (playerType) {
    case 1:
      return {"inputcfg.mdb"};
    case 2:
      if (playerConfig < 3) return {"inputcfg.mdb", "playlist.mdb"};
      return {"playlist.mdb"};
    case 3:
    case 4: {
      if (playerMode == 1) return {"inputcfg.mdb"};
      const bool schedule = playerMode == 2 || (playerType == 3 && playerMode == 3);
      return {schedule ? "scheduler.mdb" : "playlist.mdb"};
    }
    default:
      return {};
  }
}

std::string ModelloConfig(std::int16_t playerType, std::int16_t playerConfig,
                          std::int16_t playerMode) {
  std::string name = "Defaults\\" + std::to_string(playerType);
  switch (playerType) {
    case 1:
      break;
    case 2:
      name += std::to_string(playerConfig);
      break;
    case 3:
    case 4:
      name += std::to_string(playerMode);
      break;
    default:
      return {};
  }
  return name + "Config.txt";
}

std::vector<std::string> ElencoProgetti(Contesto& contesto) {
  std::vector<std::string> names;
  const std::string root = AggiungiBarra(contesto.Stato.CartellaProgetti);
  const auto entries = contesto.Files.List(root);
  if (!entries) return names;
  for (const auto& entry : entries.Value()) {
    if (entry.IsFolder && CartellaDiProgetto(contesto, root + entry.Name)) {
      names.push_back(entry.Name);
    }
  }
  return names;
}

std::string FileDelProgetto(const Contesto& contesto, std::string_view nome) {
  return AggiungiBarra(contesto.Stato.CartellaProgetto).append(nome);
}

}  // namespace kvr5
