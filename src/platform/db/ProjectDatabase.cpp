#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <system_error>

#include "platform/db/Collation.h"
#include "platform/db/Connection.h"

namespace kvr5 {
namespace {

struct CloseHandle {
  void operator()(sqlite3* handle) const { sqlite3_close(handle); }
};

bool RunSchema(const std::string& hostPath, const std::string& schemaSql) {
  sqlite3* raw = nullptr;
  const int outcome =
      sqlite3_open_v2(hostPath.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  const std::unique_ptr<sqlite3, CloseHandle> handle(raw);
  return outcome == SQLITE_OK && RegisterCollation(raw) &&
         sqlite3_exec(raw, schemaSql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

}  // namespace

Error CreateProjectDatabase(const std::string& hostPath, const std::string& schemaSql) {
  const std::filesystem::path path(std::u8string(hostPath.begin(), hostPath.end()));
  std::error_code ignored;
  if (std::filesystem::exists(path, ignored)) return Error(errors::FileExists);
  if (RunSchema(hostPath, schemaSql)) return {};
  std::filesystem::remove(path, ignored);
  return Error(errors::CannotOpen);
}

}  // namespace kvr5
