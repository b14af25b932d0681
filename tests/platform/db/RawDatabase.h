#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <string>

namespace kvr5::test {

/// A database as any other program opens it: plain SQLite, without our collation and settings.
class RawDatabase {
 public:
  explicit RawDatabase(const std::filesystem::path& path) {
    EXPECT_EQ(sqlite3_open(path.c_str(), &handle_), SQLITE_OK);
  }
  ~RawDatabase() { sqlite3_close(handle_); }
  RawDatabase(const RawDatabase&) = delete;
  RawDatabase& operator=(const RawDatabase&) = delete;

  /// SQLite's outcome of a statement.
  int Try(const std::string& sql) {
    return sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr);
  }
  void Run(const std::string& sql) {
    ASSERT_EQ(Try(sql), SQLITE_OK) << sql << ": " << sqlite3_errmsg(handle_);
  }
  /// The first value of a query's first row as text; "" when there is none.
  std::string Value(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr), SQLITE_OK)
        << sql << ": " << sqlite3_errmsg(handle_);
    std::string value;
    if (sqlite3_step(statement) == SQLITE_ROW) {
      const void* const text = sqlite3_column_blob(statement, 0);
      const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, 0));
      value.assign(static_cast<const char*>(text), size);
    }
    sqlite3_finalize(statement);
    return value;
  }

 private:
  sqlite3* handle_ = nullptr;
};

}  // namespace kvr5::test
