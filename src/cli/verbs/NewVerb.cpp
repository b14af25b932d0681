#include <array>
#include <optional>

#include "cli/verbs/Verb.h"
#include "core/ParoleCopia.h"
#include "projects/NuovoProgetto.h"

namespace kvr5::cli {
namespace {

struct NewArguments {
  std::string Name;
  std::int16_t Mode = 0;
};

std::optional<std::int16_t> ModeOf(const std::string& text) {
  constexpr std::array<std::int16_t, 5> kModes{1, 2, 5, 6, 7};
  for (const std::int16_t mode : kModes) {
    if (text == std::to_string(mode)) return mode;
  }
  return {};
}

std::optional<NewArguments> ParseNew(const std::vector<std::string>& arguments) {
  NewArguments parsed;
  bool named = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    std::optional<std::string> mode;
    if (word.starts_with("--mode=")) mode = word.substr(7);
    if (word == "--mode") mode = i + 1 < arguments.size() ? arguments[++i] : "";
    if (mode) {
      const auto number = ModeOf(*mode);
      if (!number) return {};
      parsed.Mode = *number;
    } else if (named) {
      return {};
    } else {
      parsed.Name = word;
      named = true;
    }
  }
  if (!named || parsed.Mode == 0) return {};
  return parsed;
}

}  // namespace

int RunNew(Session& session, const std::vector<std::string>& arguments) {
  const auto parsed = ParseNew(arguments);
  if (!parsed) return kUsage;
  auto& context = session.Context();
  auto& state = context.Stato;
  state.PlayerName = "KVR5";
  state.PlayerType = 4;
  state.PlayerConfig = 0;
  const EsitoNuovo outcome = CreaProgettoKvr5(context, parsed->Name, parsed->Mode,
                                              ScritteDelWizard(context, parsed->Mode));
  if (outcome == EsitoNuovo::CarattereVietato) {
    session.Out().Say(NotaCaratteriVietati(context, " "));  // the note that the screen shows
  }
  if (outcome != EsitoNuovo::Creato) return kRefused;
  const std::string folder = PercorsoPerPersone(context, state.CartellaProgetto);
  if (session.Out().IsJson()) {
    session.Out().Object({{"project", folder}});
  } else {
    session.Out().Line(folder);
  }
  return kDone;
}

}  // namespace kvr5::cli
