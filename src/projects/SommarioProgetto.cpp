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
          false};
}

/// Reads the lists of the open project's databases.
class Reader {
 public:
  Reader(Contesto& context, SommarioProgetto& summary) : context_(context), summary_(summary) {}

  /// All rows of a database's list; `head` takes the number of its HEAD rows where it is given.
  std::vector<RigaProgetto> ReadList(const std::string& database, const char* query,
                                     std::size_t* head = nullptr) {
    std::vector<RigaProgetto> result;
    if (!FileExists(context_.Files, FileDelProgetto(context_, database))) return result;
    const Error error = ReadRows(database, query, result, head);
    if (error) summary_.Guasti.push_back(database + ": " + error.Description());
    return result;
  }

 private:
  Error ReadRows(const std::string& database, const char* query, std::vector<RigaProgetto>& result,
                 std::size_t* head) {
    Connection connection(context_.Files);
    Recordset rows;
    if (Error error = connection.Open(FileDelProgetto(context_, database))) return error;
    if (Error error = rows.Open(connection, query)) return error;
    Error walked = WalkRows(rows, [&] {
      result.push_back(ReadRow(database, rows));
      return true;
    });
    if (walked || head == nullptr) return walked;
    rows.Close();
    if (Error error = rows.Open(connection, "SELECT COUNT([ID]) AS Brani FROM [HEAD]")) {
      return error;
    }
    *head = static_cast<std::size_t>(rows.Number("Brani"));
    return {};
  }

  Contesto& context_;
  SommarioProgetto& summary_;
};

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
  const auto source = SizeOf(contesto.Files, AggiungiBarra(riga.FilePath) + riga.FileName);
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
  SommarioProgetto summary;
  Reader reader(contesto, summary);
  summary.Ingressi = reader.ReadList("inputcfg.mdb", "SELECT * FROM [List] ORDER BY [Pos] ASC");
  summary.Brani =
      reader.ReadList("playlist.mdb", "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC");
  summary.Spot =
      reader.ReadList("scheduler.mdb", "SELECT * FROM [LIST] ORDER BY [NPlaylist],[IDSChed],[Pos]",
                      &summary.Segmenti);
  return summary;
}

}  // namespace kvr5
