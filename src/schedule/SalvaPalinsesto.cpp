#include "schedule/SalvaPalinsesto.h"

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/Domanda.h"
#include "core/Lingua.h"
#include "core/ListaCopia.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "reports/ReportPalinsesto.h"
#include "schedule/AliasSpot.h"
#include "schedule/FilePalinsesto.h"
#include "schedule/Spot.h"

namespace kvr5 {
namespace {

constexpr const char* kAllSpots = "SELECT * FROM [LIST] ORDER BY [NPlaylist],[IDSChed],[Pos]";
constexpr const char* kExport =
    "SELECT [HEAD].[StartTime],[List].[NPlaylist],[List].[IDSched],[List].[Pos],[List].[FileName],"
    "[List].[FilePath],[List].[Alias] FROM [List] INNER JOIN [HEAD] ON [HEAD].[ID]=[LIST].[IDSched]"
    " ORDER BY [List].[NPlaylist],[List].[IDSched],[List].[Pos] ASC";

class Saving {
 public:
  Saving(EditorPalinsesto& editor, FinestraProgresso& progress)
      : editor_(editor), context_(editor.C()), progress_(progress), files_(editor.C()) {}

  void Run() {
    Prepare();
    AssignAliases();
    WriteFiles();
    Step("0140034");
    context_.Stato.RispostaSiNo = 0;
    if (rows_.RecordCount() > 0) Ask();
    if (context_.Stato.RispostaSiNo == 1) ListForCopy();
    rows_.Close();
    editor_.Copia()->Salva();
    progress_.Scarica();
    if (Rifila(copy_.ListaSorgenti()).empty()) return;
    CopiaFileShell(context_, copy_.ListaSorgenti(), copy_.ListaDestinazioni());
  }

 private:
  Connection& Base() { return editor_.ConnessionePalinsesto(); }
  std::string Project() const { return AggiungiBarra(context_.Stato.CartellaProgetto); }
  void Step(const char* key) {
    progress_.Operazione(TestoLingua(context_, key));
    progress_.Step(0, false);
  }
  void Open(const char* statement) {
    rows_.Close();
    context_.Errore.Record(rows_.Open(Base(), statement));
  }
  /// Visits the rows with the counter of the window.
  template <typename Visit>
  void Walk(Visit visit) {
    context_.Errore.Record(WalkRows(rows_, [&] {
      progress_.IncrementaContatoreFile();
      visit();
      return true;
    }));
  }
  void CountFrom(int total) {
    progress_.FileTotali = total;
    progress_.FileCorrente = 0;
  }

  /// The report, which is written before any spot is named, and the spots numbered.
  void Prepare() {
    context_.Messaggi.ImpostaPuntatore(Puntatore::Attesa);
    editor_.rsDettaglio().Close();
    editor_.rsSegmenti().Close();
    progress_.Carica();
    progress_.ValoreMassimo = 5;
    progress_.Operazione(TestoLingua(context_, "0140030"));
    progress_.Mostra();
    progress_.Step(0, false);
    ScriviReport(editor_);
    Step("0140031");
    RinumeraSpot(editor_, -1);
  }

  void AssignAliases() {
    Step("0140032");
    Open(kAllSpots);
    if (rows_.RecordCount() > 0) CountFrom(rows_.RecordCount());
    NumeroSegmento number;
    Transaction all(Base());
    Walk([&] {
      const std::string day = rows_.Text("NPlaylist");
      const int segment = number.Di(day, rows_.Text("IDSched"));
      context_.Errore.Record(rows_.Set("Alias", AliasDelloSpot(day, segment, rows_.Text("Pos"))));
      if (!context_.Errore.Record(rows_.Update())) rows_.CancelUpdate();
    });
    context_.Errore.Record(all.End());
    rows_.Close();
  }

  void WriteFiles() {
    Step("0140033");
    constexpr std::int16_t kOneSchedule = 2;
    const bool one = context_.Stato.PlayerMode == kOneSchedule;
    DeleteOldFiles(one);
    FilePalinsesto lines(files_, one);
    Open(kExport);
    Walk([&] {
      lines.Aggiungi({rows_.Text("StartTime"), rows_.Text("NPlaylist"), rows_.Text("IDSched"),
                      rows_.Text("Alias")});
    });
    lines.Fine();
    files_.Scrivi();
  }
  void DeleteOldFiles(bool one) {
    if (one) return DeleteOld(FilePalinsesto::kUno);
    for (int day = 1; day <= FilePalinsesto::kGiorni; ++day) {
      DeleteOld(FilePalinsesto::NomeDelGiorno(day));
    }
  }
  void DeleteOld(const std::string& name) {
    const std::string path = FileDelProgetto(context_, name);
    if (FileExists(context_.Files, path)) context_.Errore.Record(context_.Files.Delete(path));
  }

  /// Whether the MP3 files are to be copied into the project.
  void Ask() {
    progress_.Nascondi();
    const BoxSiNo question{
        TestoLingua(context_, "0140035"),
        TestoLingua(context_, "0140036") + "\r\n" + TestoLingua(context_, "0140037"),
        {},
        {}};
    ChiediSiNo(context_, question);
    progress_.Mostra();
  }

  /// The copies get the names that the files have on the card; `FileName` stays as it is, on
  /// purpose, so that the row still tells the file's own name.
  void ListForCopy() {
    CountFrom(rows_.RecordCount());
    Walk([this] {
      const std::string source = rows_.Text("Filepath") + rows_.Text("FileName");
      const std::string target = Project() + rows_.Text("Alias");
      if (source != target && !copy_.Contiene(source)) copy_.Aggiungi(source, target);
    });
    rows_.Close();
    context_.Errore.Record(Base().Execute("UPDATE [List] SET [FilePath]='" + Project() + "'"));
  }

  EditorPalinsesto& editor_;
  Contesto& context_;
  FinestraProgresso& progress_;
  ListeDiTesto files_;
  ListaCopia copy_;
  Recordset rows_;
};

}  // namespace

void ScriviReport(EditorPalinsesto& editor) {
  ScriviReportPalinsesto(editor.C(), editor.ConnessionePalinsesto());
}

void SalvaPalinsesto(EditorPalinsesto& editor, FinestraProgresso& progresso) {
  if (editor.Copia() == nullptr) return;  // closed
  const OwnError own(editor.C().Errore);
  Saving(editor, progresso).Run();
  editor.C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

}  // namespace kvr5
