#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// What can be told of a project without opening it.
struct FattiProgetto {
  std::string Nome;     ///< ProjectName of the descriptor; "" when it has none
  std::string Modello;  ///< "KVR5 (Inputs)": PlayerConfigDesc, else the model's name; may be ""
  /// The last change of the descriptor, Config.txt or a database, whichever is newest, in seconds
  /// since 1970-01-01 UTC; nothing when none is there.
  std::optional<std::int64_t> Modificato;
};

/// Reads the facts of the project in a folder (a card's root, too); nothing when it holds no
/// Config.cfg that can be read. The state stays, nothing is said and nothing made. Safe on a
/// damaged card: of the descriptor the first 64 KB count, and the texts are fit for one line.
std::optional<FattiProgetto> LeggiFattiProgetto(const Contesto& contesto,
                                                std::string_view cartella);

}  // namespace kvr5
