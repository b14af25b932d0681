#include "cli/verbs/Verb.h"
#include "core/Parole.h"
#include "flashcard/ElencoSchede.h"
#include "flashcard/FattiScheda.h"

namespace kvr5::cli {
namespace {

Json ObjectOf(const SchedaTrovata& card) {
  const Drive facts = card.Fatti.value_or(Drive{});
  return {{"letter", card.Radice.substr(0, 2)},
          {"label", facts.Label},
          {"filesystem", facts.FileSystem},
          {"size", facts.Size},
          {"free", facts.Free},
          {"mount", facts.Mount},
          {"readonly", facts.ReadOnly}};
}

std::string LineOf(Contesto& context, const SchedaTrovata& card) {
  const std::string letter = card.Radice.substr(0, 2);
  return card.Fatti ? letter + " " + FattiScheda(context, *card.Fatti) : letter;
}

}  // namespace

int RunCards(Session& session, const std::vector<std::string>& arguments) {
  if (!arguments.empty()) return kUsage;
  auto& context = session.Context();
  DriveDelComputer drives(session.AllDrives(), context.Files);
  ElencoSchede list(context, drives);
  list.Cerca();
  for (const auto& card : list.Schede()) {
    if (session.Out().IsJson()) {
      session.Out().Object(ObjectOf(card));
    } else {
      session.Out().Line(LineOf(context, card));
    }
  }
  return kDone;
}

}  // namespace kvr5::cli
