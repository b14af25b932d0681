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
  const bool analyzer =
      LayoutDelHub(state.PlayerType, state.PlayerMode, state.UsaPlayerEsterno).fraAnalyzer;
  context.Errore.Clear();
  inputs.RiapriRighe();
  ScriviReportProgetto(context, {&inputs.Cursore(), analyzer});
  const std::string path = PercorsoPerPersone(context, state.FileReport);
  const std::string why = context.Errore.Last().Description();
  if (!state.ReportIntero) {
    session.Out().Say((path.empty() ? state.ProjectName : path) + ": " + why);
    return kRefused;
  }
  if (session.Out().IsJson()) {
    session.Out().Object({{"report", path}});
  } else {
    session.Out().Line(path);
  }
  if (!context.Errore) return kDone;
  session.Out().Say("the report is written, but a step of it failed: " + why);
  return kRefused;
}

}  // namespace kvr5::cli
