#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "core/ParoleCopia.h"
#include "projects/CartellaProgetto.h"

namespace kvr5::cli {

int RunProjects(Session& session, const std::vector<std::string>& arguments) {
  if (!arguments.empty()) return kUsage;
  auto& context = session.Context();
  for (const auto& name : ElencoProgetti(context)) {
    const std::string folder =
        PercorsoPerPersone(context, AggiungiBarra(context.Stato.CartellaProgetti) + name);
    if (session.Out().IsJson()) {
      session.Out().Object({{"name", name}, {"folder", folder}});
    } else {
      session.Out().Line(name);
    }
  }
  return kDone;
}

}  // namespace kvr5::cli
