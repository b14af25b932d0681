#include "projects/ContoProgetto.h"

#include <algorithm>
#include <ctime>
#include <iterator>
#include <set>

#include "core/Aiuti.h"
#include "platform/Fold.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {

ContoProgetto::Firma ContoProgetto::FirmaOra() const {
  Firma now;
  for (const char* name : {"inputcfg.mdb", "playlist.mdb", "scheduler.mdb"}) {
    const auto file = contesto_.Files.Info(FileDelProgetto(contesto_, name));
    now.emplace_back(file ? file.Value().Size : 0, file ? file.Value().Modified : 0);
  }
  return now;
}

void ContoProgetto::Comincia(bool daCapo) {
  Firma now = FirmaOra();
  if (daCapo || letta_ != now || !cifre_.Illeggibile.empty()) LeggiRighe();
  // The date tells seconds, two on a card: a change in the very moment of the last look has the
  // same, and a database keeps its size. Only an older one is known by them.
  constexpr std::int64_t kSettled = 3;
  const auto latest = std::max_element(now.begin(), now.end(), [](const auto& a, const auto& b) {
    return a.second < b.second;
  });
  letta_.reset();
  if (latest->second + kSettled < std::int64_t{std::time(nullptr)}) letta_ = std::move(now);
  cifre_.Mancanti = 0;
  cifre_.Byte = 0;
  prossima_ = 0;
  visti_.clear();
  cifre_.Completo = righe_.empty();
}

void ContoProgetto::LeggiRighe() {
  SommarioProgetto rows = LeggiRigheProgetto(contesto_);
  cifre_ = {};
  cifre_.Ingressi = rows.Ingressi.size();
  cifre_.Brani = rows.Brani.size();
  cifre_.Segmenti = rows.Segmenti;
  cifre_.Spot = rows.Spot.size();
  if (!rows.Guasti.empty()) {
    const std::string& fault = rows.Guasti.back();  // the lists, before inputs that none may use
    cifre_.Illeggibile = fault.substr(0, fault.find(':'));
  }
  std::set<std::int64_t> lists;
  for (const auto& row : rows.Brani) lists.insert(row.NPlaylist);
  cifre_.Liste = lists.size();
  righe_ = std::move(rows.Ingressi);
  for (auto* list : {&rows.Brani, &rows.Spot}) {
    std::move(list->begin(), list->end(), std::back_inserter(righe_));
  }
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
  } else if (visti_.insert(FoldCase(AggiungiBarra(riga.FilePath) + riga.FileName)).second) {
    cifre_.Byte += *size;
  }
}

}  // namespace kvr5
