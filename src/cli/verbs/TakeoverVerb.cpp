#include <optional>

#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "core/ParoleCopia.h"
#include "projects/ParoleSubentro.h"

namespace kvr5::cli {
namespace {

struct TakeoverArguments {
  std::string Project;
  bool DryRun = false;
};

std::optional<TakeoverArguments> ParseTakeover(const std::vector<std::string>& arguments) {
  TakeoverArguments parsed;
  std::vector<std::string> projects;
  for (const std::string& word : arguments) {
    if (word == "--dry-run") {
      parsed.DryRun = true;
    } else if (word.starts_with("--")) {
      return {};
    } else {
      projects.push_back(word);
    }
  }
  if (projects.size() != 1) return {};
  parsed.Project = projects.front();
  return parsed;
}

/// What became of a database, or would: "taken", "refused", or "kept" where another stood in its
/// way.
std::string_view StateOf(const DatabaseSubentrato& database, const EsitoSubentro& outcome) {
  if (!database.Riuscito()) return "refused";
  if (database.Preso) return "taken";
  return outcome.Fine == FineSubentro::Compiuto ? "taken" : "kept";
}

void Report(Session& session, const EsitoSubentro& outcome) {
  for (const DatabaseSubentrato& each : outcome.Database) {
    const std::string_view state = StateOf(each, outcome);
    const std::string words = SubentroInParole(session.Context(), each);
    if (session.Out().IsJson()) {
      session.Out().Object({{"database", each.Nome},
                            {"state", state},
                            {"files", each.File},
                            {"segments", each.Segmenti},
                            {"why", each.Riuscito() ? Json() : Json(words)}});
    } else {
      session.Out().Line(words);
    }
  }
}

}  // namespace

int RunTakeover(Session& session, const std::vector<std::string>& arguments) {
  const auto parsed = ParseTakeover(arguments);
  if (!parsed) return kUsage;
  if (const int status = session.OpenAsItIs(parsed->Project); status != kDone) return status;
  const Interrupt cancel;
  const EsitoSubentro outcome =
      SubentraNeiDatabase(session.Context(), {parsed->DryRun, [] { return Interrupt::Pressed(); }});
  if (outcome.Fine == FineSubentro::Annullato) {
    session.Out().Say("cancelled; nothing was changed");
    return kRefused;
  }
  Report(session, outcome);
  if (outcome.Fine == FineSubentro::Nulla) {
    session.Out().Say(parsed->Project + ": nothing is to be taken over");
  } else if (outcome.Cambiato()) {
    session.Out().Box(
        "info", "kvr5card",
        "the originals are in " + PercorsoPerPersone(session.Context(), outcome.Originali), "ok");
  }
  if (outcome.SenzaModello) {
    session.Out().Say("the program's file source.mdb is missing");
    return kMissing;
  }
  return outcome.Fine == FineSubentro::Fallito ? kRefused : kDone;
}

}  // namespace kvr5::cli
