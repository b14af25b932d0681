#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace kvr5::ini {

enum class LineKind {
  Blank,
  Comment,  ///< begins with ";"
  Header,   ///< begins with "["
  Key,      ///< has a "="
  Other,    ///< a key without a value
};

/// One line of an INI file, with what the host's calls see in it.
struct Line {
  LineKind Kind = LineKind::Blank;
  std::size_t Start = 0;   ///< where it begins in the file
  std::size_t End = 0;     ///< behind its line end
  bool Closed = false;     ///< has a line end
  std::string_view Name;   ///< of the section or the key
  std::string_view Value;  ///< of a key, quotes included
};

/// Walks through a file's lines. They end at CR LF, CR or LF.
class LineReader {
 public:
  /// Starts at the line at `start`.
  explicit LineReader(std::string_view text, std::size_t start = 0) : text_(text), next_(start) {}
  /// Puts the next line into `line`; false at the file's end.
  bool Next(Line& line);

 private:
  std::string_view text_;
  std::size_t next_;
};

/// A section or key that is asked for: spaces around it, but not tabs, go; case is ignored.
class Wanted {
 public:
  Wanted(std::string_view name, const CodePage& page);
  /// The name without the spaces around it.
  std::string_view Name() const { return name_; }
  bool Is(std::string_view name) const;

 private:
  std::string_view name_;
  const CodePage& page_;
  std::string folded_;
};

/// Reads on to the first header of that name; false when there is none.
bool FindSection(LineReader& reader, const Wanted& section, Line& header);

/// Reads the next line of a section; false when the section or the file ends.
bool NextInSection(LineReader& reader, Line& line);

}  // namespace kvr5::ini
