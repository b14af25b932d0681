#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kvr5::cli {

/// The answer that --yes or --no gives to every question.
enum class FixedAnswer { None, Yes, No };

/// The command line, divided: the options before the verb, the verb, and what follows it.
struct Options {
  std::string Program;   ///< --program; "" means the executable's own folder
  std::string Language;  ///< --lang; "" means the setting or the locale
  bool Json = false;
  FixedAnswer Answer = FixedAnswer::None;
  bool Help = false;
  bool Version = false;
  std::string Verb;
  std::vector<std::string> Arguments;
};

/// Reads the arguments; on wrong ones returns nothing and sets `complaint`.
std::optional<Options> ParseOptions(const std::vector<std::string>& arguments,
                                    std::string& complaint);

}  // namespace kvr5::cli
