#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"

namespace kvr5 {

/// The databases that a project may have, in the order of a recording.
inline constexpr std::array<const char*, 3> kDatabaseProgetto{"inputcfg.mdb", "playlist.mdb",
                                                              "scheduler.mdb"};

/// True when a project of this kind has no inputcfg.mdb, so that its absence is no fault: model 2
/// with configuration 3 and more, models 3 and 4 in mode 2 and more.
bool ProgettoSenzaInputcfg(std::int16_t playerType, std::int16_t playerConfig,
                           std::int16_t playerMode);

/// The databases that a new project of this kind gets, by their file names.
std::vector<std::string> DatabaseDelProgetto(std::int16_t playerType, std::int16_t playerConfig,
                                             std::int16_t playerMode);

/// The template of Config.txt, below the program's folder: "Defaults\45Config.txt" and the like;
/// "" for an unknown model.
std::string ModelloConfig(std::int16_t playerType, std::int16_t playerConfig,
                          std::int16_t playerMode);

/// The names of the projects below CartellaProgetti, by name: the subfolders that hold both
/// config.txt and config.cfg.
std::vector<std::string> ElencoProgetti(Contesto& contesto);

/// Full path of a file of the open project.
std::string FileDelProgetto(const Contesto& contesto, std::string_view nome);

}  // namespace kvr5
