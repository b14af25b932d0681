#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"
#include "flashcard/RaccoltaMp3.h"
#include "platform/FileSystem.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {

/// The project's own files that a recording copies, in the order of its stages.
namespace contenuto_scheda {
inline constexpr const auto& kDatabase = kDatabaseProgetto;
inline constexpr std::array<const char*, 2> kConfigurazione{"Config.txt", "Config.cfg"};
inline constexpr const char* kListe = "*.m3u";
/// The lists for use on the computer; where playlists have names they stay in the project.
inline constexpr const char* kListeLocali = "*_LOCAL_.m3u";
inline constexpr std::int16_t kPlaylistConNome = 9;
inline constexpr const char* kPalinsesto = "PALIN.TXT";
inline constexpr const char* kGiorni = "*.pal";
inline constexpr std::array<const char*, 2> kReport{"*.htm", "*.jpg"};
inline constexpr const char* kAnalyzer = "Analyzer.mp3";
}  // namespace contenuto_scheda

/// Which rule of the player an MP3 file on the card has to meet.
enum class RegolaMp3 { Nessuna, Ingressi, Brani };

/// A file that a recording puts on the card.
struct FileDiScheda {
  std::string Nome;      ///< in the card's root
  std::string Sorgente;  ///< system path; "" where the project's row has no file any more
  RegolaMp3 Regola = RegolaMp3::Nessuna;
  std::string Cercato{};  ///< where there is no source: what the row asks for, as people are told
  Mancanza Perche = Mancanza::Nessuna;  ///< and why it can't be had
};

/// What a recording of the open project would put on a card.
struct ContenutoScheda {
  std::vector<FileDiScheda> File;  ///< in the order of a recording; each name once, as it ends up
  std::vector<std::string> NonLetti{};  ///< databases that can't be read to their end
};

/// Tells what a recording of the open project, as it stands on the disk, would put on a card. A row
/// whose file can't be had stops a recording; here it is in the list without a source, and those
/// after it follow. A second alias of one source, which a recording drops, is not in the list.
///
/// Nothing is changed but a database that an interrupted change left behind, which is put back as
/// any opening of it would do.
ContenutoScheda ContenutoDellaScheda(Contesto& contesto);

/// The files in the root of a card (system form, with its last bar) that count: no folders, none
/// hidden or system. Nothing where it can't be listed.
std::optional<std::vector<FileInfo>> FileSullaScheda(const FileSystem& files,
                                                     const std::string& scheda);

/// Whether nobody knows if a file of the card is the project's: where a database can't be read to
/// its end, that is each MP3 file.
bool ForseDelProgetto(const ContenutoScheda& contenuto, const FileInfo& file);

}  // namespace kvr5
