#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "flashcard/Registrazione.h"
#include "platform/Path.h"

namespace kvr5::cli {
namespace {

/// The card is on the command line; there is nothing to choose.
class NoChoice : public SelezioneFlash {
 public:
  void Scegli() override {}
};

/// The root of a card that was given as a drive letter or as a folder; "" for a name that can't
/// be one.
std::string CardRoot(Session& session, const std::string& card) {
  session.ListDrives();  // binds the letters
  if (card.size() == 2 && card[1] == ':') return card + "\\";
  const auto folder = session.Context().Files.SystemPath(card);
  return folder ? AggiungiBarra(folder.Value()) : std::string();
}

bool Record(Session& session, TabellaIngressi& inputs, const std::string& card) {
  auto& context = session.Context();
  context.Stato.PercorsoMemoryCard = CardRoot(session, card);
  if (context.Stato.PercorsoMemoryCard.empty()) {
    session.Out().Say(card + ": this is no card");
    return false;
  }
  TerminalProgress progress(context, session.Line());
  session.Events().Watch(&progress);
  NoChoice choice;
  const Interrupt cancel;
  const auto outcome = RegistraProgettoSuFlash(context, inputs, progress, choice);
  session.Events().Watch(nullptr);
  session.Line().Clear();
  const bool good = outcome.Fine == FineRegistrazione::Compiuta && !session.Copy().TakeFailure();
  if (session.Out().IsJson()) {
    session.Out().Object({{"card", card},
                          {"files", outcome.File},
                          {"bytes", outcome.Byte},
                          {"status", good ? kDone : kRefused}});
  } else if (good) {
    session.Out().Line(card + ": " + std::to_string(outcome.File) + " files, " +
                       std::to_string(outcome.Byte) + " bytes");
  }
  return good;
}

}  // namespace

int RunRecord(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() < 2) return kUsage;
  if (const int status = session.OpenProject(arguments[0]); status != kDone) return status;
  auto& context = session.Context();
  TabellaIngressi inputs(context);
  if (!TabellaIngressi::SenzaIngressi(context.Stato.PlayerType, context.Stato.PlayerMode)) {
    inputs.Apri();
  }
  bool all = true;
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    session.Copy().TakeFailure();
    all = Record(session, inputs, arguments[i]) && all;
  }
  return all ? kDone : kRefused;
}

}  // namespace kvr5::cli
