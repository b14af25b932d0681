#include <algorithm>

#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "playerconfig/LayoutHub.h"
#include "playerconfig/Salvataggio.h"

namespace kvr5::cli {
namespace {

constexpr std::string_view kCopyInputs = "--copy-inputs";

/// The box is ticked by an option, and nothing is asked.
class AnsweredBefore : public DomandaSalva {
 public:
  AnsweredBefore(Contesto& context, bool copies) : context_(context), copies_(copies) {}
  bool Annulla() override {
    context_.Stato.SalvaMp3Ingressi = copies_;
    return false;
  }

 private:
  Contesto& context_;
  bool copies_;
};

FineSalvataggio Save(Session& session, bool copies) {
  auto& context = session.Context();
  const auto& state = context.Stato;
  ControlliHub controls;
  controls.Leggi(context);
  TabellaIngressi inputs(context);
  inputs.ApriSeCiSono();
  const bool analyzer =
      LayoutDelHub(state.PlayerType, state.PlayerMode, state.UsaPlayerEsterno).fraAnalyzer;
  TerminalProgress progress(context, session.Line());
  AnsweredBefore question(context, copies);
  session.Events().Watch(&progress);
  const auto end = SalvaConfigurazione(context, {controls, inputs, analyzer}, progress, question);
  session.Events().Watch(nullptr);
  session.Line().Clear();
  return end;
}

}  // namespace

int RunSave(Session& session, const std::vector<std::string>& arguments) {
  std::vector<std::string> words = arguments;
  const bool copies = std::erase(words, kCopyInputs) > 0;
  if (words.size() != 1 || words.front().starts_with("--")) return kUsage;
  if (const int status = session.OpenProject(words.front()); status != kDone) return status;
  if (!session.CanRead("Config.txt")) return kRefused;
  const Interrupt cancel;
  session.Copy().TakeFailure();
  const bool done = Save(session, copies) == FineSalvataggio::Compiuto;
  return done && !session.Copy().TakeFailure() ? kDone : kRefused;
}

}  // namespace kvr5::cli
