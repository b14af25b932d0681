#include "projects/Subentro.h"

#include <array>
#include <string_view>

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/Path.h"
#include "platform/TempName.h"
#include "platform/db/Database.h"
#include "platform/db/TableRows.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

using jet::Wanted;
using jet::WantedColumn;

constexpr const char* kOriginals = "Originals";

constexpr std::array<WantedColumn, 7> kList{{{"ID", Wanted::Counter},
                                             {"FileName", Wanted::Text},
                                             {"FilePath", Wanted::Text},
                                             {"Alias", Wanted::Text},
                                             {"Pos", Wanted::Integer},
                                             {"NPlaylist", Wanted::Integer},
                                             {"IDSched", Wanted::Integer}}};
constexpr std::array<WantedColumn, 4> kHead{{{"ID", Wanted::Counter},
                                             {"NScheduler", Wanted::Integer},
                                             {"Descript", Wanted::Text},
                                             {"StartTime", Wanted::Time}}};

/// One taking over; each method is one of its steps.
class TakingOver {
 public:
  TakingOver(Contesto& context, bool dryRun)
      : context_(context), files_(context.Files), dryRun_(dryRun) {}

  EsitoSubentro Run();

 private:
  struct Work {
    std::string Path;      ///< of the original
    std::string New;       ///< of the new one, under a passing name
    std::string Backup{};  ///< of the original's copy
    bool BackupIsNew = false;
  };

  void Gather();
  bool Convert(const Work& work, DatabaseSubentrato& database);
  static bool CountRows(jet::JetFile& original, DatabaseSubentrato& database);
  bool CopyTables(jet::JetFile& original, const Work& work, DatabaseSubentrato& database);
  bool CopyTable(jet::JetFile& original, Connection& connection, const char* table,
                 std::span<const WantedColumn> columns, std::size_t& rows,
                 DatabaseSubentrato& database);
  bool Compare(jet::JetFile& original, Connection& connection, const char* table,
               std::span<const WantedColumn> columns, DatabaseSubentrato& database);
  Error Flush(const std::string& path);
  bool KeepOriginals();
  Error KeepOriginal(Work& work);
  bool PutInPlace();
  void Undo();

  Contesto& context_;
  FileSystem& files_;
  bool dryRun_;
  bool folderIsNew_ = false;
  std::vector<Work> works_;
  EsitoSubentro outcome_;
};

EsitoSubentro TakingOver::Run() {
  Gather();
  if (works_.empty()) return {};
  bool whole = true;
  for (std::size_t i = 0; i < works_.size(); ++i) {
    whole = Convert(works_[i], outcome_.Database[i]) && whole;
  }
  if (whole && !dryRun_) whole = KeepOriginals() && PutInPlace();
  Undo();
  outcome_.Fine = whole ? FineSubentro::Compiuto : FineSubentro::Fallito;
  return outcome_;
}

void TakingOver::Gather() {
  outcome_.Originali = AggiungiBarra(context_.Stato.CartellaProgetto) + kOriginals;
  for (const char* name : kDatabaseProgetto) {
    const std::string path = files_.BehindLink(FileDelProgetto(context_, name));
    if (!FileExists(files_, path) || !jet::HasSignature(files_, path)) continue;
    works_.push_back({.Path = path, .New = JoinPath(FolderOf(path), NewTempName())});
    outcome_.Database.push_back({.Nome = name});
  }
}

/// Writes the new database of one original; false with the reason.
bool TakingOver::Convert(const Work& work, DatabaseSubentrato& database) {
  jet::JetFile original;
  database.Guasto = original.Open(files_, work.Path);
  if (database.Guasto) return false;
  return dryRun_ ? CountRows(original, database) : CopyTables(original, work, database);
}

bool TakingOver::CountRows(jet::JetFile& original, DatabaseSubentrato& database) {
  const auto count = [&](std::size_t& rows) {
    return [&rows](const std::vector<DbValue>&) { return ++rows, true; };
  };
  database.Guasto = original.Read("List", kList, count(database.File));
  if (!database.Guasto) database.Guasto = original.Read("HEAD", kHead, count(database.Segmenti));
  return database.Riuscito();
}

bool TakingOver::CopyTables(jet::JetFile& original, const Work& work,
                            DatabaseSubentrato& database) {
  const std::string empty = AggiungiBarra(context_.CartellaProgramma) + "source.mdb";
  Connection connection(files_);
  database.Causa = CopyOneFile(files_, empty, work.New);
  if (!database.Causa) database.Causa = connection.Open(work.New);
  if (database.Causa) return false;
  connection.BuildNew();
  {
    Transaction all(connection);
    if (!CopyTable(original, connection, "List", kList, database.File, database)) return false;
    if (!CopyTable(original, connection, "HEAD", kHead, database.Segmenti, database)) return false;
    database.Causa = all.End();
  }
  if (database.Causa || !Compare(original, connection, "List", kList, database) ||
      !Compare(original, connection, "HEAD", kHead, database)) {
    return false;
  }
  connection.Close();
  database.Causa = Flush(work.New);
  return !database.Causa;
}

std::vector<std::string> NamesOf(std::span<const WantedColumn> columns) {
  std::vector<std::string> names;
  for (const WantedColumn& column : columns) names.emplace_back(column.Name);
  return names;
}

bool TakingOver::CopyTable(jet::JetFile& original, Connection& connection, const char* table,
                           std::span<const WantedColumn> columns, std::size_t& rows,
                           DatabaseSubentrato& database) {
  TableRows target(connection, table, NamesOf(columns));
  database.Guasto = original.Read(table, columns, [&](const std::vector<DbValue>& row) {
    database.Causa = target.Add(row);
    if (!database.Causa) ++rows;
    return !database.Causa;
  });
  return database.Riuscito();
}

/// Whether the new table is what the original's is, row by row.
bool TakingOver::Compare(jet::JetFile& original, Connection& connection, const char* table,
                         std::span<const WantedColumn> columns, DatabaseSubentrato& database) {
  TableRows target(connection, table, NamesOf(columns));
  const ReadScope one(*connection.Base());
  std::int64_t rows = 0;
  bool same = true;
  database.Guasto = original.Read(table, columns, [&](const std::vector<DbValue>& row) {
    ++rows;
    same = target.Holds(row);
    return same;
  });
  if (same && !database.Guasto) same = target.Count() == rows;
  if (!same) database.Causa = Error(errors::DeviceIo);
  return database.Riuscito();
}

Error TakingOver::Flush(const std::string& path) {
  auto file = files_.Open(path, OpenMode::Append);
  if (!file) return file.Err();
  if (Error error = file.Value()->Flush()) return error;
  return file.Value()->Close();
}

bool TakingOver::KeepOriginals() {
  if (!FolderExists(files_, outcome_.Originali)) {
    outcome_.Database.front().Causa = files_.CreateFolder(outcome_.Originali);
    if (outcome_.Database.front().Causa) return false;
    folderIsNew_ = true;
  }
  for (std::size_t i = 0; i < works_.size(); ++i) {
    outcome_.Database[i].Causa = KeepOriginal(works_[i]);
    if (outcome_.Database[i].Causa) return false;
  }
  return true;
}

/// Copies an original under its own name, or a numbered one where an earlier original has that. One
/// that an interrupted taking over has copied already is not copied again.
Error TakingOver::KeepOriginal(Work& work) {
  const std::string name(LastName(work.Path));
  for (int number = 1;; ++number) {
    const std::string prefix = number == 1 ? "" : "(" + std::to_string(number) + ") ";
    work.Backup = AggiungiBarra(outcome_.Originali) + prefix + name;
    if (!files_.Info(work.Backup)) break;
    if (HoldTheSame(files_, work.Path, work.Backup)) return Flush(work.Backup);
  }
  work.BackupIsNew = true;
  if (Error error = CopyOneFile(files_, work.Path, work.Backup)) return error;
  return Flush(work.Backup);
}

/// From here on each step leaves the project whole; what a failure leaves undone the next opening
/// does.
bool TakingOver::PutInPlace() {
  for (std::size_t i = 0; i < works_.size(); ++i) {
    outcome_.Database[i].Causa = files_.Replace(works_[i].New, works_[i].Path);
    if (outcome_.Database[i].Causa) return false;
    works_[i].New.clear();
    outcome_.Cambiato = true;
  }
  Ignora(files_.SyncVolume(context_.Stato.CartellaProgetto));
  return true;
}

/// Takes away what a failure has left lying about.
void TakingOver::Undo() {
  bool kept = outcome_.Cambiato;
  for (const Work& work : works_) {
    if (!work.New.empty()) Ignora(files_.Delete(work.New));
    const bool away = !work.New.empty() && work.BackupIsNew;
    if (away) Ignora(files_.Delete(work.Backup));
    kept = kept || (!work.Backup.empty() && !away);
  }
  if (folderIsNew_ && !kept) Ignora(files_.DeleteFolder(outcome_.Originali));
}

}  // namespace

EsitoSubentro SubentraNeiDatabase(Contesto& contesto, bool prova) {
  return TakingOver(contesto, prova).Run();
}

}  // namespace kvr5
