#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// Tells of each audio file that a list for the player names, in the order of its lines and as
/// often as it does. `nome` stands in the list without ".mp3".
using VoceListe = std::function<void(const std::string& nome)>;

/// Asked every few hundred lines; false ends the reading. None is never asked.
using AvantiListe = std::function<bool()>;

/// Reads a list of tracks (`*.m3u`): a name a line. A blank line names nothing. A file beyond 4 MiB
/// is no list: error 7.
Error LeggiListaBrani(Contesto& contesto, std::string_view file, const VoceListe& voce,
                      const AvantiListe& avanti = {});

/// Reads a schedule (`PALIN.TXT`, `*.pal`): a segment a line, which is its start time and for each
/// spot a tab, the spot's name and a tab. A file beyond 4 MiB is none.
Error LeggiPalinsesto(Contesto& contesto, std::string_view file, const VoceListe& voce,
                      const AvantiListe& avanti = {});

}  // namespace kvr5
