#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kvr5 {

/// The text with as many "0" in front as it is short of `lunghezza`; a longer one as it is. For
/// digits and keys: a character is a byte here.
std::string RiempiZeri(std::string_view testo, std::size_t lunghezza);

/// The path ending in a backslash; "" gives "\".
std::string AggiungiBarra(std::string_view percorso);

/// The path up to and including its last backslash; "" when it has none.
std::string EstraiCartella(std::string_view percorso);

/// What follows the last backslash: the whole text when it has none.
std::string EstraiNomeFile(std::string_view percorso);

/// What stands before the last dot; "" for a name without a dot.
std::string TogliEstensione(std::string_view nome);

/// 1 "Veskadro", 2 "Zub", 3 "Ostrel", 4 "KVR5", any other number "".
std::string NomeModello(std::int16_t tipo);

/// The text without blanks (20 only) at both ends.
std::string_view Rifila(std::string_view testo);

}  // namespace kvr5
