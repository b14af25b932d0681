#include "cli/EditingSession.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "cli/InputLines.h"
#include "cli/Status.h"

namespace kvr5::cli {

int EditingCommands::RunAll() {
  session_.SetAnswer(session_.GivenAnswer());  // standard input is the commands'
  constexpr std::size_t kLongestCommand = std::size_t{16} << 20U;  // many files in one
  InputLines input(kLongestCommand);
  bool first = true;
  bool pressed = Interrupt::Pressed();
  while (!pressed && input.Next(line_)) {
    if (input.WasCut()) return kUsage;
    constexpr std::string_view kMark = "\xEF\xBB\xBF";  // of UTF-8, as some editors write it
    if (std::exchange(first, false) && line_.starts_with(kMark)) line_.erase(0, kMark.size());
    switch (RunLine(line_)) {
      case Outcome::Done:
      case Outcome::Refused:
        break;
      case Outcome::Unknown:
        return kUsage;
      case Outcome::Failed:
        return kRefused;
      case Outcome::Saved:
      case Outcome::Left:
        return kDone;
    }
    pressed = Interrupt::Pressed();
  }
  return input.Failed() || pressed || Interrupt::Pressed() ? kRefused : kDone;
}

Outcome EditingCommands::RunLine(const std::string& line) {
  const auto words = WordsOf(line);
  if (!words) return Outcome::Unknown;
  if (words->empty()) return Outcome::Done;
  const std::string& command = words->front();
  if (words->size() == 1 && (command == "yes" || command == "no")) {
    session_.SetAnswer(command == "yes" ? FixedAnswer::Yes : FixedAnswer::No);
    return Outcome::Done;
  }
  if (words->size() == 1 && command == "cancel") return Outcome::Left;
  return Run(*words);
}

Outcome EditingCommands::Refuse(const std::string& why) {
  session_.Line().Clear();
  session_.Out().Refused(line_, why);
  return Outcome::Refused;
}

Outcome EditingCommands::SaveBy(const std::function<void(FinestraProgresso&)>& save) {
  TerminalProgress progress(session_.Context(), session_.Line());
  session_.Events().Watch(&progress);
  session_.Copy().TakeFailure();
  save(progress);
  session_.Events().Watch(nullptr);
  session_.Line().Clear();
  const bool cancelled = session_.Context().Stato.AnnullatoDaUtente;
  return session_.Copy().TakeFailure() || cancelled ? Outcome::Failed : Outcome::Saved;
}

Json ValueOf(const Recordset& rows, const char* column) {
  const auto value = rows.Get(column);
  if (!value || std::holds_alternative<std::monostate>(value.Value())) return nullptr;
  if (const auto* number = std::get_if<std::int64_t>(&value.Value())) return *number;
  return rows.Text(column);
}

std::optional<std::vector<std::string>> WordsOf(std::string_view line) {
  std::vector<std::string> words;
  bool quoted = false;
  bool inWord = false;
  for (const char c : line) {
    if (c == ' ' && !quoted) {
      inWord = false;
      continue;
    }
    if (!inWord) words.emplace_back();
    inWord = true;
    if (c == '"') {
      quoted = !quoted;
    } else {
      words.back() += c;
    }
  }
  if (quoted) return {};
  return words;
}

bool IsWholeNumber(std::string_view word) {
  if (word.starts_with('-')) word.remove_prefix(1);
  return !word.empty() && word.find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<std::uint32_t> NumberOf(std::string_view word, std::uint32_t highest) {
  std::uint32_t number = 0;
  const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool digits = !word.empty() && end == word.data() + word.size();
  if (failure != std::errc() || !digits || number > highest) return {};
  return number;
}

}  // namespace kvr5::cli
