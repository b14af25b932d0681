#include "playerconfig/CodiceIngressi.h"

#include <charconv>

namespace kvr5 {
namespace {

constexpr int kRs485Inputs = 0x30;  // IN5 and IN6

std::optional<std::int16_t> FromNumber(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  if (value < 1 || value > 255) return {};
  return static_cast<std::int16_t>(value);
}

/// The bit of one "IN1" to "IN8"; 0 for any other word.
int InputBit(std::string_view word) {
  const bool named = word.size() == 3 && (word[0] | 0x20) == 'i' && (word[1] | 0x20) == 'n';
  if (!named || word[2] < '1' || word[2] > '8') return 0;
  return 1 << (word[2] - '1');
}

}  // namespace

std::int16_t CodiceIngressi(const std::array<bool, 8>& spuntati) {
  int code = 0;
  for (std::size_t i = 0; i < spuntati.size(); ++i) {
    if (spuntati[i]) code += 1 << i;
  }
  return static_cast<std::int16_t>(code);
}

std::string AliasIngresso(std::int16_t codice) {
  return std::to_string(codice) + ".mp3";
}

std::string NomeIngressi(std::int64_t codice) {
  if (codice < 1 || codice > 255) return std::to_string(codice);
  std::string name;
  for (int i = 0; i < 8; ++i) {
    if ((codice & (1 << i)) == 0) continue;
    if (!name.empty()) name += '+';
    name += "IN" + std::to_string(i + 1);
  }
  return name;
}

std::optional<std::int16_t> CodiceDaTesto(std::string_view testo) {
  if (const auto number = FromNumber(testo)) return number;
  int code = 0;
  while (true) {
    const auto plus = testo.find('+');
    const int bit = InputBit(testo.substr(0, plus));
    if (bit == 0 || (code & bit) != 0) return {};
    code |= bit;
    if (plus == std::string_view::npos) return static_cast<std::int16_t>(code);
    testo.remove_prefix(plus + 1);
  }
}

bool UsaIngressiRs485(std::int16_t codice) {
  return (codice & kRs485Inputs) != 0;
}

}  // namespace kvr5
