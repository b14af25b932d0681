#include "projects/RigheProgetti.h"

#include <algorithm>

#include "core/Aiuti.h"
#include "platform/Fold.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {

void RigheProgetti::Carica() {
  righe_.clear();
  for (auto& name : ElencoProgetti(contesto_)) {
    std::string folded = FoldCase(name);
    righe_.push_back({std::move(name), std::move(folded), {}});
  }
}

std::string RigheProgetti::Cartella(std::size_t riga) const {
  return AggiungiBarra(contesto_.Stato.CartellaProgetti) + Nome(riga);
}

const FattiProgetto& RigheProgetti::Fatti(std::size_t riga) {
  auto& facts = righe_.at(riga).Fatti;
  if (!facts) facts = LeggiFattiProgetto(contesto_, Cartella(riga)).value_or(FattiProgetto{});
  return *facts;
}

const std::string& RigheProgetti::Modello(std::size_t riga) {
  return Fatti(riga).Modello;
}

std::optional<std::int64_t> RigheProgetti::Modificato(std::size_t riga) {
  return Fatti(riga).Modificato;
}

std::string RigheProgetti::Quando(std::size_t riga) {
  const auto moment = Modificato(riga);
  return moment ? QuandoInParole(contesto_, *moment) : std::string();
}

std::optional<std::size_t> RigheProgetti::Cerca(std::string_view testo) const {
  const std::string wanted = FoldCase(Rifila(testo));
  if (wanted.empty()) return {};
  const auto begins = std::ranges::find_if(
      righe_, [&](const Riga& row) { return row.Ripiegato.starts_with(wanted); });
  if (begins != righe_.end()) return static_cast<std::size_t>(begins - righe_.begin());
  return CercaDa(testo, 0);
}

std::optional<std::size_t> RigheProgetti::CercaDa(std::string_view testo, std::size_t da) const {
  const std::string wanted = FoldCase(Rifila(testo));
  if (wanted.empty()) return {};
  for (std::size_t i = 0; i < righe_.size(); ++i) {
    const std::size_t row = (da % righe_.size() + i) % righe_.size();
    if (righe_[row].Ripiegato.find(wanted) != std::string::npos) return row;
  }
  return {};
}

}  // namespace kvr5
