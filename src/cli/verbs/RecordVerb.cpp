#include "cli/CardGiven.h"
#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "flashcard/Registrazione.h"

namespace kvr5::cli {
namespace {

EsitoRegistrazione RecordOnto(Session& session, TabellaIngressi& inputs, const std::string& root) {
  auto& context = session.Context();
  TerminalProgress progress(context, session.Line());
  session.Events().Watch(&progress);
  CardGiven choice(context, root);
  choice.Scegli();
  auto outcome = RegistraProgettoSuFlash(context, inputs, progress, choice);
  session.Events().Watch(nullptr);
  session.Line().Clear();
  return outcome;
}

/// Tells how a card ended. False when anything of it is missing.
bool Report(Session& session, const std::string& card, const EsitoRegistrazione& outcome) {
  for (const auto& database : outcome.NonLetti) {
    session.Out().Say(std::string(database).append(" can't be read: its files are not on ") +=
                      card);
  }
  const bool good = outcome.Fine == FineRegistrazione::Compiuta && outcome.NonLetti.empty() &&
                    !session.Copy().TakeFailure();
  if (session.Out().IsJson()) {
    session.Out().Object({{"card", card},
                          {"files", outcome.File},
                          {"bytes", outcome.Byte},
                          {"status", good ? kDone : kRefused}});
  } else if (good) {
    session.Out().Line(OfCard(
        card, std::to_string(outcome.File) + " files, " + std::to_string(outcome.Byte) + " bytes"));
  } else if (!outcome.NonLetti.empty() || outcome.Fine != FineRegistrazione::SenzaScheda) {
    session.Out().Say(OfCard(card, "not recorded whole"));
  }
  return good;
}

EsitoRegistrazione Record(Session& session, TabellaIngressi& inputs, const std::string& card) {
  const std::string root = CardRoot(session, card);
  if (!root.empty()) return RecordOnto(session, inputs, root);
  NoSuchCard(session, card);
  return {FineRegistrazione::SenzaScheda};
}

}  // namespace

int RunRecord(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() < 2) return kUsage;
  if (const int status = session.OpenProject(arguments[0]); status != kDone) return status;
  auto& context = session.Context();
  const Interrupt cancel;
  TabellaIngressi inputs(context);
  inputs.ApriSeCiSono();
  bool all = true;
  bool cancelled = false;
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    session.Copy().TakeFailure();
    // Who stops the work doesn't mean one card of many: those that are left are not begun.
    const auto outcome = cancelled ? EsitoRegistrazione{FineRegistrazione::Annullata}
                                   : Record(session, inputs, arguments[i]);
    // Where a file is missing the routine ends before it looks at the cancel; and a press may come
    // after its last look.
    cancelled = outcome.Fine == FineRegistrazione::Annullata || context.Stato.AnnullatoDaUtente ||
                Interrupt::Pressed();
    all = Report(session, arguments[i], outcome) && all;
  }
  return all ? kDone : kRefused;
}

}  // namespace kvr5::cli
