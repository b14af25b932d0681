#include "playlists/BraniPlaylist.h"

#include "core/Aiuti.h"
#include "core/Domanda.h"
#include "core/Lingua.h"
#include "core/Registro.h"
#include "mp3/Accettazione.h"

namespace kvr5 {
namespace {

/// The row of a file, at the end of the current playlist.
void AddRow(EditorPlaylist& editor, const std::string& folder, const std::string& name) {
  auto& rows = editor.rsList();
  const auto known = editor.PosizioneNota();
  const std::int64_t pos = known ? *known : ProssimaPosizione(editor);
  editor.Record(rows.AddNew());
  editor.Record(rows.Set("FileName", name));
  editor.Record(rows.Set("FilePath", folder));
  editor.Record(rows.Set("Pos", pos));
  editor.Record(rows.Set("NPlaylist", std::int64_t{editor.PlaylistCorrente()}));
  if (!editor.Record(rows.Update())) {
    rows.CancelUpdate();  // the next move would try once more
    return editor.DimenticaPosizione();
  }
  editor.Modificato();
  editor.AnnotaPosizione(static_cast<std::int32_t>(pos) + 1);
}

/// A notice of frmSiNo with its only button.
void Notice(Contesto& context, const char* caption, const char* message) {
  ChiediSiNo(context, {TestoLingua(context, caption),
                       TestoLingua(context, message),
                       TestoLingua(context, "0050041"),
                       {}});
}

}  // namespace

std::int32_t ProssimaPosizione(EditorPlaylist& editor) {
  Recordset rows;
  const bool counted =
      editor.Record(rows.Open(editor.ConnessionePlaylist(),
                              "SELECT COUNT(Pos) as UltimaPos FROM [List] WHERE [NPlaylist]=" +
                                  std::to_string(editor.PlaylistCorrente())));
  return counted ? static_cast<std::int32_t>(rows.Number("UltimaPos")) + 1 : 1;
}

EsitoAggiunta AggiungiFile(EditorPlaylist& editor, const std::string& cartella,
                           const std::string& nome) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  if (editor.SelettoreVuoto()) {
    Notice(context, "0050039", "0050040");
    return EsitoAggiunta::SenzaPlaylist;
  }
  if (editor.Piena()) {
    Notice(context, "0050026", "0050027");
    return EsitoAggiunta::Piena;
  }
  AddRow(editor, AggiungiBarra(cartella), nome);
  editor.Record(editor.rsList().Requery());
  editor.Record(editor.rsList().MoveLast());
  editor.MostraGriglia();
  if (!context.Errore) return EsitoAggiunta::Aggiunto;
  const Error& error = context.Errore.Last();
  ScriviLog(context, "frmPlaylistEditor/Routine cmdAggiungiFile: err n°" +
                         std::to_string(error.Number()) + ":" + error.Description());
  ScriviLog(context, "File: " + nome);
  return EsitoAggiunta::NonScritto;
}

void AggiungiSeBuono(EditorPlaylist& editor, modMp3Infos& lettore, const FileDaAggiungere& file) {
  const InfoMp3 info = lettore.LeggiInfoMp3(AggiungiBarra(file.Cartella) + file.FileName);
  if (!BuonoInMassa(info, lettore.Errori())) return;
  AddRow(editor, file.FilePath, file.FileName);
  auto& rows = editor.rsList();
  if (rows.AbsolutePosition() != rows.RecordCount()) editor.Record(rows.MoveLast());
}

bool AggiungiTuttiFiles(EditorPlaylist& editor, modMp3Infos& lettore, const std::string& cartella,
                        const std::vector<std::string>& nomi) {
  if (nomi.empty()) return true;
  const OwnError own(editor.C().Errore);
  const std::string folder = AggiungiBarra(cartella);
  bool full = false;
  editor.Attesa(true);
  {
    Transaction all(editor.ConnessionePlaylist());
    for (const std::string& each : nomi) {
      full = editor.Piena();
      if (full) break;
      AggiungiSeBuono(editor, lettore, {folder, folder, each});
      editor.C().Messaggi.LasciaCorrere();
    }
    editor.Concludi(all);
  }
  FineInMassa(editor, full);
  return !full;
}

void FineInMassa(EditorPlaylist& editor, bool piena) {
  if (piena) DiciPienaInMassa(editor);
  editor.AggiornaGrigliaPlaylist();
  if (!piena) return;
  editor.Record(editor.rsList().MoveLast());
  editor.MostraGriglia();
}

void DiciPienaInMassa(EditorPlaylist& editor) {
  auto& context = editor.C();
  context.Finestre.MostraMessaggio({TestoLingua(context, "0050027"),
                                    TestoLingua(context, "0050026"), Icona::Informazione,
                                    Pulsanti::Ok, Risposta::Ok});
}

}  // namespace kvr5
