#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// A text of the language file with its places "%1" to "%9" filled; a place that has no value stays
/// as it is, and what a value holds is never taken for a place.
std::string ConValori(std::string_view testo, std::initializer_list<std::string_view> valori);

/// The day of a number, 1 Monday to 7 Sunday; "" for any other.
std::string NomeDelGiorno(Contesto& contesto, std::int64_t giorno);

/// A text from elsewhere (a card's label, a name in a damaged file) fit for one line of a screen:
/// control characters, line separators, marks of the writing direction and bytes that aren't UTF-8
/// become U+FFFD.
std::string SuUnaRiga(std::string_view testo);

/// Bytes as a person reads them, in units of 1024, with the locale's marks: "7.4 GB", "512 MB",
/// "1.8 TB", "0 KB". One decimal from GB on, none below.
std::string QuantitaInParole(std::uint64_t byte, const Locale& locale);

/// A moment (seconds since 1970-01-01 UTC) as a person reads it here and now: "today 14:32",
/// "yesterday 09:10", else the date alone, "2019-03-04".
std::string QuandoInParole(Contesto& contesto, std::int64_t secondi);

/// "1 file", "2 files": a number and the word that goes with it, each by its key and the word that
/// stands in where the language has none.
struct ParolaContata {
  const char* ChiaveUno;
  const char* Uno;
  const char* ChiaveMolti;
  const char* Molti;
};
std::string Contati(Contesto& contesto, std::size_t quanti, const ParolaContata& parola);

}  // namespace kvr5
