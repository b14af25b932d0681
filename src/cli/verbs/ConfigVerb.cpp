#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/verbs/Verb.h"
#include "core/Aiuti.h"
#include "playerconfig/AvvisoIngressi.h"
#include "playerconfig/ConfigTxt.h"
#include "playerconfig/Parametri.h"
#include "playerconfig/Ponte.h"

namespace kvr5::cli {
namespace {

using Change = std::pair<const Parametro*, std::string>;

void Print(Session& session, const Parametro& parameter) {
  auto& context = session.Context();
  const std::string value = LeggiChiaveConfig(context, parameter.Chiave);
  const std::string shown = ParoleDelFile(context, parameter, value);
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
  if (!accepted)
    return key + ": the screen can't hold the value \"" + value + "\", only " +
           LimitiDelValore(*parameter);
  change = {parameter, *accepted};
  return {};
}

/// The value that the changes of a call give a key, the last one counting; nothing when none does.
std::optional<int> NewValue(const std::vector<Change>& changes, std::string_view key) {
  std::optional<int> value;
  for (const auto& [parameter, text] : changes) {
    if (parameter->Chiave == key) value = std::stoi(text);
  }
  return value;
}

/// What the control of a list or a box shows for the file as it is.
int ShownValue(Contesto& context, const Parametro& parameter) {
  return DalFile(parameter, LeggiChiaveConfig(context, parameter.Chiave), StatoIniziale(parameter),
                 context.Luogo)
      .Numero;
}

/// Bridge mode holds OMON: adds the change that ticking it makes. False where OMON is to be changed
/// while the screen has it locked.
bool ApplyBridge(Contesto& context, std::vector<Change>& changes) {
  const Parametro& bridgeMode = *TrovaParametro("INVR");
  const Parametro& held = *TrovaParametro("OMON");
  const auto newOmon = NewValue(changes, "OMON");
  Ponte bridge(ShownValue(context, bridgeMode) > 0, ShownValue(context, held));
  const int before = bridge.Omon();
  if (const auto newBridge = NewValue(changes, "INVR")) bridge.Spunta(*newBridge > 0);
  if (newOmon) return bridge.OmonLibero() || *newOmon == bridge.Omon();
  if (bridge.Omon() != before) changes.emplace_back(&held, std::to_string(bridge.Omon()));
  return true;
}

int Set(Session& session, const std::vector<std::string>& arguments) {
  std::vector<Change> changes;
  bool refused = false;
  for (std::size_t i = 2; i < arguments.size(); ++i) {
    const auto equals = arguments[i].find('=');
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
  if (!ApplyBridge(context, changes)) {
    session.Out().Say("OMON: bridge mode (INVR) holds this parameter");
    return kRefused;
  }
  if (NewValue(changes, "IMOD") == 1 && ShownValue(context, *TrovaParametro("IMOD")) != 1) {
    AvvisaIngressiBassi(context);
  }
  context.Errore.Clear();
  std::vector<IniValue> values;
  values.reserve(changes.size());
  for (const auto& [parameter, value] : changes) values.push_back({parameter->Chiave, value});
  ScriviChiaviConfig(context, values);
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
  const auto isChange = [](const std::string& word) { return word.find('=') != word.npos; };
  if (!get && (arguments[1] != "set" || arguments.size() < 3 ||
               !std::all_of(arguments.begin() + 2, arguments.end(), isChange))) {
    return kUsage;
  }
  if (const int status = session.OpenProject(arguments[0]); status != kDone) return status;
  if (!session.CanRead("Config.txt")) return kRefused;
  return get ? Get(session, arguments) : Set(session, arguments);
}

}  // namespace kvr5::cli
