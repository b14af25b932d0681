#include "mp3/GiudizioFile.h"

#include "core/Aiuti.h"
#include "core/ElencoMp3.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "mp3/Accettazione.h"
#include "mp3/ParoleRifiuto.h"
#include "platform/FileOps.h"
#include "platform/Path.h"

namespace kvr5 {
namespace {

/// Why a file is refused; "" for one that is taken.
std::string WhyNot(Contesto& context, modMp3Infos& reader, const std::string& path) {
  if (!FileExists(context.Files, path)) {
    // What isn't UTF-8 in a name that is dropped arrives so.
    constexpr std::string_view kUnreadable = "\xEF\xBF\xBD";
    if (path.find(kUnreadable) != std::string::npos) {
      return ParoleDifetto(context, NameFault::NotUtf8);
    }
    return FolderExists(context.Files, path)
               ? TestoLinguaO(context, "0050101", "This is a folder: open it in the file pane.")
               : TestoLinguaO(context, "0130258", "This file isn't there any more.");
  }
  std::string refused = TestoLinguaO(context, "0050005", "The player can't play this file.");
  if (!MatchesWildcard(EstraiNomeFile(path), "*.mp3")) return refused;
  const InfoMp3 info = reader.LeggiInfoMp3(path);
  if (BuonoPerEditor(info)) return {};
  const std::string words =
      ParoleRifiutoDelFile(context, reader, false, MotivoPerEditor(info, reader.Ricerca()), info);
  return words.empty() ? refused : words;
}

/// The file's name where no path of the system can be had, and why there is none.
std::string NameOf(const std::string& given) {
  return given.substr(given.find_last_of('/') + 1);
}
NameFault FaultOfPath(const std::string& given) {
  const NameFault own = FaultOf(NameOf(given));
  return own == NameFault::None ? NameFault::Reserved : own;  // that of a folder on the way
}

}  // namespace

GiudizioFile GiudicaFile(Contesto& contesto, modMp3Infos& lettore, const std::string& percorso) {
  const InfoMp3 info = lettore.LeggiInfoMp3(percorso);
  const auto file = contesto.Files.Info(percorso);
  GiudizioFile judged{
      MostraInfoMp3(SchermoMp3::Editor, info, file ? file.Value().Size : 0, contesto.Luogo), {}};
  if (judged.Pannello.lblBadFileType) {
    judged.Perche = ParoleRifiutoDelFile(contesto, lettore, !file,
                                         MotivoPerEditor(info, lettore.Ricerca()), info);
  }
  return judged;
}

FileOfferto EsaminaFile(Contesto& contesto, modMp3Infos& lettore, const std::string& dato) {
  const auto path = contesto.Files.SystemPath(dato);
  if (!path) return {{}, NameOf(dato), ParoleDifetto(contesto, FaultOfPath(dato))};
  return {path.Value(), EstraiNomeFile(path.Value()), WhyNot(contesto, lettore, path.Value())};
}

std::string ParoleNonPresi(Contesto& contesto, const std::vector<FileNonPreso>& file) {
  if (file.empty()) return {};
  std::string words = ConValori(TestoLinguaO(contesto, "0050102", "Not taken: %1. %2"),
                                {SuUnaRiga(file.front().Nome), file.front().Motivo});
  if (const std::size_t others = file.size() - 1; others > 0) {
    words += " " + ConValori(TestoLinguaO(contesto, "0050103", "(+%1)"), {std::to_string(others)});
  }
  return words;
}

}  // namespace kvr5
