#include "schedule/FilePalinsesto.h"

#include "projects/OraDelSegmento.h"

namespace kvr5 {

std::string FilePalinsesto::NomeDelGiorno(int giorno) {
  return std::to_string(giorno) + ".pal";
}

FilePalinsesto::FilePalinsesto(ListeDiTesto& liste, bool uno) : liste_(liste), uno_(uno) {
  if (uno_) liste_.Apri(kUno);
  for (int day = 1; !uno_ && day <= kGiorni; ++day) liste_.Apri(NomeDelGiorno(day));
}

void FilePalinsesto::Aggiungi(const Spot& spot) {
  if (spot.IDSched != segmento_) Scrivi();
  segmento_ = spot.IDSched;
  if (riga_.empty()) riga_ = spot.NPlaylist + OraConDuePunti(OraDa(spot.StartTime));
  riga_ += "\t" + SenzaMp3(spot.Alias, false) + "\t";
}

void FilePalinsesto::Scrivi() {
  if (riga_.empty()) return;
  const int day = riga_.front() - '0';
  const std::string line = riga_.substr(1);
  riga_.clear();
  if (uno_) return liste_.Aggiungi(kUno, line);
  // Spots that belong to no day of the week, such as those of a duplicated segment, have no file.
  if (day >= 1 && day <= kGiorni) liste_.Aggiungi(NomeDelGiorno(day), line);
}

}  // namespace kvr5
