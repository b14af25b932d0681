#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kvr5::cli {

/// Line ends of boxes are CR LF inside the system; outside they are LF.
std::string WithPlainLineEnds(std::string_view text);

/// A text (UTF-8) as a terminal may get it: control characters but line feeds, and bytes that
/// aren't UTF-8, become U+FFFD.
std::string ShownOnTerminal(std::string_view text);

/// The first `columns` characters of a line.
std::string_view CutToWidth(std::string_view line, std::size_t columns);

/// How many columns the terminal behind standard error has; 80 where it doesn't tell.
std::size_t TerminalColumns();

}  // namespace kvr5::cli
