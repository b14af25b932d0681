#include "platform/Fold.h"

#include <algorithm>

#include "platform/LetterCase.h"
#include "platform/Utf8.h"

namespace kvr5 {

std::string FoldCase(std::string_view utf8) {
  std::string folded;
  folded.reserve(utf8.size());
  while (!utf8.empty()) {
    const utf8::Step step = utf8::Next(utf8);
    if (step.Valid) {
      utf8::Append(folded, SmallLetter(step.Value));
    } else {
      folded += utf8.substr(0, step.Length);
    }
    utf8.remove_prefix(step.Length);
  }
  return folded;
}

bool EqualFold(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;  // a letter has the same length in both cases
  while (!a.empty()) {
    const utf8::Step left = utf8::Next(a);
    const utf8::Step right = utf8::Next(b);
    const bool equal = left.Valid && right.Valid
                           ? SmallLetter(left.Value) == SmallLetter(right.Value)
                           : a.substr(0, left.Length) == b.substr(0, right.Length);
    if (!equal) return false;
    a.remove_prefix(left.Length);
    b.remove_prefix(right.Length);
  }
  return true;
}

}  // namespace kvr5
