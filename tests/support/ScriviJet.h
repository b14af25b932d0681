#pragma once

#include <string>
#include <vector>

#include "platform/db/Value.h"

namespace kvr5::test {

/// The bytes of a Jet 4 file with the tables List and HEAD, as small as the engine could make it:
/// catalogue, definitions, maps of pages, rows; no indexes. Rows have the columns of the tables in
/// their order; a time is days since 1899-12-30 (a double).
std::string FileJet(const std::vector<std::vector<DbValue>>& lista,
                    const std::vector<std::vector<DbValue>>& testa);

}  // namespace kvr5::test
