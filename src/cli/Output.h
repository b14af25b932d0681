#pragma once

#include <cstdio>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "core/Dialoghi.h"

namespace kvr5::cli {

using Json = nlohmann::ordered_json;

/// The two streams of the companion. Results go to standard output, all that is said to the user
/// to standard error; both are UTF-8 whatever the locale. With --json every line is an object.
///
/// On a terminal a control character, which a file's name may hold, is shown as U+FFFD: nothing
/// that a card or a list brings along may steer it.
class Output {
 public:
  explicit Output(bool json);

  bool IsJson() const { return json_; }
  /// True when results are read on a terminal.
  bool OnTerminal() const { return resultsOnTerminal_; }
  /// True once a line of the result could not be written, as on a full disk.
  bool Failed() const { return failed_; }
  /// A line of the result, for people.
  void Line(std::string_view text);
  /// A line of the result, for programs.
  void Object(const Json& object);
  /// A box: "title: text", or an object with the answer that it got.
  void Box(std::string_view kind, std::string_view title, std::string_view text,
           std::string_view answer);
  /// Why a command of an editing session changed nothing.
  void Refused(std::string_view line, std::string_view why);
  /// Something that is said beside the boxes.
  void Say(std::string_view text) { Box("warning", "kvr5card", text, "ok"); }

 private:
  void Result(const std::string& line);
  void Told(const std::string& line);

  bool json_;
  bool resultsOnTerminal_;
  bool boxesOnTerminal_;
  bool failed_ = false;
};

}  // namespace kvr5::cli
