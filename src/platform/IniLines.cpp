#include "platform/IniLines.h"

namespace kvr5::ini {
namespace {

constexpr std::string_view kBlanks = "\x20\x09\x0A\x0B\x0C\x0D\x1A";

std::string_view Trim(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// A name or value: a NUL ends it, blanks around it don't count.
std::string_view Clean(std::string_view text) {
  return Trim(text.substr(0, text.find('\0')), kBlanks);
}

void Classify(std::string_view text, Line& line) {
  line.Name = line.Value = {};
  text = Trim(text, kBlanks);
  if (text.empty()) {
    line.Kind = LineKind::Blank;
  } else if (text.front() == ';') {
    line.Kind = LineKind::Comment;
  } else if (text.front() == '[') {
    line.Kind = LineKind::Header;
    line.Name = Clean(text.substr(1, text.find(']') - 1));
  } else if (const std::size_t equals = text.find('='); equals != std::string_view::npos) {
    line.Kind = LineKind::Key;
    line.Name = Clean(text.substr(0, equals));
    line.Value = Clean(text.substr(equals + 1));
  } else {
    line.Kind = LineKind::Other;
    line.Name = Clean(text);
  }
}

}  // namespace

bool LineReader::Next(Line& line) {
  if (next_ >= text_.size()) return false;
  std::size_t length = 0;
  const std::string_view rest = text_.substr(next_);
  while (length < rest.size() && rest[length] != '\r' && rest[length] != '\n') ++length;
  line.Start = next_;
  line.Closed = length < rest.size();
  next_ += length;
  if (line.Closed) next_ += rest.substr(length).starts_with("\r\n") ? 2U : 1U;
  line.End = next_;
  Classify(rest.substr(0, length), line);
  return true;
}

Wanted::Wanted(std::string_view name, const CodePage& page)
    : name_(Trim(name, " ")), page_(page), folded_(page.Fold(name_)) {}

bool Wanted::Is(std::string_view name) const {
  return name.size() == folded_.size() && page_.Fold(name) == folded_;
}

bool FindSection(LineReader& reader, const Wanted& section, Line& header) {
  while (reader.Next(header)) {
    if (header.Kind == LineKind::Header && section.Is(header.Name)) return true;
  }
  return false;
}

bool NextInSection(LineReader& reader, Line& line) {
  return reader.Next(line) && line.Kind != LineKind::Header;
}

}  // namespace kvr5::ini
