#include "platform/NaturalOrder.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "platform/Digit.h"
#include "platform/Fold.h"

namespace kvr5 {
namespace {

/// Takes the digits off the front.
std::string_view TakeDigits(std::string_view& text) {
  const std::size_t size =
      static_cast<std::size_t>(std::ranges::find_if_not(text, IsDigit) - text.begin());
  const std::string_view digits = text.substr(0, size);
  text.remove_prefix(size);
  return digits;
}

/// Below, at or above 0 as the numbers are; of any length.
int CompareNumbers(std::string_view left, std::string_view right) {
  for (std::string_view* each : {&left, &right}) {
    each->remove_prefix(std::min(each->find_first_not_of('0'), each->size()));
  }
  if (left.size() != right.size()) return left.size() < right.size() ? -1 : 1;
  return left.compare(right);
}

int Compare(std::string_view left, std::string_view right) {
  while (!left.empty() && !right.empty()) {
    int order = 0;
    if (IsDigit(left.front()) && IsDigit(right.front())) {
      order = CompareNumbers(TakeDigits(left), TakeDigits(right));
    } else {
      order = left.substr(0, 1).compare(right.substr(0, 1));
      left.remove_prefix(1);
      right.remove_prefix(1);
    }
    if (order != 0) return order;
  }
  return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

}  // namespace

bool NaturalLess(std::string_view left, std::string_view right) {
  const int order = Compare(FoldCase(left), FoldCase(right));
  return order != 0 ? order < 0 : left < right;
}

}  // namespace kvr5
