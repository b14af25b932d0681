#pragma once

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/CodePage.h"

namespace kvr5::test {

/// The page of all INI files of the tests.
inline const CodePage kPage(1252);

/// One call on an INI file, with what must come out; all texts are bytes of Windows-1252.
struct IniCase {
  std::string Id;
  std::string What;
  std::optional<std::string> File;  ///< before the call; none is a missing file
  std::optional<std::string> Section;
  std::optional<std::string> Key;
  std::optional<std::string> Value;  ///< given to a write
  std::string Default;
  std::size_t Size = 0;
  std::string Result;  ///< what is read, or the file after a write
};

/// The cases of "read.json" or "write.json" among the test data.
std::vector<IniCase> IniCases(const std::string& kind);

/// The cases of all files "read*.json" or "write*.json" in the folder that the variable
/// KVR5_MORE_INI_CASES names.
std::vector<IniCase> MoreIniCases(const std::string& kind);

inline void PrintTo(const IniCase& one, std::ostream* out) {
  *out << one.Id;
}

}  // namespace kvr5::test
