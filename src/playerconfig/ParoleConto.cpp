#include "playerconfig/ParoleConto.h"

#include "core/Lingua.h"
#include "core/Parole.h"

namespace kvr5 {

std::string ParoleMancanti(Contesto& contesto, std::size_t quanti) {
  return Contati(contesto, quanti, {"0040062", "missing", "0040063", "missing"});
}

std::string AvvisoConto(Contesto& contesto, const CifreProgetto& cifre) {
  if (!cifre.Illeggibile.empty()) {
    return ConValori(TestoLinguaO(contesto, "0130250", "%1 can't be read"), {cifre.Illeggibile});
  }
  return cifre.Mancanti > 0 ? ParoleMancanti(contesto, cifre.Mancanti) : std::string();
}

std::string ParoleConto(Contesto& contesto, const CifreProgetto& cifre, bool palinsesto) {
  std::string words =
      palinsesto
          ? Contati(contesto, cifre.Segmenti, {"0040071", "segment", "0040072", "segments"}) +
                ", " + Contati(contesto, cifre.Spot, {"0040073", "spot", "0040074", "spots"})
          : Contati(contesto, cifre.Liste, {"0040067", "list", "0040068", "lists"}) + ", " +
                Contati(contesto, cifre.Brani, {"0040069", "track", "0040070", "tracks"});
  if (cifre.Completo && cifre.Byte > 0) {
    words += ", " + QuantitaInParole(cifre.Byte, contesto.Luogo);
  }
  return words;
}

}  // namespace kvr5
