#pragma once

#include "platform/Error.h"

namespace kvr5 {

/// Numbers that only the database layer raises.
namespace errors {
inline constexpr int BadCriterion = 3001;
inline constexpr int RecordsetReadOnly = 3251;
inline constexpr int ColumnNotFound = 3265;
inline constexpr int ObjectOpen = 3705;
}  // namespace errors

/// An error of one of these numbers with its words.
inline Error DbError(int number) {
  switch (number) {
    case errors::BadCriterion:
      return {number, "Arguments are of the wrong type or out of range"};
    case errors::RecordsetReadOnly:
      return {number, "The records can't be changed through this query"};
    case errors::ColumnNotFound:
      return {number, "There is no column of this name"};
    case errors::ObjectOpen:
      return {number, "Operation is not allowed when the object is open"};
    default:
      return Error(number);
  }
}

}  // namespace kvr5
