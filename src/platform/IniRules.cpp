// The rules of the two calls on a file's bytes; IniFile.cpp applies them to a file on the disk.

#include <algorithm>

#include "platform/IniFile.h"
#include "platform/IniLines.h"
#include "platform/Utf16.h"

namespace kvr5::ini {
namespace {

using Text = std::optional<std::string_view>;

constexpr std::string_view kLineEnd = "\r\n";
constexpr int kUtf8 = 65001;

/// One pair of equal quotes around the text goes; blanks inside stay.
std::string_view Unquoted(std::string_view text) {
  if (text.size() < 2 || text.front() != text.back()) return text;
  if (text.front() != '"' && text.front() != '\'') return text;
  return text.substr(1, text.size() - 2);
}

/// The default as the call gives it: spaces at its end and one pair of quotes go.
std::string_view Fallback(std::string_view fallback) {
  return Unquoted(fallback.substr(0, fallback.find_last_not_of(' ') + 1));
}

std::string SectionNames(std::string_view content) {
  std::string names;
  LineReader reader(content);
  for (Line line; reader.Next(line);) {
    if (line.Kind == LineKind::Header && !line.Name.empty()) names.append(line.Name) += '\0';
  }
  return names;
}

/// The names of the section's keys; nothing when the section isn't there.
std::optional<std::string> KeyNames(std::string_view content, const Wanted& section) {
  LineReader reader(content);
  Line line;
  if (!FindSection(reader, section, line)) return std::nullopt;
  std::string names;
  while (NextInSection(reader, line)) {
    if (line.Kind == LineKind::Key && !line.Name.empty()) names.append(line.Name) += '\0';
  }
  return names;
}

/// The line of a key in the first section of that name.
std::optional<Line> FindKey(LineReader& reader, const Wanted& key) {
  for (Line line; NextInSection(reader, line);) {
    const bool named = line.Kind == LineKind::Key || line.Kind == LineKind::Other;
    if (named && key.Is(line.Name)) return line;
  }
  return std::nullopt;
}

Text FindValue(std::string_view content, const Wanted& section, const Wanted& key) {
  LineReader reader(content);
  Line header;
  if (!FindSection(reader, section, header)) return std::nullopt;
  const std::optional<Line> line = FindKey(reader, key);
  if (!line || line->Kind == LineKind::Other) return std::nullopt;
  return Unquoted(line->Value);
}

/// What is found, uncut; nothing where the default takes its place.
std::optional<std::string> Find(std::string_view content, Text section, Text key,
                                const CodePage& page) {
  if (!section) return SectionNames(content);
  if (!key) return KeyNames(content, Wanted(*section, page));
  const Text value = FindValue(content, Wanted(*section, page), Wanted(*key, page));
  return value ? std::optional<std::string>(*value) : std::nullopt;
}

std::optional<std::string> Decoded(Text text, const CodePage& page) {
  return text ? std::optional<std::string>(page.Decode(*text)) : std::nullopt;
}

/// Find in a file of UTF-16, whose names may lie outside the page.
std::optional<std::string> FindInUtf16(std::string_view content, Text section, Text key,
                                       const CodePage& page) {
  const std::optional<std::string> found =
      Find(utf16::ToUtf8(content.substr(2)), Decoded(section, page), Decoded(key, page),
           CodePage(kUtf8));
  return found ? std::optional<std::string>(page.Encode(*found)) : std::nullopt;
}

std::string Entry(std::string_view key, std::string_view value) {
  return std::string(key).append("=").append(value).append(kLineEnd);
}

std::string Spliced(std::string_view content, std::size_t start, std::size_t end,
                    std::string_view text) {
  std::string result;
  result.reserve(content.size() - (end - start) + text.size());
  return result.append(content.substr(0, start)).append(text).append(content.substr(end));
}

std::string WithNewSection(std::string_view content, const Wanted& section,
                           std::string_view entry) {
  std::string result(content);
  if (!content.empty() && content.back() != '\r' && content.back() != '\n') result += kLineEnd;
  return result.append("[").append(section.Name()).append("]").append(kLineEnd).append(entry);
}

/// Drops a section's header, keys and lines without "="; its comments and blank lines stay.
std::string WithoutSection(std::string_view content, const Line& header, LineReader& reader) {
  std::string result(content.substr(0, header.Start));
  result.reserve(content.size());
  std::size_t rest = header.End;
  for (Line line; NextInSection(reader, line); rest = line.End) {
    if (line.Kind != LineKind::Blank && line.Kind != LineKind::Comment) continue;
    result.append(content.substr(line.Start, line.End - line.Start));
  }
  return result.append(content.substr(rest));
}

/// Adds a key behind the last one of a section, or behind its header.
std::string WithNewKey(std::string_view content, const Line& header, std::string_view entry) {
  Line before = header;
  LineReader reader(content, header.End);
  for (Line line; NextInSection(reader, line);) {
    if (line.Kind == LineKind::Key) before = line;
  }
  std::string text(before.Closed ? std::string_view() : kLineEnd);
  return Spliced(content, before.End, before.End, text.append(entry));
}

std::optional<std::string> ChangedText(std::string_view content, std::string_view sectionName,
                                       Text keyName, Text value, const CodePage& page) {
  const Wanted section(sectionName, page);
  const Wanted key(keyName.value_or(std::string_view()), page);
  const bool writes = keyName && value;
  LineReader reader(content);
  Line header;
  if (!FindSection(reader, section, header)) {
    if (!writes) return std::nullopt;
    return WithNewSection(content, section, Entry(key.Name(), *value));
  }
  if (!keyName) return WithoutSection(content, header, reader);
  const std::optional<Line> line = FindKey(reader, key);
  if (!line) {
    if (!writes) return std::nullopt;
    return WithNewKey(content, header, Entry(key.Name(), *value));
  }
  if (!writes) return Spliced(content, line->Start, line->End, {});
  if (line->Kind == LineKind::Key && line->Value == *value) return std::nullopt;
  return Spliced(content, line->Start, line->End, Entry(line->Name, *value));
}

/// ChangedText in a file of UTF-16: through UTF-8, so that characters outside the page stay.
std::optional<std::string> ChangedUtf16(std::string_view content, std::string_view section,
                                        Text key, Text value, const CodePage& page) {
  const std::string_view oddByte = content.substr(content.size() - content.size() % 2);
  const std::optional<std::string> changed =
      ChangedText(utf16::ToUtf8(content.substr(2)), page.Decode(section), Decoded(key, page),
                  Decoded(value, page), CodePage(kUtf8));
  if (!changed) return std::nullopt;
  return std::string(content.substr(0, 2)).append(utf16::FromUtf8(*changed)).append(oddByte);
}

}  // namespace

std::string Read(Text content, Text section, Text key, std::string_view fallback, std::size_t size,
                 const CodePage& page) {
  if (size < 2) return {};
  std::optional<std::string> found;
  if (content) {
    found = utf16::HasMark(*content) ? FindInUtf16(*content, section, key, page)
                                     : Find(*content, section, key, page);
  }
  if (!found) return std::string(page.Left(Fallback(fallback), size - 1));
  // A list has a NUL of its own behind the last name's, and one that just fits counts as cut.
  const std::size_t closing = section && key ? 1 : 2;
  return std::string(page.Left(*found, size - closing));
}

std::optional<std::string> Changed(std::string_view content, Text section, Text key, Text value,
                                   const CodePage& page) {
  if (!section) return std::nullopt;
  auto changed = utf16::HasMark(content) ? ChangedUtf16(content, *section, key, value, page)
                                         : ChangedText(content, *section, key, value, page);
  if (changed == content) changed.reset();
  return changed;
}

}  // namespace kvr5::ini
