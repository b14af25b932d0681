#include "cli/Companion.h"

#include <algorithm>
#include <cstdio>

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

std::string HelpPage() {
  std::string page =
      "usage: kvr5card [--program DIR] [--lang NAME] [--json] [--yes | --no] VERB ...\n"
      "\n"
      "Prepares memory cards for KVR5 players without a screen.\n"
      "\n"
      "Options, before the verb:\n"
      "  --program DIR  the program's folder (default: where kvr5card lies)\n"
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
      "A PROJECT with a slash, backslash or colon is a folder, anything else a name in the\n"
      "projects folder. Exit status: 0 done, 1 refused or failed, 2 wrong usage, 3 something\n"
      "needed is missing.\n";
  return page;
}

void Print(std::FILE* stream, const std::string& text) {
  std::fputs(text.c_str(), stream);
}

/// Wrong usage: what is wrong, and the help page, which for programs is part of the message.
int Complain(bool json, const std::string& complaint) {
  Output output(json);
  output.Say(complaint + (json ? "\n" : "\n\n") + HelpPage());
  return kUsage;
}

int RunVerb(const Verb& verb, const Options& options) {
  if (!options.Arguments.empty() && options.Arguments.front() == "--help") {
    Print(stdout, UsageOf(verb) + "\n" + std::string(verb.Help) + "\n");
    return kDone;
  }
  Session session(options);
  if (verb.NeedsProgram && !session.Start()) return kMissing;
  const int status = verb.Run(session, options.Arguments);
  if (status == kUsage) session.Out().Say(UsageOf(verb) + "\n" + std::string(verb.Help));
  if (!session.Out().Failed()) return status;
  session.Out().Say("the results can't be written to standard output");
  return status == kDone ? kRefused : status;
}

}  // namespace

int Run(const std::vector<std::string>& arguments) {
  std::string complaint;
  const auto options = ParseOptions(arguments, complaint);
  if (!options) {
    const bool json = std::find(arguments.begin(), arguments.end(), "--json") != arguments.end();
    return Complain(json, complaint);
  }
  if (options->Version) {
    Print(stdout, "kvr5card " KVR5_VERSION "\n");
    return kDone;
  }
  if (options->Help) {
    Print(stdout, HelpPage());
    return kDone;
  }
  const auto verbs = Verbs();
  const auto verb = std::find_if(verbs.begin(), verbs.end(),
                                 [&](const Verb& each) { return each.Name == options->Verb; });
  if (verb == verbs.end()) {
    return Complain(options->Json, "unknown verb " + options->Verb);
  }
  return RunVerb(*verb, *options);
}

}  // namespace kvr5::cli
