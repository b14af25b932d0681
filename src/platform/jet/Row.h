#pragma once

#include <span>
#include <vector>

#include "platform/db/Value.h"
#include "platform/jet/Definition.h"

namespace kvr5::jet {

/// Reads the values of some columns of a row, in their order: whole numbers, texts in UTF-8, times
/// of day as "HH:MM:SS", Null. False where the row contradicts itself. `hasPieces`: the table has
/// columns without a fixed place.
///
/// (A row: its number of columns, the fixed columns, the pieces of the others; from its end
/// backwards a bit a column, set where it isn't Null, the number of pieces, and their places, one
/// more than pieces, the last place being their end.)
bool ReadRow(std::span<const unsigned char> row, std::span<const Column* const> columns,
             bool hasPieces, std::vector<DbValue>& values);

}  // namespace kvr5::jet
