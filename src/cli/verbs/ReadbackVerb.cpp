#include <optional>

#include "cli/CardGiven.h"
#include "cli/Interrupt.h"
#include "cli/verbs/Verb.h"
#include "core/ParoleCopia.h"
#include "platform/FileOps.h"
#include "playerconfig/RientroDaScheda.h"
#include "projects/ApriProgetto.h"
#include "projects/CaricaDaFlash.h"
#include "projects/NuovoProgetto.h"
#include "projects/Subentro.h"

namespace kvr5::cli {
namespace {

struct ReadbackArguments {
  std::string Card;
  std::optional<std::string> Name;
};

std::optional<ReadbackArguments> ParseReadback(const std::vector<std::string>& arguments) {
  constexpr std::string_view kName = "--name";
  ReadbackArguments parsed;
  bool hasCard = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (word.starts_with("--name=")) {
      parsed.Name = word.substr(kName.size() + 1);
    } else if (word == kName) {
      if (++i == arguments.size()) return {};
      parsed.Name = arguments[i];
    } else if (hasCard || word.starts_with("--")) {
      return {};
    } else {
      parsed.Card = word;
      hasCard = true;
    }
  }
  if (!hasCard) return {};
  return parsed;
}

/// The name dialog is answered once, by the option; without it, it is left.
class NameGiven : public SchermoLettura {
 public:
  NameGiven(Session& session, const std::optional<std::string>& name)
      : session_(session), name_(name) {}

  void ChiediNome(const std::string& nome) override {
    auto& context = session_.Context();
    if (!name_) {
      session_.Out().Say(nome + ": a project has this name; --name gives another one");
      return;
    }
    const EsitoNuovo outcome = PreparaCartella(context, *name_, true);
    if (outcome == EsitoNuovo::CarattereVietato) {
      session_.Out().Say(NotaCaratteriVietati(context, " "));  // the note that the screen shows
    }
    if (outcome != EsitoNuovo::SoloNome) context.Stato.ProjectName.clear();
  }
  void Disabilita() override {}
  void Riabilita() override {}

 private:
  Session& session_;
  const std::optional<std::string>& name_;
};

int StatusOf(FineLettura end) {
  switch (end) {
    case FineLettura::Copiata:
      return kDone;
    case FineLettura::SenzaDescrittore:
    case FineLettura::SenzaNome:
      return kMissing;
    default:
      return kRefused;
  }
}

/// Opens the copy as the hub does. 0, or the status to end with (told).
int Open(Session& session, const std::string& folder) {
  auto& context = session.Context();
  if (ApriProgetto(context, folder) != EsitoApertura::Aperto) return kMissing;
  const FineSubentro takeover = SubentraEDillo(context);
  TabellaIngressi inputs(context);
  inputs.ApriSeCiSono();
  RientroDaScheda(context, inputs);
  return takeover == FineSubentro::Fallito ? kRefused : kDone;
}

void Report(Session& session, const std::string& folder) {
  const std::string shown = PercorsoPerPersone(session.Context(), folder);
  if (session.Out().IsJson()) {
    session.Out().Object({{"project", shown}});
  } else {
    session.Out().Line(shown);
  }
}

}  // namespace

int RunReadback(Session& session, const std::vector<std::string>& arguments) {
  const auto parsed = ParseReadback(arguments);
  if (!parsed) return kUsage;
  auto& context = session.Context();
  const std::string root = CardRoot(session, parsed->Card);
  if (root.empty() || !FolderExists(context.Files, root)) {
    return NoSuchCard(session, parsed->Card);
  }
  const Interrupt cancel;
  CardGiven card(context, root);
  NameGiven screen(session, parsed->Name);
  TerminalProgress progress(context, session.Line());
  session.Copy().TakeFailure();
  const EsitoLettura outcome = CaricaDaFlash(context, card, screen, progress);
  session.Line().Clear();
  if (outcome.Fine == FineLettura::SchedaVuota) {
    session.Out().Say(
        OfCard(parsed->Card, "no file is on the card any more; the folder stays empty"));
  }
  if (const int status = StatusOf(outcome.Fine); status != kDone) return status;
  const bool copied = !session.Copy().TakeFailure();
  AvvisaLasciati(context, outcome);
  const int status = Open(session, outcome.Cartella);
  if (status != kMissing) Report(session, outcome.Cartella);
  if (!copied) return kRefused;  // what opening lacked, it lacked for that
  return status == kDone && !outcome.Lasciati.empty() ? kRefused : status;
}

}  // namespace kvr5::cli
