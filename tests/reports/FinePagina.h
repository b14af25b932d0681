#pragma once

namespace kvr5::test {

/// What every report ends with.
inline constexpr const char* kTail = "</BODY>\r\n</HTML>\r\n";

}  // namespace kvr5::test
