#include "projects/ConversioneJet.h"

#include <array>
#include <vector>

#include "platform/FileOps.h"
#include "platform/db/Database.h"
#include "platform/db/TableRows.h"

namespace kvr5 {
namespace {

using jet::Wanted;
using jet::WantedColumn;

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

std::vector<std::string> NamesOf(std::span<const WantedColumn> columns) {
  std::vector<std::string> names;
  for (const WantedColumn& column : columns) names.emplace_back(column.Name);
  return names;
}

Error Flush(FileSystem& files, const std::string& path) {
  auto file = files.Open(path, OpenMode::Append);
  if (!file) return file.Err();
  if (Error error = file.Value()->Flush()) return error;
  return file.Value()->Close();
}

}  // namespace

jet::Trouble ConversioneJet::Leggi(std::size_t& file, std::size_t& segmenti) {
  std::size_t files = 0;
  std::size_t segments = 0;
  const auto counted = [this](std::size_t& rows) {
    return [this, &rows](const std::vector<DbValue>&) { return ++rows, GoOn(); };
  };
  jet::Trouble trouble = file_.Open(files_, original_);
  if (!trouble) trouble = file_.Read("List", kList, counted(files));
  if (!trouble) trouble = file_.Read("HEAD", kHead, counted(segments));
  if (trouble) return trouble;
  file = files;
  segmenti = segments;
  return {};
}

Error ConversioneJet::Scrivi(const std::string& vuoto, const std::string& nuovo) {
  Connection connection(files_);
  Error error = CopyOneFile(files_, vuoto, nuovo);
  if (!error) error = connection.Open(nuovo);
  if (error) return error;
  connection.BuildNew();
  {
    Transaction all(connection);
    error = Copy(connection, "List", kList);
    if (!error) error = Copy(connection, "HEAD", kHead);
    if (!error) error = all.End();
  }
  if (!error) error = Compare(connection, "List", kList);
  if (!error) error = Compare(connection, "HEAD", kHead);
  connection.Close();
  return error ? error : Flush(files_, nuovo);
}

/// A file that was read well a moment ago reads so again, or the disk doesn't keep what it holds.
Error ConversioneJet::Outcome(const jet::Trouble& trouble) const {
  if (cancelled_) return Error(errors::Cancelled);
  return trouble ? Error(errors::DeviceIo) : Error();
}

Error ConversioneJet::Copy(Connection& connection, const char* table, Columns columns) {
  TableRows target(connection, table, NamesOf(columns));
  Error error;
  const jet::Trouble trouble = file_.Read(table, columns, [&](const std::vector<DbValue>& row) {
    error = target.Add(row);
    return !error && GoOn();
  });
  return error ? error : Outcome(trouble);
}

Error ConversioneJet::Compare(Connection& connection, const char* table, Columns columns) {
  TableRows target(connection, table, NamesOf(columns));
  const ReadScope one(*connection.Base());
  std::int64_t rows = 0;
  bool same = true;
  const jet::Trouble trouble = file_.Read(table, columns, [&](const std::vector<DbValue>& row) {
    ++rows;
    same = target.Holds(row);
    return same && GoOn();
  });
  if (Error error = Outcome(trouble)) return error;
  return same && target.Count() == rows ? Error() : Error(errors::DeviceIo);
}

}  // namespace kvr5
