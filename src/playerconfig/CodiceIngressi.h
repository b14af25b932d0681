#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kvr5 {

/// The bit code of a combination of the eight logic inputs: IN1 is bit 0, IN8 bit 7. 1 to 255; 0
/// means that none is ticked.
std::int16_t CodiceIngressi(const std::array<bool, 8>& spuntati);

/// The name of a combination's file on the card: the code as decimal text and ".mp3".
std::string AliasIngresso(std::int16_t codice);

/// "IN1+IN3" for 5; a number that is no code in digits.
std::string NomeIngressi(std::int64_t codice);

/// A code given as a number 1 to 255 or as "IN1+IN3" (without regard to case, each input
/// once); nothing for any other text.
std::optional<std::int16_t> CodiceDaTesto(std::string_view testo);

/// True when the code holds IN5 or IN6, the inputs that an RS-485 link takes away.
bool UsaIngressiRs485(std::int16_t codice);

}  // namespace kvr5
