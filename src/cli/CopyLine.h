#pragma once

#include <string>

#include "platform/ShellCopy.h"

namespace kvr5::cli {

/// The progress line of a work that goes through bytes: "Copying files  42%  7/16  31 MB/s  12 s".
/// `seconds` since it began.
std::string CopyLine(const std::string& operation, const CopyState& state, double seconds);

}  // namespace kvr5::cli
