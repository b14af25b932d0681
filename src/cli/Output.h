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
class Output {
 public:
  explicit Output(bool json) : json_(json) {}

  bool IsJson() const { return json_; }
  /// A line of the result, for people.
  void Line(std::string_view text);
  /// A line of the result, for programs.
  void Object(const Json& object);
  /// A box: "title: text", or an object with the answer that it got.
  void Box(std::string_view kind, std::string_view title, std::string_view text,
           std::string_view answer);
  /// Something that is said beside the boxes.
  void Say(std::string_view text) { Box("warning", "kvr5card", text, "ok"); }

 private:
  bool json_;
};

}  // namespace kvr5::cli
