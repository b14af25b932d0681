#include "playlists/AggiungiScelti.h"

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "mp3/Accettazione.h"
#include "mp3/ParoleRifiuto.h"
#include "platform/FileOps.h"
#include "platform/Path.h"
#include "playerconfig/ElencoMp3.h"
#include "playlists/BraniPlaylist.h"

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

/// Adds one file, or notes why it isn't taken; false when no further one can be.
bool AddOne(EditorPlaylist& editor, modMp3Infos& reader, const std::string& given,
            EsitoScelti& outcome) {
  auto& context = editor.C();
  const auto path = context.Files.SystemPath(given);
  const std::string why =
      path ? WhyNot(context, reader, path.Value()) : ParoleDifetto(context, FaultOfPath(given));
  if (!why.empty()) {
    outcome.NonPresi.push_back({path ? EstraiNomeFile(path.Value()) : NameOf(given), why});
    return true;
  }
  const auto end = AggiungiFile(editor, EstraiCartella(path.Value()), EstraiNomeFile(path.Value()));
  if (end == EsitoAggiunta::Aggiunto) ++outcome.Aggiunti;
  return end != EsitoAggiunta::SenzaPlaylist && end != EsitoAggiunta::Piena;
}

}  // namespace

EsitoScelti AggiungiScelti(EditorPlaylist& editor, modMp3Infos& lettore,
                           const std::vector<std::string>& file) {
  EsitoScelti outcome;
  if (file.size() > 1) editor.Attesa(true);
  Transaction all(editor.ConnessionePlaylist());
  for (const std::string& each : file) {
    if (!AddOne(editor, lettore, each, outcome)) break;
    editor.C().Messaggi.LasciaCorrere();
  }
  if (!editor.Concludi(all)) {
    outcome.Aggiunti = 0;
    editor.AggiornaGrigliaPlaylist();
  }
  if (file.size() > 1) editor.Attesa(false);
  return outcome;
}

std::string ParoleEsito(Contesto& contesto, const EsitoScelti& esito) {
  if (esito.NonPresi.empty()) return {};
  const FileNonPreso& first = esito.NonPresi.front();
  std::string words = ConValori(TestoLinguaO(contesto, "0050102", "Not taken: %1. %2"),
                                {SuUnaRiga(first.Nome), first.Motivo});
  if (const std::size_t others = esito.NonPresi.size() - 1; others > 0) {
    words += " " + ConValori(TestoLinguaO(contesto, "0050103", "(+%1)"), {std::to_string(others)});
  }
  return words;
}

}  // namespace kvr5
