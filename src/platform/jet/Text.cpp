#include "platform/jet/Text.h"

#include "platform/Utf16.h"
#include "platform/Utf8.h"

namespace kvr5::jet {
namespace {

/// Compressed text, without its mark, as plain UTF-16; nothing where half a character is left over.
std::optional<std::string> Expand(std::span<const unsigned char> content) {
  std::string plain;
  plain.reserve(2 * content.size());
  bool compressed = true;
  for (std::size_t at = 0; at < content.size(); ++at) {
    if (content[at] == 0) {
      compressed = !compressed;
      continue;
    }
    plain += static_cast<char>(content[at]);
    if (!compressed && ++at == content.size()) return {};
    plain += compressed ? '\0' : static_cast<char>(content[at]);
  }
  return plain;
}

std::optional<std::string> Checked(std::string_view plain) {
  if (plain.size() % 2 != 0) return {};
  const std::string carried = utf16::ToUtf8(plain);
  std::string text;
  text.reserve(carried.size());
  for (std::string_view rest = carried; !rest.empty();) {
    const utf8::Step step = utf8::Next(rest);
    utf8::Append(text, step.Valid ? step.Value : U'\uFFFD');
    rest.remove_prefix(step.Length);
  }
  return text;
}

}  // namespace

std::optional<std::string> PlainText(std::span<const unsigned char> content) {
  return Checked(std::string(content.begin(), content.end()));
}

std::optional<std::string> StoredText(std::span<const unsigned char> content) {
  if (content.size() < 2 || content[0] != 0xFF || content[1] != 0xFE) return PlainText(content);
  const auto plain = Expand(content.subspan(2));
  return plain ? Checked(*plain) : std::nullopt;
}

}  // namespace kvr5::jet
