#include "platform/db/Database.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <span>
#include <string_view>

#include "platform/db/Collation.h"
#include "platform/db/SuperJournal.h"
#include "platform/jet/Pages.h"

namespace kvr5 {
namespace {

/// How long a lock of another program is waited for, in milliseconds.
constexpr int kBusyTimeout = 300;
/// The same at the end of a run of changes, where so much more would be lost.
constexpr int kRunTimeout = 1500;
/// From this many look-ups on the index pays off.
constexpr int kLookUpsForIndex = 8;

struct TableColumns {
  const char* table;
  std::array<const char*, 7> columns;  ///< the first is the key
};

constexpr std::array kTables{
    TableColumns{"List", {"ID", "FileName", "FilePath", "Alias", "Pos", "NPlaylist", "IDSched"}},
    TableColumns{"HEAD", {"ID", "NScheduler", "Descript", "StartTime"}},
};

/// Whether a file is the Jet engine's. SQLite would refuse it, but first play a journal that a
/// database of ours has left beside it into it.
bool IsOfJet(const std::filesystem::path& path) {
  std::array<char, jet::kSignatureSize> head{};
  std::ifstream file(path, std::ios::binary);
  file.read(head.data(), head.size());
  std::array<unsigned char, jet::kSignatureSize> bytes{};
  std::ranges::copy(head, bytes.begin());
  return jet::HasSignature(std::span(bytes).first(static_cast<std::size_t>(file.gcount())));
}

/// A row changes nothing of the file beyond itself: no triggers, views or foreign functions.
bool Harden(sqlite3* handle) {
  struct Switch {
    int option;
    int value;
  };
  constexpr std::array kSwitches{
      Switch{SQLITE_DBCONFIG_DEFENSIVE, 1},      Switch{SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
      Switch{SQLITE_DBCONFIG_DQS_DML, 0},        Switch{SQLITE_DBCONFIG_DQS_DDL, 0},
      Switch{SQLITE_DBCONFIG_ENABLE_TRIGGER, 0}, Switch{SQLITE_DBCONFIG_ENABLE_VIEW, 0},
  };
  for (const Switch& entry : kSwitches) {
    if (sqlite3_db_config(handle, entry.option, entry.value, nullptr) != SQLITE_OK) return false;
  }
  sqlite3_limit(handle, SQLITE_LIMIT_ATTACHED, 0);
  return true;
}

}  // namespace

Result<std::shared_ptr<Database>> Database::Open(const std::string& hostPath) {
  std::error_code ignored;
  const std::filesystem::path path(std::u8string(hostPath.begin(), hostPath.end()));
  if (!std::filesystem::is_regular_file(path, ignored)) return Error(errors::CannotOpen);
  // The journal lies beside the file itself, not beside a link to it.
  const std::filesystem::path real = std::filesystem::canonical(path, ignored);
  if (ignored || JournalNamesAFile(real) || IsOfJet(real)) return Error(errors::CannotOpen);
  const std::shared_ptr<Database> database(new Database());
  const int outcome = sqlite3_open_v2(hostPath.c_str(), &database->handle_,
                                      SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  if (outcome != SQLITE_OK || !database->Configure() || !database->HasTables() ||
      !database->IsWhole(path)) {
    return database->Failure();
  }
  return database;
}

Database::~Database() {
  Close();
}

bool Database::Configure() {
  sqlite3_busy_timeout(handle_, kBusyTimeout);
  // What no row of ours comes near; a damaged or hostile one is refused before it fills the memory.
  constexpr int kLongestRow = 16 << 20;
  sqlite3_limit(handle_, SQLITE_LIMIT_LENGTH, kLongestRow);
  return Harden(handle_) && RegisterCollation(handle_) && LeavesWalMode() &&
         Step("PRAGMA synchronous=FULL") && Step("PRAGMA mmap_size=0") &&
         Step("PRAGMA temp_store=MEMORY") && Step("PRAGMA cell_size_check=ON");
}

/// The first value of the layer's own query; Null when it fails.
DbValue Database::Value(const char* sql) {
  DbValue value;
  const Result<StatementPtr> statement = Prepare(sql);
  if (statement && sqlite3_step(statement.Value().get()) == SQLITE_ROW) {
    ReadValue(statement.Value().get(), 0, value);
  }
  return value;
}

/// True when the file has a rollback journal: always, unless another program has put it into WAL
/// mode and goes on using it.
bool Database::LeavesWalMode() {
  return Value("PRAGMA journal_mode=DELETE") == DbValue("delete");
}

bool Database::HasTables() const {
  for (const TableColumns& table : kTables) {
    for (const char* const column : table.columns) {
      if (column == nullptr) break;
      int isKey = 0;
      const int found = sqlite3_table_column_metadata(handle_, "main", table.table, column, nullptr,
                                                      nullptr, nullptr, &isKey, nullptr);
      if (found != SQLITE_OK || (column == table.columns.front() && isKey == 0)) return false;
    }
  }
  return true;
}

/// True when no part of the last page is missing; SQLite itself sees to the pages before.
bool Database::IsWhole(const std::filesystem::path& path) {
  const ReadScope scope(*this);
  const DbValue pages = Value("PRAGMA page_count");
  const DbValue pageSize = Value("PRAGMA page_size");
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error || IsNull(pages) || IsNull(pageSize)) return false;
  return size >= static_cast<std::uintmax_t>(std::get<std::int64_t>(pages)) *
                     static_cast<std::uintmax_t>(std::get<std::int64_t>(pageSize));
}

void Database::Close() {
  if (!IsOpen()) return;
  if (InTransaction()) Ignora(CommitRun());
  prepared_.clear();
  while (sqlite3_stmt* const left = sqlite3_next_stmt(handle_, nullptr)) sqlite3_finalize(left);
  sqlite3_close(handle_);
  handle_ = nullptr;
}

Result<StatementPtr> Database::Prepare(const std::string& sql) {
  sqlite3_stmt* raw = nullptr;
  const int outcome = sqlite3_prepare_v2(handle_, sql.c_str(), -1, &raw, nullptr);
  StatementPtr statement(raw);
  if (outcome == SQLITE_ERROR) return Error(errors::BadStatement, sqlite3_errmsg(handle_));
  if (outcome != SQLITE_OK) return Failure();
  return statement;
}

sqlite3_stmt* Database::Prepared(const std::string& sql) {
  if (const auto known = prepared_.find(sql); known != prepared_.end()) return known->second;
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v3(handle_, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  if (statement != nullptr) prepared_.emplace(sql, statement);
  return statement;
}

/// Runs one of the layer's own statements to its end.
bool Database::Step(const char* sql) {
  sqlite3_stmt* const statement = Prepared(sql);
  if (statement == nullptr) return false;
  int outcome = SQLITE_ROW;
  while (outcome == SQLITE_ROW) outcome = sqlite3_step(statement);
  return sqlite3_reset(statement) == SQLITE_OK;
}

Error Database::Change(sqlite3_stmt* statement) {
  const bool own = !InTransaction();
  if (own && !Begin()) return Failure();
  const bool done = sqlite3_step(statement) == SQLITE_DONE;
  Error outcome = done ? Error() : Failure();
  sqlite3_reset(statement);
  if (!own) {
    // Some failures (a full disk) undo the whole transaction.
    if (!InTransaction()) ++undone_;
    return outcome;
  }
  if (done) return Commit();
  Step("ROLLBACK");
  ++undone_;
  return outcome;
}

Error Database::Execute(const JetStatement& statement) {
  if (statement.ByFileName && InTransaction() && ++fileNameLookUps_ == kLookUpsForIndex) {
    IndexFileNames();
  }
  const Result<StatementPtr> prepared = Prepare(statement.Sql);
  return prepared ? Change(prepared.Value().get()) : prepared.Err();
}

bool Database::InTransaction() const {
  return IsOpen() && sqlite3_get_autocommit(handle_) == 0;
}

bool Database::Begin() {
  fileNameLookUps_ = 0;
  fileNameIndex_ = false;
  return Step("BEGIN IMMEDIATE");
}

Error Database::Commit() {
  DropFileNameIndex();
  if (Step("COMMIT")) return {};
  Error outcome = Failure();
  // A transaction that can't be ended would keep the file locked.
  if (InTransaction()) Step("ROLLBACK");
  ++undone_;
  return outcome;
}

Error Database::CommitRun() {
  sqlite3_busy_timeout(handle_, kRunTimeout);
  Error outcome = Commit();
  sqlite3_busy_timeout(handle_, kBusyTimeout);
  return outcome;
}

/// The index of a run that looks rows up by their file, one after another.
///
/// It can't be part of the file: it would need the collation of whoever adds a row, and would be
/// wrong where that differs from ours. So it lives inside of one transaction only.
void Database::IndexFileNames() {
  fileNameIndex_ = Step("CREATE INDEX KVR5_Run ON List (FileName, FilePath)");
}

void Database::DropFileNameIndex() {
  if (fileNameIndex_) Step("DROP INDEX IF EXISTS KVR5_Run");
  fileNameIndex_ = false;
}

std::uint64_t Database::Changes() const {
  return static_cast<std::uint64_t>(sqlite3_total_changes64(handle_)) + undone_;
}

/// The counter in the file's header, which each commit raises. Read past the locks: a commit that
/// is not finished, or comes undone, leaves everything as it was read before.
std::optional<std::uint32_t> Database::FileVersion() const {
  constexpr int kCounterAt = 24;
  sqlite3_file* file = nullptr;
  std::array<unsigned char, 4> bytes{};
  if (sqlite3_file_control(handle_, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file)) !=
          SQLITE_OK ||
      file->pMethods == nullptr ||
      file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), kCounterAt) !=
          SQLITE_OK) {
    return std::nullopt;
  }
  std::uint32_t version = 0;
  for (const unsigned char byte : bytes) version = version << 8U | byte;
  return version;
}

Error Database::Failure() const {
  if (handle_ == nullptr || sqlite3_errcode(handle_) == SQLITE_OK) return Error(errors::CannotOpen);
  return {errors::CannotOpen, sqlite3_errmsg(handle_)};
}

ReadScope::ReadScope(Database& database)
    : database_(database), own_(!database.InTransaction() && database.Step("BEGIN")) {}

ReadScope::~ReadScope() {
  if (own_) database_.Step("COMMIT");
}

}  // namespace kvr5
