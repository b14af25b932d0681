#include "cli/Options.h"

namespace kvr5::cli {
namespace {

/// An option with a value, as "--name value" or "--name=value"; moves `i` over the value.
bool TakeValue(const std::vector<std::string>& arguments, std::size_t& i, const std::string& name,
               std::string& value, std::string& complaint) {
  const std::string& word = arguments[i];
  if (word.starts_with(name + "=")) {
    value = word.substr(name.size() + 1);
  } else if (word != name) {
    return false;
  } else if (i + 1 < arguments.size()) {
    value = arguments[++i];
  }
  if (value.empty()) complaint = "option " + name + " needs a value";
  return true;
}

bool TakeFlag(const std::string& word, Options& options) {
  if (word == "--json") {
    options.Json = true;
  } else if (word == "--yes") {
    options.Answer = FixedAnswer::Yes;
  } else if (word == "--no") {
    options.Answer = FixedAnswer::No;
  } else if (word == "--help" || word == "-h") {
    options.Help = true;
  } else if (word == "--version") {
    options.Version = true;
  } else {
    return false;
  }
  return true;
}

}  // namespace

std::optional<Options> ParseOptions(const std::vector<std::string>& arguments,
                                    std::string& complaint) {
  Options options;
  bool yes = false;
  bool no = false;
  std::size_t i = 0;
  for (; i < arguments.size() && arguments[i].starts_with("-"); ++i) {
    const std::string& word = arguments[i];
    yes = yes || word == "--yes";
    no = no || word == "--no";
    if (TakeFlag(word, options) ||
        TakeValue(arguments, i, "--program", options.Program, complaint) ||
        TakeValue(arguments, i, "--lang", options.Language, complaint)) {
      if (!complaint.empty()) return {};
      continue;
    }
    complaint = "unknown option " + word;
    return {};
  }
  if (yes && no) {
    complaint = "--yes and --no exclude each other";
    return {};
  }
  if (i < arguments.size()) options.Verb = arguments[i++];
  options.Arguments.assign(arguments.begin() + static_cast<std::ptrdiff_t>(i), arguments.end());
  if (options.Verb.empty() && !options.Help && !options.Version) {
    complaint = "a verb is missing";
    return {};
  }
  return options;
}

}  // namespace kvr5::cli
