#pragma once

#include <string_view>

namespace kvr5 {

/// Whether a name stands before another in the order that people expect: letters without regard to
/// case, runs of digits by their number ("2" before "10"). Names that are equal so far go by their
/// bytes, so that the order of different names never depends on where they stood.
bool NaturalLess(std::string_view left, std::string_view right);

}  // namespace kvr5
