#include "platform/host/posix/UdevDatabase.h"

#include <charconv>
#include <fstream>

#include "platform/Utf8.h"

namespace kvr5::host {

namespace fs = std::filesystem;

namespace {

std::string WithBytes(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    unsigned value = 0;
    const char* digits = text.data() + 2;
    if (text.starts_with("\\x") && text.size() >= 4 &&
        std::from_chars(digits, digits + 2, value, 16).ptr == digits + 2) {
      bytes += static_cast<char>(value);
      text.remove_prefix(4);
    } else {
      bytes += text[0];
      text.remove_prefix(1);
    }
  }
  return bytes;
}

}  // namespace

std::string UdevDatabase::Property(const fs::path& device, std::string_view name) const {
  std::string number;
  std::ifstream numberFile(device / "dev");
  if (!std::getline(numberFile, number)) return "";
  std::ifstream in(folder_ / ("b" + number));
  const std::string start = "E:" + std::string(name) + "=";
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with(start)) return line.substr(start.size());
  }
  return "";
}

std::string DecodedUdevText(std::string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  const std::string bytes = WithBytes(text);
  std::string decoded;
  for (std::string_view rest = bytes; !rest.empty();) {
    const utf8::Step step = utf8::Next(rest);
    const bool isSeen = step.Valid && step.Value >= 0x20 && step.Value != 0x7F;
    utf8::Append(decoded, isSeen ? step.Value : kReplacement);
    rest.remove_prefix(step.Length);
  }
  return decoded;
}

}  // namespace kvr5::host
