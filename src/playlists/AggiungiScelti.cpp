#include "playlists/AggiungiScelti.h"

#include "core/Aiuti.h"
#include "playlists/BraniPlaylist.h"

namespace kvr5 {
namespace {

/// Adds one file, or notes why it isn't taken; false when no further one can be.
bool AddOne(EditorPlaylist& editor, modMp3Infos& reader, const std::string& given,
            EsitoScelti& outcome) {
  const FileOfferto file = EsaminaFile(editor.C(), reader, given);
  if (!file.Perche.empty()) {
    outcome.NonPresi.push_back({file.Nome, file.Perche});
    return true;
  }
  const auto end = AggiungiFile(editor, EstraiCartella(file.Percorso), file.Nome);
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

}  // namespace kvr5
