#include "platform/NaturalOrder.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "platform/Fold.h"

namespace kvr5 {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Takes the run of digits, or of anything else, off the front.
std::string_view TakeRun(std::string_view& text) {
  const bool digits = IsDigit(text.front());
  std::size_t size = 1;
  while (size < text.size() && IsDigit(text[size]) == digits) ++size;
  const std::string_view run = text.substr(0, size);
  text.remove_prefix(size);
  return run;
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
    const bool numbers = IsDigit(left.front()) && IsDigit(right.front());
    const std::string_view a = TakeRun(left);
    const std::string_view b = TakeRun(right);
    const int order = numbers ? CompareNumbers(a, b) : a.compare(b);
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
