#include "core/CopiaFileShell.h"

#include <string>

namespace kvr5 {
namespace {

std::vector<std::string> Split(std::string_view list) {
  if (list.starts_with('|')) list.remove_prefix(1);
  std::vector<std::string> parts;
  while (!list.empty() && !list.starts_with('|')) {
    const auto bar = list.find('|');
    parts.emplace_back(list.substr(0, bar));
    if (bar == std::string_view::npos) break;
    list.remove_prefix(bar + 1);
  }
  return parts;
}

/// Lists that don't belong together, as a "|" inside a path makes them, are a failed copy: it is
/// told, since nothing at all is copied.
CopyOutcome RefuseLists(Contesto& contesto, std::string_view sources) {
  const auto parts = Split(sources);
  contesto.FinestraCopia.Failed(
      {parts.empty() ? std::string() : parts.front(), true, Error(errors::BadFileName)});
  return {errors::BadFileName, 0, 0};
}

/// Has the copy window watch a copy that nobody may cancel.
class Unstoppable : public CopyObserver {
 public:
  explicit Unstoppable(CopyObserver& window) : window_(window) {}
  void Begin() override { window_.Begin(); }
  void End() override { window_.End(); }
  bool Progress(const CopyState& state) override {
    CopyState told = state;
    told.Stoppable = false;
    window_.Progress(told);
    return true;
  }
  void Failed(const CopyFailure& failure) override { window_.Failed(failure); }

 private:
  CopyObserver& window_;
};

}  // namespace

std::vector<CopyPair> CoppieDaListe(std::string_view sorgente, std::string_view destinazione) {
  const auto sources = Split(sorgente);
  const auto destinations = Split(destinazione);
  std::vector<CopyPair> pairs;
  if (destinations.size() != sources.size() && destinations.size() != 1) return pairs;
  pairs.reserve(sources.size());
  for (std::size_t i = 0; i < sources.size(); ++i) {
    pairs.push_back({sources[i], destinations.size() == 1 ? destinations[0] : destinations[i]});
  }
  return pairs;
}

CopyOutcome CopiaFileShell(Contesto& contesto, std::string_view sorgente,
                           std::string_view destinazione, AnnulloCopia annullo) {
  const auto pairs = CoppieDaListe(sorgente, destinazione);
  Unstoppable unstoppable(contesto.FinestraCopia);
  CopyObserver& window = annullo == AnnulloCopia::Nulla ? unstoppable : contesto.FinestraCopia;
  const CopyOutcome outcome =
      pairs.empty() ? RefuseLists(contesto, sorgente) : ShellCopy(contesto.Files, pairs, window);
  contesto.Messaggi.LasciaCorrere();
  if (outcome.Result == errors::Cancelled) contesto.Stato.AnnullatoDaUtente = true;
  return outcome;
}

}  // namespace kvr5
