#include "playlists/SalvaPlaylist.h"

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/Domanda.h"
#include "core/Lingua.h"
#include "core/ListaCopia.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "playlists/AliasPlaylist.h"
#include "playlists/BraniPlaylist.h"
#include "projects/CartellaProgetto.h"
#include "projects/ListeDiTesto.h"
#include "reports/ReportPlaylist.h"

namespace kvr5 {
namespace {

constexpr const char* kAllTracks = "SELECT * FROM [List] ORDER BY [NPlaylist] ASC,[Pos] ASC";
constexpr const char* kAllForLists = "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC";

class Saving {
 public:
  Saving(EditorPlaylist& editor, FinestraProgresso& progress)
      : editor_(editor), context_(editor.C()), progress_(progress), lists_(editor.C()) {}

  void Run() {
    Prepare();
    AssegnaAlias(editor_);
    progress_.Scarica();
    if (!Multiple()) WriteTheOneSet();
    Open(Named() ? kBraniConNome : kAllForLists);
    if (Multiple()) WriteNumberedLists();
    BringFilesIn();
    Commit();
  }

 private:
  bool Multiple() const { return editor_.Disposizione().PlaylistMultiple; }
  bool Named() const { return context_.Stato.PlayerMode == 9; }
  bool Yes() const { return context_.Stato.RispostaSiNo == 1; }
  std::string Project() const { return AggiungiBarra(context_.Stato.CartellaProgetto); }

  void Open(const char* statement) {
    editor_.rsList().Close();
    context_.Errore.Record(editor_.rsList().Open(editor_.ConnessionePlaylist(), statement));
  }
  void Step(const char* key) {
    progress_.Operazione(TestoLingua(context_, key));
    progress_.Step(0, false);
  }

  /// The tracks numbered and all in rsList, and the report written.
  void Prepare() {
    progress_.Operazione(TestoLingua(context_, "0070011"));
    progress_.ValoreMassimo = 4;
    progress_.Mostra();
    progress_.Step(0, false);
    editor_.Attesa(true);
    RiordinaPosizione(editor_, [this] { context_.Messaggi.LasciaCorrere(); });
    Open(kAllTracks);
    Step("0070003");
    ScriviReport(editor_);
    editor_.Attesa(true);
    Step("0070012");
  }

  /// Whether the MP3 files are to be copied into the project.
  void Ask() {
    const BoxSiNo question{
        TestoLingua(context_, "0050019"),
        TestoLingua(context_, "0050020") + "\r\n" + TestoLingua(context_, "0050023"),
        {},
        {}};
    ChiediSiNo(context_, question);
  }

  void WriteTheOneSet() {
    for (const char* each : {"PLAYLIST.TXT", "PLAYLIST.M3U", "PLAYLIST_LOCAL_.M3U"}) {
      const std::string path = FileDelProgetto(context_, each);
      if (FileExists(context_.Files, path)) context_.Errore.Record(context_.Files.Delete(path));
      lists_.Apri(each);
    }
    const int count = editor_.Quanti();
    if (count > 0) Ask();
    progress_.Operazione(TestoLingua(context_, "0070002"));
    progress_.ValoreMassimo = count;
    progress_.FileTotali = count;
    progress_.Mostra();
    Walk([this] { WriteTrackOfTheSet(); });
    if (Yes()) progress_.Scarica();
    lists_.Scrivi();
  }
  void WriteTrackOfTheSet() {
    const auto& rows = editor_.rsList();
    const std::string alias = SenzaMp3(rows.Text("Alias"), true);
    lists_.Aggiungi("PLAYLIST.TXT", alias);
    lists_.Aggiungi("PLAYLIST.M3U", alias);
    if (!Yes()) {
      lists_.AggiungiPercorso("PLAYLIST_LOCAL_.M3U", Source());
      return;
    }
    lists_.AggiungiPercorso("PLAYLIST_LOCAL_.M3U", rows.Text("FileName"));
    progress_.Step(rows.AbsolutePosition(), false);
    if (!context_.Stato.AnnullatoDaUtente) ListForCopy();
  }

  void WriteNumberedLists() {
    for (const FileInfo& each : ListMatching(context_.Files, Project() + "*.m3u")) {
      context_.Errore.Record(context_.Files.Delete(Project() + each.Name));
    }
    if (editor_.Quanti() > 0) Ask();
    Walk([this] {
      WriteTrackOfItsList();
      if (Yes()) ListForCopy();
    });
    lists_.Scrivi();
  }
  void WriteTrackOfItsList() {
    const auto& rows = editor_.rsList();
    if (Named()) {
      lists_.Aggiungi(rows.Text("Descript") + ".m3u", SenzaMp3(rows.Text("FileName"), true));
      return;
    }
    const std::string number = rows.Text("NPlaylist");
    lists_.Aggiungi(number + ".m3u", SenzaMp3(rows.Text("Alias"), false));
    lists_.AggiungiPercorso(number + "_LOCAL_.m3u", Source());
  }

  template <typename Visit>
  void Walk(Visit visit) {
    context_.Errore.Record(WalkRows(editor_.rsList(), [&] {
      visit();
      context_.Messaggi.LasciaCorrere();
      return true;
    }));
  }
  /// The current track's file.
  std::string Source() const {
    const auto& rows = editor_.rsList();
    return AggiungiBarra(rows.Text("FilePath")) + rows.Text("FileName");
  }
  void ListForCopy() {
    const auto& rows = editor_.rsList();
    const std::string source = rows.Text("FilePath") + rows.Text("FileName");
    const std::string target = Project() + rows.Text("FileName");
    if (source != target && !copy_.Contiene(source)) copy_.Aggiungi(source, target);
  }

  void BringFilesIn() {
    if (!Rifila(copy_.ListaSorgenti()).empty()) {
      CopiaFileShell(context_, copy_.ListaSorgenti(), copy_.ListaDestinazioni());
    }
    if (!Yes()) return;
    context_.Errore.Record(
        editor_.ConnessionePlaylist().Execute("UPDATE [List] SET [FilePath]='" + Project() + "'"));
  }
  void Commit() {
    editor_.rsList().Close();
    editor_.Copia()->Salva();
    progress_.Scarica();
  }

  EditorPlaylist& editor_;
  Contesto& context_;
  FinestraProgresso& progress_;
  ListeDiTesto lists_;
  ListaCopia copy_;
};

}  // namespace

bool ScriviReport(EditorPlaylist& editor) {
  std::optional<std::int32_t> one;
  if (!editor.Disposizione().PlaylistMultiple) one = editor.PlaylistCorrente();
  return ScriviReportPlaylist(editor.C(), editor.ConnessionePlaylist(), one);
}

void SalvaPlaylist(EditorPlaylist& editor, FinestraProgresso& progresso) {
  if (editor.Copia() == nullptr) return;  // closed
  const OwnError own(editor.C().Errore);
  Saving(editor, progresso).Run();
}

}  // namespace kvr5
