#include "projects/SommarioProgetto.h"

#include <unordered_set>

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

bool IsMissing(const Contesto& context, const RigaProgetto& row) {
  if (FileExists(context.Files, AggiungiBarra(row.FilePath) + row.FileName)) return false;
  return row.Alias.empty() || !FileExists(context.Files, FileDelProgetto(context, row.Alias));
}

RigaProgetto ReadRow(const Contesto& context, const std::string& database, const Recordset& rows) {
  RigaProgetto row{database,
                   rows.Number("NPlaylist"),
                   rows.Number("Pos"),
                   rows.Text("Alias"),
                   rows.Text("FilePath"),
                   rows.Text("FileName"),
                   false};
  row.Mancante = IsMissing(context, row);
  return row;
}

/// All rows of a database's list; `head` takes the number of its HEAD rows where it is given.
std::vector<RigaProgetto> ReadList(Contesto& context, const std::string& database,
                                   const char* query, std::size_t* head) {
  std::vector<RigaProgetto> result;
  Connection connection(context.Files);
  Recordset rows;
  if (connection.Open(FileDelProgetto(context, database))) return result;
  Ignora(rows.Open(connection, query));
  Ignora(WalkRows(rows, [&] {
    result.push_back(ReadRow(context, database, rows));
    return true;
  }));
  rows.Close();
  if (head != nullptr) {
    Ignora(rows.Open(connection, "SELECT COUNT([ID]) AS Brani FROM [HEAD]"));
    *head = static_cast<std::size_t>(rows.Number("Brani"));
  }
  return result;
}

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

SommarioProgetto LeggiSommario(Contesto& contesto) {
  SommarioProgetto summary;
  summary.Ingressi =
      ReadList(contesto, "inputcfg.mdb", "SELECT * FROM [List] ORDER BY [Pos] ASC", nullptr);
  summary.Brani = ReadList(contesto, "playlist.mdb",
                           "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC", nullptr);
  summary.Spot =
      ReadList(contesto, "scheduler.mdb",
               "SELECT * FROM [LIST] ORDER BY [NPlaylist],[IDSChed],[Pos]", &summary.Segmenti);
  return summary;
}

}  // namespace kvr5
