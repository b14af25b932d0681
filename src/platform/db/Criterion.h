#pragma once

#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/db/Column.h"
#include "platform/db/Value.h"

namespace kvr5 {

/// What Recordset::Find looks for: a column, a comparison and a value.
struct Criterion {
  std::string Name;
  std::string Comparison;  ///< "=", "<>", "<", ">", "<=" or ">="
  DbValue Operand;         ///< a text (also for a time) or a number

  /// True when a column's value meets it. Texts are compared without regard to case. Null meets
  /// nothing, nor does a value of another kind.
  bool IsMetBy(const DbValue& value) const;
  /// False when it asks a text column for a number or the other way round.
  bool Suits(const Column& column) const;
};

/// Reads a criterion such as "ID=7" or "[FileName]='a'"; 3001 when it isn't one.
Result<Criterion> ParseCriterion(std::string_view criterion);

}  // namespace kvr5
