#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "core/ParoleCopia.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/Path.h"
#include "projects/ParoleRitrovo.h"

namespace kvr5::cli {
namespace {

/// Shows where the search is, and has Ctrl-C end it.
class WithInterrupt : public OsservatoreRitrovo {
 public:
  explicit WithInterrupt(Session& session) : session_(session) {}
  bool Avanza(const std::string& cartella) override {
    if (session_.Line().IsActive()) {
      session_.Line().Show(PercorsoPerPersone(session_.Context(), cartella));
    }
    return !Interrupt::Pressed();
  }

 private:
  Session& session_;
};

std::string_view StateOf(const RigaRitrovata& row) {
  return !row.Ora.empty() ? "found" : row.Dubbia ? "several" : "missing";
}

void Report(Session& session, const RigaRitrovata& row) {
  const std::string_view state = StateOf(row);
  const std::string& folder = row.Ora.empty() ? row.Prima : row.Ora;
  // Some rows name the file itself in place of its folder.
  const bool whole = EqualFold(LastName(folder), row.Nome);
  const std::string place =
      PercorsoPerPersone(session.Context(), whole ? folder : AggiungiBarra(folder) + row.Nome);
  if (session.Out().IsJson()) {
    session.Out().Object({{"database", row.Database},
                          {"ID", row.Id},
                          {"file", row.Nome},
                          {"state", state},
                          {"path", row.Ora.empty() ? Json() : Json(place)}});
  } else {
    session.Out().Line(std::string(state) + ": " + place);
  }
}

}  // namespace

int RunRelocate(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() != 2) return kUsage;
  if (const int status = session.OpenProject(arguments[0]); status != kDone) return status;
  auto& context = session.Context();
  const auto folder = context.Files.SystemPath(arguments[1]);
  if (!folder || !FolderExists(context.Files, folder.Value())) {
    session.Out().Say(arguments[1] + ": there is no such folder");
    return kRefused;
  }
  const Interrupt cancel;
  WithInterrupt observer(session);
  const EsitoRitrovo outcome = RitrovaFile(context, folder.Value(), observer);
  session.Line().Clear();
  if (outcome.Annullato) {
    session.Out().Say("cancelled; nothing was changed");
    return kRefused;
  }
  for (const RigaRitrovata& row : outcome.Righe) Report(session, row);
  if (outcome.Causa) session.Out().Say(outcome.Causa.Description());
  const bool whole = !outcome.Causa && outcome.Trovati() == outcome.Righe.size();
  return whole ? kDone : kRefused;
}

}  // namespace kvr5::cli
