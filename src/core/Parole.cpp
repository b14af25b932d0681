#include "core/Parole.h"

#include <array>
#include <chrono>
#include <ctime>
#include <iterator>

#include "core/Lingua.h"
#include "platform/Utf8.h"

namespace kvr5 {
namespace {

std::chrono::sys_days DayOf(const std::tm& time) {
  const std::chrono::year_month_day date{std::chrono::year(time.tm_year + 1900),
                                         std::chrono::month(static_cast<unsigned>(time.tm_mon + 1)),
                                         std::chrono::day(static_cast<unsigned>(time.tm_mday))};
  return std::chrono::sys_days(date);
}

/// True for what breaks a line or turns its direction: controls, separators, bidirectional marks.
bool SteersLine(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0) || (c >= 0x2028 && c <= 0x202E) ||
         (c >= 0x2066 && c <= 0x2069);
}

}  // namespace

std::string ConValori(std::string_view testo, std::initializer_list<std::string_view> valori) {
  std::string filled;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const char digit = testo[i] == '%' && i + 1 < testo.size() ? testo[i + 1] : '0';
    const auto place = static_cast<std::size_t>(digit - '0');
    if (digit >= '1' && digit <= '9' && place <= valori.size()) {
      filled += valori.begin()[place - 1];
      ++i;
    } else {
      filled += testo[i];
    }
  }
  return filled;
}

std::string NomeDelGiorno(Contesto& contesto, std::int64_t giorno) {
  constexpr std::array<const char*, 7> kDays{"0140001", "0140002", "0140003", "0140004",
                                             "0140005", "0140006", "0140007"};
  if (giorno < 1 || giorno > std::ssize(kDays)) return {};
  return TestoLingua(contesto, kDays.at(static_cast<std::size_t>(giorno - 1)));
}

std::string SuUnaRiga(std::string_view testo) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string line;
  while (!testo.empty()) {
    const utf8::Step step = utf8::Next(testo);
    utf8::Append(line, step.Valid && !SteersLine(step.Value) ? step.Value : kReplacement);
    testo.remove_prefix(step.Length);
  }
  return line;
}

std::string QuantitaInParole(std::uint64_t byte, const Locale& locale) {
  constexpr std::array<const char*, 4> kUnits{" KB", " MB", " GB", " TB"};
  constexpr double kStep = 1024;
  constexpr std::size_t kFirstWithDecimal = 2;
  double amount = static_cast<double>(byte) / kStep;
  std::size_t unit = 0;
  while (ArrotondaPari(amount) >= kStep && unit + 1 < kUnits.size()) {
    amount /= kStep;
    ++unit;
  }
  const double grain = unit < kFirstWithDecimal ? 1 : 10;
  return NumberToText(ArrotondaPari(amount * grain) / grain, locale) + kUnits.at(unit);
}

std::string QuandoInParole(Contesto& contesto, std::int64_t secondi) {
  const std::tm then = InOraLocale(secondi);
  const auto days = (DayOf(contesto.Ora.Adesso()) - DayOf(then)).count();
  const std::string time = FormattaMomento(then, " %H:%M");
  if (days == 0) return TestoLinguaO(contesto, "0130020", "today") + time;
  if (days == 1) return TestoLinguaO(contesto, "0130021", "yesterday") + time;
  return FormattaMomento(then, "%Y-%m-%d");
}

std::string Contati(Contesto& contesto, std::size_t quanti, const ParolaContata& parola) {
  const std::string word = quanti == 1 ? TestoLinguaO(contesto, parola.ChiaveUno, parola.Uno)
                                       : TestoLinguaO(contesto, parola.ChiaveMolti, parola.Molti);
  return std::to_string(quanti) + " " + word;
}

}  // namespace kvr5
