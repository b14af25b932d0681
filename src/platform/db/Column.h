#pragma once

#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/db/Value.h"

namespace kvr5 {

/// A column of a recordset.
struct Column {
  enum class Kind { Whole, Text, Time, Other };

  std::string Name;
  Kind Type = Kind::Other;
};

/// The kind of a column by its name and its declared type (null for a computed one).
Column::Kind KindOf(std::string_view name, const char* declaredType);

/// The value as the column stores it. A whole number column takes digits too and rounds a real
/// half to even (13 for other texts, 6 beyond 64 bits), a text column takes numbers as their
/// digits, a time column takes "HH.MM", "HH:MM" and "HH:MM:SS" (else 13). Null fits everywhere.
Result<DbValue> Fitted(const Column& column, DbValue value);

/// A number as plain digits, a text as it is, "" for Null.
std::string ValueText(const DbValue& value);

/// The value as a whole number: the digits of a text, a real rounded half to even. 13 for Null and
/// any other text, 6 beyond 64 bits.
Result<std::int64_t> WholeNumber(const DbValue& value);

}  // namespace kvr5
