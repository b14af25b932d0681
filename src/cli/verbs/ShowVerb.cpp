#include <array>
#include <utility>

#include "cli/verbs/Verb.h"
#include "core/ParoleCopia.h"
#include "playerconfig/CodiceIngressi.h"
#include "playerconfig/ConfigTxt.h"
#include "playerconfig/Parametri.h"
#include "projects/SommarioProgetto.h"

namespace kvr5::cli {
namespace {

std::vector<std::string> MissingForPeople(const Contesto& context,
                                          const SommarioProgetto& summary) {
  std::vector<std::string> paths;
  for (const auto& path : summary.FileMancanti()) {
    paths.push_back(PercorsoPerPersone(context, path));
  }
  return paths;
}

void ShowJson(Session& session, const SommarioProgetto& summary) {
  auto& context = session.Context();
  const auto& state = context.Stato;
  Json config = Json::object();
  for (const auto& parameter : Parametri()) {
    config[std::string(parameter.Chiave)] = LeggiChiaveConfig(context, parameter.Chiave);
  }
  session.Out().Object({{"descriptor",
                         {{"ProjectName", state.ProjectName},
                          {"PlayerName", state.PlayerName},
                          {"PlayerType", state.PlayerType},
                          {"PlayerConfig", state.PlayerConfig},
                          {"PlayerConfigDesc", state.PlayerConfigDesc},
                          {"PlayerMode", state.PlayerMode},
                          {"Analyzer", state.Analyzer}}},
                        {"config", config},
                        {"inputs", summary.Ingressi.size()},
                        {"tracks", summary.Brani.size()},
                        {"segments", summary.Segmenti},
                        {"spots", summary.Spot.size()},
                        {"missing", MissingForPeople(context, summary)}});
}

void ShowParameters(Session& session) {
  auto& context = session.Context();
  session.Out().Line("Parameters");
  for (const auto& parameter : Parametri()) {
    const std::string value = LeggiChiaveConfig(context, parameter.Chiave);
    session.Out().Line("  " + std::string(parameter.Chiave) + "=" + value + "  (" +
                       ParoleDelFile(context, parameter, value) + ")");
  }
}

void ShowRows(Session& session, const std::string& heading, const std::vector<RigaProgetto>& rows,
              bool inputs) {
  if (rows.empty()) return;
  session.Out().Line(heading + ": " + std::to_string(rows.size()));
  for (const auto& row : rows) {
    const std::string place = inputs
                                  ? NomeIngressi(row.Pos)
                                  : std::to_string(row.NPlaylist) + "." + std::to_string(row.Pos);
    session.Out().Line("  " + place + "  " + row.FileName + (row.Mancante ? "  missing" : ""));
  }
}

void ShowText(Session& session, const SommarioProgetto& summary) {
  auto& context = session.Context();
  const auto& state = context.Stato;
  const std::array<std::pair<const char*, std::string>, 5> lines{{
      {"Project", state.ProjectName},
      {"Folder", PercorsoPerPersone(context, state.CartellaProgetto)},
      {"Player", state.PlayerName},
      {"Kind", state.PlayerConfigDesc},
      {"Mode", std::to_string(state.PlayerMode)},
  }};
  for (const auto& [name, value] : lines) session.Out().Line(std::string(name) + ": " + value);
  ShowParameters(session);
  ShowRows(session, "Inputs", summary.Ingressi, true);
  ShowRows(session, "Tracks", summary.Brani, false);
  if (summary.Segmenti > 0) {
    session.Out().Line("Segments: " + std::to_string(summary.Segmenti));
  }
  ShowRows(session, "Spots", summary.Spot, false);
  const auto missing = MissingForPeople(context, summary);
  if (!missing.empty()) session.Out().Line("Missing: " + std::to_string(missing.size()));
  for (const auto& path : missing) session.Out().Line("  " + path);
}

}  // namespace

int RunShow(Session& session, const std::vector<std::string>& arguments) {
  if (arguments.size() != 1) return kUsage;
  if (const int status = session.OpenProject(arguments[0]); status != kDone) return status;
  if (!session.CanRead("Config.txt")) return kRefused;
  const SommarioProgetto summary = LeggiSommario(session.Context());
  if (session.Out().IsJson()) {
    ShowJson(session, summary);
  } else {
    ShowText(session, summary);
  }
  for (const auto& fault : summary.Guasti) session.Out().Say(fault);
  return summary.Guasti.empty() ? kDone : kRefused;
}

}  // namespace kvr5::cli
