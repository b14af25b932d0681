#include "reports/TestoHtml.h"

#include <cstdint>

#include "platform/Utf8.h"

namespace kvr5 {
namespace {

constexpr int kDeclared = 1252;

std::string_view EntityOf(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return {};
  }
}

bool IsControl(char character) {
  return (static_cast<unsigned char>(character) < 0x20 && character != '\t') || character == '\x7F';
}

}  // namespace

std::string TestoHtml(std::string_view testo) {
  std::string html;
  html.reserve(testo.size());
  bool blank = true;
  for (const char each : testo) {
    if (const auto entity = EntityOf(each); !entity.empty()) {
      html += entity;
    } else if (each == ' ' && blank) {
      html += "&nbsp;";
    } else if (IsControl(each)) {
      html += "\uFFFD";
    } else {
      html += each;
    }
    blank = each == ' ';
  }
  return html;
}

std::string RigaInPagina(std::string_view markup, const CodePage& page) {
  std::string bytes;
  bytes.reserve(markup.size());
  while (!markup.empty()) {
    const auto next = utf8::Next(markup);
    const std::string_view character = markup.substr(0, next.Length);
    markup.remove_prefix(next.Length);
    if (next.Length == 1 && static_cast<unsigned char>(character[0]) < 0x80) {
      bytes += character;
    } else if (page.Number() == kDeclared && page.CanEncode(character)) {
      bytes += page.Encode(character);
    } else {
      // Browsers read the references of that range as letters of another page.
      const bool shown = next.Valid && (next.Value < 0x80 || next.Value > 0x9F);
      bytes +=
          "&#" + std::to_string(shown ? static_cast<std::uint32_t>(next.Value) : 0xFFFDU) + ";";
    }
  }
  return bytes;
}

}  // namespace kvr5
