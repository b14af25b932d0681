#include "platform/TempName.h"

#include <algorithm>
#include <random>

namespace kvr5 {
namespace {

constexpr std::string_view kDigits = "0123456789abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view kEnding = ".kv5";
constexpr std::size_t kLength = 7;

}  // namespace

std::string NewTempName() {
  std::random_device chance;
  std::uniform_int_distribution<std::size_t> digit(0, kDigits.size() - 1);
  std::string name = "~";
  for (std::size_t i = 0; i < kLength; ++i) name += kDigits[digit(chance)];
  name += kEnding;
  return name;
}

bool IsTempName(std::string_view name) {
  if (name.size() != 1 + kLength + kEnding.size() || name[0] != '~' || !name.ends_with(kEnding)) {
    return false;
  }
  return std::ranges::all_of(name.substr(1, kLength),
                             [](char c) { return kDigits.find(c) != std::string_view::npos; });
}

}  // namespace kvr5
