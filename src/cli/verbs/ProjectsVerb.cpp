#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "core/ParoleCopia.h"
#include "platform/FileOps.h"
#include "projects/CartellaProgetto.h"

namespace kvr5::cli {

int RunProjects(Session& session, const std::vector<std::string>& arguments) {
  if (!arguments.empty()) return kUsage;
  auto& context = session.Context();
  const auto folders = context.Files.List(context.Stato.CartellaProgetti);
  if (!folders && FolderExists(context.Files, context.Stato.CartellaProgetti)) {
    session.Out().Say(PercorsoPerPersone(context, context.Stato.CartellaProgetti) + ": " +
                      folders.Err().Description());
    return kRefused;
  }
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
