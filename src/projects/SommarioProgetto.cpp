#include "projects/SommarioProgetto.h"

#include <array>
#include <unordered_set>

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

std::optional<std::uint64_t> SizeOf(const FileSystem& files, const std::string& path) {
  if (!FileExists(files, path)) return {};
  const auto info = files.Info(path);
  return info ? info.Value().Size : 0;  // a pattern that matches is there, and is no one file
}

RigaProgetto ReadRow(const std::string& database, const Recordset& rows) {
  return {database,
          rows.Number("NPlaylist"),
          rows.Number("Pos"),
          rows.Text("Alias"),
          rows.Text("FilePath"),
          rows.Text("FileName"),
          rows.Number("ID"),
          false};
}

struct List {
  const char* Database;
  const char* Query;
  std::vector<RigaProgetto> SommarioProgetto::*Rows;
};

constexpr std::array kLists{
    List{"inputcfg.mdb", "SELECT * FROM [List] ORDER BY [Pos] ASC", &SommarioProgetto::Ingressi},
    List{"playlist.mdb", "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC",
         &SommarioProgetto::Brani},
    List{"scheduler.mdb", "SELECT * FROM [LIST] ORDER BY [NPlaylist],[IDSChed],[Pos]",
         &SommarioProgetto::Spot}};

}  // namespace

std::vector<std::string> SommarioProgetto::FileMancanti() const {
  std::vector<std::string> paths;
  std::unordered_set<std::string> seen;
  for (const auto* list : {&Ingressi, &Brani, &Spot}) {
    for (const auto& row : *list) {
      const std::string path = AggiungiBarra(row.FilePath) + row.FileName;
      if (row.Mancante && seen.insert(FoldCase(path)).second) paths.push_back(path);
    }
  }
  return paths;
}

std::optional<std::uint64_t> GrandezzaFile(const Contesto& contesto, const RigaProgetto& riga) {
  // Joined as a recording joins them: a folder without its closing bar leads nowhere.
  const auto source = SizeOf(contesto.Files, riga.FilePath + riga.FileName);
  if (source || riga.Alias.empty()) return source;
  return SizeOf(contesto.Files, FileDelProgetto(contesto, riga.Alias));
}

SommarioProgetto LeggiSommario(Contesto& contesto) {
  SommarioProgetto summary = LeggiRigheProgetto(contesto);
  for (auto* list : {&summary.Ingressi, &summary.Brani, &summary.Spot}) {
    for (auto& row : *list) row.Mancante = !GrandezzaFile(contesto, row);
  }
  return summary;
}

SommarioProgetto LeggiRigheProgetto(Contesto& contesto) {
  LetturaRighe reading(contesto);
  while (reading.Passo(SIZE_MAX)) {
  }
  return reading.Prendi();
}

bool LetturaRighe::Passo(std::size_t righe) {
  while (lista_ < kLists.size() && righe > 0) {
    const Error error = Leggi(righe);
    if (error)
      sommario_.Guasti.push_back(std::string(kLists[lista_].Database) + ": " + error.Description());
    if (!error && righe_.IsOpen()) continue;  // that many rows for now
    righe_.Close();
    connessione_.Close();
    ++lista_;
  }
  return lista_ < kLists.size();
}

Error LetturaRighe::Leggi(std::size_t& righe) {
  const List& list = kLists[lista_];
  if (!righe_.IsOpen()) {
    const std::string path = FileDelProgetto(contesto_, list.Database);
    if (!FileExists(contesto_.Files, path)) return {};
    if (Error error = connessione_.Open(path)) return error;
    if (Error error = righe_.Open(connessione_, list.Query)) return error;
  }
  for (; righe > 0 && !righe_.Eof(); --righe) {
    (sommario_.*list.Rows).push_back(ReadRow(list.Database, righe_));
    if (Error error = righe_.MoveNext()) return error;
  }
  if (!righe_.Eof()) return {};
  righe_.Close();
  return list.Rows == &SommarioProgetto::Spot ? ContaSegmenti() : Error();
}

Error LetturaRighe::ContaSegmenti() {
  if (Error error = righe_.Open(connessione_, "SELECT COUNT([ID]) AS Brani FROM [HEAD]")) {
    return error;
  }
  sommario_.Segmenti = static_cast<std::size_t>(righe_.Number("Brani"));
  righe_.Close();
  return {};
}

}  // namespace kvr5
