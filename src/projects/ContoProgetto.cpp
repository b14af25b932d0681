#include "projects/ContoProgetto.h"

#include <iterator>
#include <set>

#include "core/Aiuti.h"
#include "platform/Fold.h"

namespace kvr5 {

void ContoProgetto::Comincia() {
  SommarioProgetto rows = LeggiRigheProgetto(contesto_);
  cifre_ = {};
  cifre_.Ingressi = rows.Ingressi.size();
  cifre_.Brani = rows.Brani.size();
  cifre_.Segmenti = rows.Segmenti;
  cifre_.Spot = rows.Spot.size();
  if (!rows.Guasti.empty()) {
    const std::string& fault = rows.Guasti.front();
    cifre_.Illeggibile = fault.substr(0, fault.find(':'));
  }
  std::set<std::int64_t> lists;
  for (const auto& row : rows.Brani) lists.insert(row.NPlaylist);
  cifre_.Liste = lists.size();
  righe_ = std::move(rows.Ingressi);
  for (auto* list : {&rows.Brani, &rows.Spot}) {
    std::move(list->begin(), list->end(), std::back_inserter(righe_));
  }
  prossima_ = 0;
  visti_.clear();
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
  } else if (visti_.insert(FoldCase(AggiungiBarra(riga.FilePath) + riga.FileName)).second) {
    cifre_.Byte += *size;
  }
}

}  // namespace kvr5
