#pragma once

#include <string>
#include <vector>

namespace kvr5::cli {

/// Runs kvr5card with its arguments (without the program's own name); returns the exit status.
int Run(const std::vector<std::string>& arguments);

}  // namespace kvr5::cli
