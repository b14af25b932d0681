#include "cli/verbs/Verb.h"
#include "core/ParoleCopia.h"
#include "playerconfig/LayoutHub.h"
#include "playerconfig/TabellaIngressi.h"
#include "reports/ReportProgetto.h"

namespace kvr5::cli {

int RunReport(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() != 1) return kUsage;
  if (const int status = session.OpenProject(arguments.front()); status != kDone) return status;
  auto& context = session.Context();
  const auto& state = context.Stato;
  TabellaIngressi inputs(context);
  if (!TabellaIngressi::SenzaIngressi(state.PlayerType, state.PlayerMode)) inputs.Apri();
  const bool analyzer =
      LayoutDelHub(state.PlayerType, state.PlayerMode, state.UsaPlayerEsterno).fraAnalyzer;
  context.Errore.Clear();
  ScriviReportProgetto(context, {&inputs.Cursore(), analyzer});
  const std::string path = PercorsoPerPersone(context, state.FileReport);
  if (context.Errore) {
    session.Out().Say(path + ": " + context.Errore.Last().Description());
    return kRefused;
  }
  if (session.Out().IsJson()) {
    session.Out().Object({{"report", path}});
  } else {
    session.Out().Line(path);
  }
  return kDone;
}

}  // namespace kvr5::cli
