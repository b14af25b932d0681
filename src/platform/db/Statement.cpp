#include "platform/db/Statement.h"

#include <cstddef>

namespace kvr5 {

void BindValue(sqlite3_stmt* statement, int parameter, const DbValue& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    sqlite3_bind_int64(statement, parameter, *whole);
  } else if (const auto* real = std::get_if<double>(&value)) {
    sqlite3_bind_double(statement, parameter, *real);
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    sqlite3_bind_text64(statement, parameter, text->data(), text->size(), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
  } else {
    sqlite3_bind_null(statement, parameter);
  }
}

void ReadValue(sqlite3_stmt* statement, int column, DbValue& value) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
      value = static_cast<std::int64_t>(sqlite3_column_int64(statement, column));
      break;
    case SQLITE_FLOAT:
      value = sqlite3_column_double(statement, column);
      break;
    case SQLITE_NULL:
      value = std::monostate();
      break;
    default: {
      const void* const bytes = sqlite3_column_blob(statement, column);
      const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
      if (!std::holds_alternative<std::string>(value)) value = std::string();
      std::get<std::string>(value).assign(static_cast<const char*>(bytes), size);
    }
  }
}

}  // namespace kvr5
