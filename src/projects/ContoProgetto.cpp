#include "projects/ContoProgetto.h"

#include <algorithm>
#include <ctime>
#include <iterator>
#include <set>

#include "platform/Fold.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {

ContoProgetto::Firma ContoProgetto::FirmaOra() const {
  Firma now;
  for (const char* name : kDatabaseProgetto) {
    const auto file = contesto_.Files.Info(FileDelProgetto(contesto_, name));
    now.emplace_back(file ? file.Value().Size : 0, file ? file.Value().Modified : 0);
  }
  return now;
}

void ContoProgetto::Comincia(bool daCapo) {
  Firma now = FirmaOra();
  if (daCapo || letta_ != now || !cifre_.Illeggibile.empty()) {
    righe_.clear();
    lettura_.emplace(contesto_);
  }
  // The date tells seconds, two on a card: a change in the very moment of the last look has the
  // same, and a database keeps its size. Only an older one is known by them.
  constexpr std::int64_t kSettled = 3;
  const auto latest = std::max_element(
      now.begin(), now.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  letta_.reset();
  if (latest->second + kSettled < std::int64_t{std::time(nullptr)}) letta_ = std::move(now);
  cifre_.Mancanti = 0;
  cifre_.MancantiIngressi = 0;
  cifre_.Byte = 0;
  prossima_ = 0;
  visti_.clear();
  cifre_.Completo = !lettura_ && righe_.empty();
}

bool ContoProgetto::Leggi(std::size_t righe) {
  if (lettura_ && !lettura_->Passo(righe)) {
    RigheLette(lettura_->Prendi());
    lettura_.reset();
  }
  return lettura_.has_value();
}

void ContoProgetto::Interrompi() {
  lettura_.reset();
  letta_.reset();
}

void ContoProgetto::RigheLette(SommarioProgetto righe) {
  cifre_ = {};
  cifre_.Ingressi = righe.Ingressi.size();
  cifre_.Brani = righe.Brani.size();
  cifre_.Segmenti = righe.Segmenti;
  cifre_.Spot = righe.Spot.size();
  if (!righe.Guasti.empty()) {
    const std::string& fault = righe.Guasti.back();  // the lists, before inputs that none may use
    cifre_.Illeggibile = fault.substr(0, fault.find(':'));
  }
  std::set<std::int64_t> lists;
  for (const auto& row : righe.Brani) lists.insert(row.NPlaylist);
  cifre_.Liste = lists.size();
  righe_ = std::move(righe.Ingressi);
  for (auto* list : {&righe.Brani, &righe.Spot}) {
    std::move(list->begin(), list->end(), std::back_inserter(righe_));
  }
  cifre_.Completo = righe_.empty();
}

bool ContoProgetto::Passo(std::size_t righe) {
  for (; righe > 0 && prossima_ < righe_.size(); --righe) Guarda(righe_[prossima_++]);
  cifre_.Completo = prossima_ >= righe_.size();
  return !cifre_.Completo;
}

void ContoProgetto::Guarda(const RigaProgetto& riga) {
  const auto size = GrandezzaFile(contesto_, riga);
  if (!size) {
    ++cifre_.Mancanti;
    if (riga.Lista == kDatabaseProgetto.front()) ++cifre_.MancantiIngressi;
  } else if (visti_.insert(FoldCase(riga.FilePath + riga.FileName)).second) {
    cifre_.Byte += *size;
  }
}

}  // namespace kvr5
