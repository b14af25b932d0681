#pragma once

#include <cstddef>
#include <string>

#include "platform/Locale.h"

namespace kvr5 {

/// What a text box holds.
struct TestoConCaret {
  std::string Testo;
  std::size_t Caret = 0;  ///< characters in front of it, in whatever unit the box counts
  bool operator==(const TestoConCaret&) const = default;
};

/// The box without the "0" characters in front, the caret moved back by as many places; "0" where
/// the value is 0. An empty text, and one that is no number, stay as they are.
TestoConCaret TogliZeriInizialiTextBox(TestoConCaret casella, const Locale& luogo);

/// The box with its digits only, unless its text is numeric as it stands; the caret is put back to
/// where it was, or behind the last digit where that is less.
TestoConCaret FiltraCifreTextBox(TestoConCaret casella, const Locale& luogo);

}  // namespace kvr5
