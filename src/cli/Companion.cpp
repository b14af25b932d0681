#include "cli/Companion.h"

#include <algorithm>
#include <array>

#include "cli/Options.h"
#include "cli/Session.h"
#include "cli/Status.h"
#include "cli/verbs/Verb.h"

namespace kvr5::cli {
namespace {

std::string UsageOf(const Verb& verb) {
  return "usage: kvr5card [OPTION...] " + std::string(verb.Name) + (verb.Usage.empty() ? "" : " ") +
         std::string(verb.Usage) + "\n";
}

/// The status of a run whose results had to be written: one that was done but can't be told isn't.
int WithOutput(Output& output, int status) {
  if (!output.Failed()) return status;
  output.Say("the results can't be written to standard output");
  return status == kDone ? kRefused : status;
}

std::string Version(bool json) {
  return json ? KVR5_VERSION : "kvr5card " KVR5_VERSION;
}

std::string HelpPage() {
  std::string page =
      "usage: kvr5card [--program DIR] [--lang NAME] [--json] [--yes | --no] VERB ...\n"
      "\n"
      "Prepares memory cards for KVR5 players without a screen.\n"
      "\n"
      "Options, before the verb:\n"
      "  --program DIR  the program's folder (default: where kvr5card lies; as a package\n"
      "                 of the system ~/.local/share/KVR5Software)\n"
      "  --lang NAME    a language of the folder Language\n"
      "  --json         every line of output is one JSON object\n"
      "  --yes, --no    the answer to every question\n"
      "  --help         this page; after a verb, the verb's own\n"
      "  --version\n"
      "\n"
      "Verbs:\n";
  for (const auto& verb : Verbs()) {
    page += "  " + std::string(verb.Name) + " " + std::string(verb.Usage) + "\n";
  }
  page +=
      "\n"
      "Modes of a project: 1 inputs, 2 schedule, 5 to 7 playlists.\n"
      "A PROJECT with a slash, backslash or colon is a folder, anything else a name in the\n"
      "projects folder. Exit status: 0 done, 1 refused or failed, 2 wrong usage, 3 something\n"
      "needed is missing.";
  return page;
}

/// Prints what --help or --version asks for; for programs as the one member of an object.
int Print(bool json, const char* member, const std::string& text) {
  Output output(json);
  if (json) {
    output.Object({{member, text}});
  } else {
    output.Line(text);
  }
  return WithOutput(output, kDone);
}

/// Wrong usage: what is wrong, and the help page, which for programs is part of the message.
int Complain(bool json, const std::string& complaint) {
  Output output(json);
  output.Say(complaint + (json ? "\n" : "\n\n") + HelpPage());
  return kUsage;
}

/// The option of the companion that a word behind the verb is; "" for any other word.
std::string OptionOf(const std::string& word) {
  constexpr std::array<std::string_view, 8> kOptions{"--json", "--yes",  "--no", "--program",
                                                     "--lang", "--help", "-h",   "--version"};
  const auto name = word.substr(0, word.find('='));
  return std::ranges::find(kOptions, name) == kOptions.end() ? std::string() : name;
}

/// The first of the companion's options behind the verb, where they do nothing; "" when none is.
std::string MisplacedOption(const Options& options) {
  for (const auto& word : options.Arguments) {
    if (auto option = OptionOf(word); !option.empty()) return option;
  }
  return {};
}

int RunVerb(const Verb& verb, const Options& options) {
  if (!options.Arguments.empty() &&
      (options.Arguments.front() == "--help" || options.Arguments.front() == "-h")) {
    return Print(options.Json, "help", UsageOf(verb) + "\n" + std::string(verb.Help));
  }
  if (const std::string option = MisplacedOption(options); !option.empty()) {
    Output output(options.Json || option == "--json");
    output.Say(option + ": an option stands before the verb\n" + UsageOf(verb));
    return kUsage;
  }
  Session session(options);
  if (verb.NeedsProgram && !session.Start()) return kMissing;
  const int status = verb.Run(session, options.Arguments);
  if (status == kUsage) session.Out().Say(UsageOf(verb) + "\n" + std::string(verb.Help));
  return WithOutput(session.Out(), status);
}

}  // namespace

int Run(const std::vector<std::string>& arguments) {
  std::string complaint;
  const auto options = ParseOptions(arguments, complaint);
  if (!options) {
    const bool json = std::find(arguments.begin(), arguments.end(), "--json") != arguments.end();
    return Complain(json, complaint);
  }
  if (options->Version) return Print(options->Json, "version", Version(options->Json));
  if (options->Help) return Print(options->Json, "help", HelpPage());
  const auto verbs = Verbs();
  const auto verb = std::find_if(verbs.begin(), verbs.end(),
                                 [&](const Verb& each) { return each.Name == options->Verb; });
  if (verb == verbs.end()) {
    return Complain(options->Json, "unknown verb " + options->Verb);
  }
  return RunVerb(*verb, *options);
}

}  // namespace kvr5::cli
