#pragma once

#include <string>
#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// Chooses the language file: the setting LanguageFile unchecked, else Italiano.lan for the locale
/// 1040, else English.lan. Without English.lan a warning in fixed words ends the program.
void ImpostaFileLingua(Contesto& contesto);

/// A text of the language file by its seven-digit key; "" when the file or the key is missing.
std::string TestoLingua(Contesto& contesto, std::string_view chiave);

/// The text, or a built-in caption where the language has none.
std::string TestoLinguaO(Contesto& contesto, std::string_view chiave, std::string_view scritta);

}  // namespace kvr5
