#include <cctype>

#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "flashcard/Registrazione.h"
#include "platform/FileOps.h"
#include "platform/Path.h"

namespace kvr5::cli {
namespace {

/// The card is on the command line: there is nothing to choose, and any folder will do.
class NoChoice : public SelezioneFlash {
 public:
  void Scegli() override {}
  bool Presente() const override { return true; }
};

/// A card given as a letter: "E:", "E:\\" or "E" in either case; '\0' for anything else.
char LetterGiven(const std::string& card) {
  const bool letter =
      (card.size() == 1 && std::isalpha(static_cast<unsigned char>(card[0])) != 0) ||
      (card.size() == 2 && card[1] == ':') || (card.size() == 3 && card.ends_with(":\\"));
  return letter ? static_cast<char>(std::toupper(static_cast<unsigned char>(card[0]))) : '\0';
}

/// The root of a card that was given as the letter of a removable drive or as a folder; "" where it
/// can't be one. A letter means a drive that the card dialog would offer, never the host's root.
std::string CardRoot(Session& session, const std::string& card) {
  const auto folder = session.Context().Files.SystemPath(card);
  std::string root = folder && !card.empty() ? AggiungiBarra(folder.Value()) : std::string();
  const char letter = LetterGiven(card);
  const bool bare = card.size() == 1;  // may be a folder's name as well
  if (letter == '\0' || (bare && FolderExists(session.Context().Files, root))) return root;
  for (const auto& drive : session.ListDrives()) {
    if (drive.Letter == letter) return drive.Root();
  }
  return bare ? root : std::string();
}

EsitoRegistrazione RecordOnto(Session& session, TabellaIngressi& inputs, const std::string& root) {
  auto& context = session.Context();
  context.Stato.PercorsoMemoryCard = root;
  TerminalProgress progress(context, session.Line());
  session.Events().Watch(&progress);
  NoChoice choice;
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
    session.Out().Line(card + (card.ends_with(':') ? " " : ": ") + std::to_string(outcome.File) +
                       " files, " + std::to_string(outcome.Byte) + " bytes");
  }
  return good;
}

EsitoRegistrazione Record(Session& session, TabellaIngressi& inputs, const std::string& card) {
  const std::string root = CardRoot(session, card);
  if (!root.empty()) return RecordOnto(session, inputs, root);
  session.Out().Say(card + ": there is no such card");
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
    cancelled = outcome.Fine == FineRegistrazione::Annullata;
    all = Report(session, arguments[i], outcome) && all;
  }
  return all ? kDone : kRefused;
}

}  // namespace kvr5::cli
