#include "playerconfig/ModificheHub.h"

#include <algorithm>

#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

constexpr std::string_view kLoopKey = "MPLL";

bool IsDigits(std::string_view text) {
  const auto digit = [](char each) { return each >= '0' && each <= '9'; };
  return !text.empty() && std::all_of(text.begin(), text.end(), digit);
}

std::string_view WithoutZeros(std::string_view digits) {
  return digits.substr(std::min(digits.find_first_not_of('0'), digits.size() - 1));
}

bool SameToThePlayer(std::string_view a, std::string_view b) {
  if (a == b) return true;
  return IsDigits(a) && IsDigits(b) && WithoutZeros(a) == WithoutZeros(b);
}

}  // namespace

void ModificheHub::Rileggi(Contesto& contesto) {
  valori_.clear();
  // Reading a key of a missing file would make the file, with a box.
  const auto info = contesto.Files.Info(FileDelProgetto(contesto, "Config.txt"));
  if (!info || info.Value().IsFolder) return;
  for (const auto& parameter : Parametri()) {
    if (parameter.Schermo != SchermoParametro::Hub) continue;
    valori_.emplace(parameter.Chiave, LeggiChiaveConfig(contesto, parameter.Chiave));
  }
}

std::vector<std::string_view> ModificheHub::Diverse(const ControlliHub& controlli) const {
  std::vector<std::string_view> keys;
  for (const auto& parameter : Parametri()) {
    if (parameter.Schermo != SchermoParametro::Hub) continue;
    if (parameter.Chiave == kLoopKey && !controlli.MpllVisibile) continue;
    const auto kept = valori_.find(parameter.Chiave);
    const std::string saved = PerIlFile(parameter, controlli[parameter.Chiave]);
    if (kept == valori_.end() || !SameToThePlayer(saved, kept->second)) {
      keys.push_back(parameter.Chiave);
    }
  }
  return keys;
}

}  // namespace kvr5
