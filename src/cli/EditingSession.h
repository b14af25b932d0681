#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Interrupt.h"
#include "cli/Session.h"
#include "core/FinestraProgresso.h"
#include "platform/db/Recordset.h"

namespace kvr5::cli {

/// What came of a command of an editing session.
enum class Outcome {
  Done,
  Refused,  ///< told; the session goes on
  Unknown,  ///< no such command, or with the wrong number or kind of words: ends it unsaved
  Saved,    ///< ends it
  Failed,   ///< ends it: saved, but a copy failed (told) or was cancelled on the way
  Left,     ///< ends it unsaved
};

/// The commands of an editor, which read standard input a line at a time.
class EditingCommands {
 public:
  explicit EditingCommands(Session& session) : session_(session) {}
  virtual ~EditingCommands() = default;
  EditingCommands(const EditingCommands&) = delete;
  EditingCommands& operator=(const EditingCommands&) = delete;

  /// Runs the session; its exit status.
  int RunAll();

 protected:
  /// Runs a command of at least one word; "yes", "no" and "cancel" are done already.
  virtual Outcome Run(const std::vector<std::string>& words) = 0;
  /// Says why the current command is refused, in one line.
  Outcome Refuse(const std::string& why);
  /// Runs the save of an editor, with the terminal's progress; how that ends the session.
  Outcome SaveBy(const std::function<void(FinestraProgresso&)>& save);

  Session& session_;

 private:
  /// Stands from before the working copy is made until it is gone again.
  const Interrupt interrupt_;
  Outcome RunLine(const std::string& line);

  std::string line_;
};

/// A command, of one word or two with a blank between, how many words may follow it, and what runs
/// it.
template <typename Editing>
struct EditingCommand {
  std::string_view Name;
  std::size_t Least, Most;
  Outcome (Editing::*Do)(const std::vector<std::string>& words);
};

/// Runs the command that the words begin with; Unknown where there is none, or where the number of
/// words isn't right.
template <typename Editing, std::size_t N>
Outcome RunCommand(Editing& editing, const std::array<EditingCommand<Editing>, N>& commands,
                   const std::vector<std::string>& words) {
  for (const auto& each : commands) {
    const bool two = each.Name.find(' ') != std::string_view::npos;
    if (two && words.size() < 2) continue;
    if (each.Name != (two ? words[0] + " " + words[1] : words[0])) continue;
    const std::size_t follow = words.size() - (two ? 2 : 1);
    if (follow < each.Least || follow > each.Most) return Outcome::Unknown;
    return (editing.*each.Do)(words);
  }
  return Outcome::Unknown;
}

/// A column of the current row as JSON shows it: null, a number or a text.
Json ValueOf(const Recordset& rows, const char* column);

/// The words of a line: divided by blanks, which double quotes around a word or a part of it keep.
/// Nothing is escaped. Nothing comes back for a quote that isn't closed.
std::optional<std::vector<std::string>> WordsOf(std::string_view line);

/// Whether a word is a whole number, of whatever size; a sign may stand before it.
bool IsWholeNumber(std::string_view word);

/// The highest number that a command takes where nothing else limits it.
inline constexpr std::uint32_t kHighestNumber = 2147483647;

/// A whole number of digits alone, at most `highest`.
std::optional<std::uint32_t> NumberOf(std::string_view word, std::uint32_t highest);

}  // namespace kvr5::cli
