#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Interrupt.h"
#include "cli/Session.h"

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

  Session& session_;

 private:
  /// Stands from before the working copy is made until it is gone again.
  const Interrupt interrupt_;
  Outcome RunLine(const std::string& line);

  std::string line_;
};

/// The words of a line: divided by blanks, which double quotes around a word or a part of it keep.
/// Nothing is escaped. Nothing comes back for a quote that isn't closed.
std::optional<std::vector<std::string>> WordsOf(std::string_view line);

/// Whether a word is a whole number, of whatever size; a sign may stand before it.
bool IsWholeNumber(std::string_view word);

/// A whole number of digits alone, at most `highest`.
std::optional<std::uint32_t> NumberOf(std::string_view word, std::uint32_t highest);

}  // namespace kvr5::cli
