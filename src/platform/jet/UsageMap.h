#pragma once

#include <cstdint>
#include <vector>

#include "platform/jet/Pages.h"

namespace kvr5::jet {

/// The pages that a table owns, from the row that a definition points to (page << 8 | slot), in the
/// file's order. Damaged where it isn't a map, or names pages that the file doesn't have.
///
/// (The row begins with its kind. 0: a page number, u32, and a bit for each page from that on.
/// 1: numbers of pages of type 5, u32 each, 0 for none, that have from their byte 4 on a bit for
/// each of the next 32,736 pages.)
Fault ReadUsageMap(Pages& pages, std::uint32_t pointer, std::vector<std::uint32_t>& owned);

}  // namespace kvr5::jet
