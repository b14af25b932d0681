#include <utility>

#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "playerconfig/ConfigTxt.h"
#include "playerconfig/Parametri.h"

namespace kvr5::cli {
namespace {

using Change = std::pair<const Parametro*, std::string>;

void Print(Session& session, const Parametro& parameter) {
  auto& context = session.Context();
  const std::string value = LeggiChiaveConfig(context, parameter.Chiave);
  const std::string shown = ParoleDelValore(
      context, parameter, DalFile(parameter, value, StatoIniziale(parameter), context.Luogo));
  if (session.Out().IsJson()) {
    session.Out().Object({{"key", parameter.Chiave}, {"value", value}, {"shown", shown}});
  } else {
    session.Out().Line(std::string(parameter.Chiave) + "=" + value + "  (" + shown + ")");
  }
}

int Get(Session& session, const std::vector<std::string>& arguments) {
  std::vector<const Parametro*> wanted;
  for (std::size_t i = 2; i < arguments.size(); ++i) {
    const auto* parameter = TrovaParametro(arguments[i]);
    if (parameter == nullptr) {
      session.Out().Say(arguments[i] + ": there is no such parameter");
      return kRefused;
    }
    wanted.push_back(parameter);
  }
  if (wanted.empty()) {
    for (const auto& parameter : Parametri()) wanted.push_back(&parameter);
  }
  for (const auto* parameter : wanted) Print(session, *parameter);
  return kDone;
}

/// Why KEY=VALUE is refused; "" when it isn't, and then `change` is set.
std::string Check(Session& session, const std::string& key, const std::string& value,
                  Change& change) {
  const auto& state = session.Context().Stato;
  const auto* parameter = TrovaParametro(key);
  if (parameter == nullptr) return key + ": there is no such parameter";
  if (!Raggiungibile(*parameter, state.PlayerType, state.PlayerMode)) {
    return key + ": no screen of this model and mode changes this parameter";
  }
  const auto accepted = ValoreAccettato(*parameter, value);
  if (!accepted) return key + ": the screen can't hold the value \"" + value + "\"";
  change = {parameter, *accepted};
  return {};
}

int Set(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() < 3) return kUsage;
  std::vector<Change> changes;
  bool refused = false;
  for (std::size_t i = 2; i < arguments.size(); ++i) {
    const auto equals = arguments[i].find('=');
    if (equals == std::string::npos) return kUsage;
    Change change;
    const std::string why =
        Check(session, arguments[i].substr(0, equals), arguments[i].substr(equals + 1), change);
    if (why.empty()) {
      changes.push_back(change);
    } else {
      session.Out().Say(why);
      refused = true;
    }
  }
  if (refused) return kRefused;  // and nothing of the call is written
  auto& context = session.Context();
  context.Errore.Clear();
  for (const auto& [parameter, value] : changes) {
    ScriviChiaveConfig(context, parameter->Chiave, value);
  }
  if (context.Errore) {
    session.Out().Say("Config.txt: " + context.Errore.Last().Description());
    return kRefused;
  }
  for (const auto& change : changes) Print(session, *change.first);
  return kDone;
}

}  // namespace

int RunConfig(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() < 2) return kUsage;
  const bool get = arguments[1] == "get";
  if (!get && arguments[1] != "set") return kUsage;
  if (const int status = session.OpenProject(arguments[0]); status != kDone) return status;
  return get ? Get(session, arguments) : Set(session, arguments);
}

}  // namespace kvr5::cli
