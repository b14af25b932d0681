#include "core/FinestraProgresso.h"

#include <algorithm>
#include <limits>

#include "core/Lingua.h"
#include "platform/Locale.h"

namespace kvr5 {
namespace {

/// Adds 1; an overflow is a skipped statement.
void Increment(std::int32_t& value) {
  if (value < std::numeric_limits<std::int32_t>::max()) ++value;
}

}  // namespace

void FinestraProgresso::Carica() {
  if (caricata_) return;
  caricata_ = true;
  contesto_.Stato.AnnullatoDaUtente = false;  // a cancel from before the load is lost
  barra_ = 0;
}

void FinestraProgresso::Operazione(const std::string& testo) {
  Carica();
  operazione_ = testo;
  Ridisegna();
}

void FinestraProgresso::Dipingi() {
  Carica();
  if (ValoreMassimo == 0) return;  // a division by zero stops the painting
  barra_ = static_cast<double>(ValoreCorrente) / ValoreMassimo * LarghezzaPiena;
  Ridisegna();
}

void FinestraProgresso::Progresso(std::int32_t valore) {
  ValoreCorrente = valore;
  if (ValoreCorrente >= ValoreMinimo && ValoreCorrente <= ValoreMassimo) Dipingi();
}

void FinestraProgresso::Step(std::int32_t numeroFile, bool incrementa) {
  Increment(ValoreCorrente);
  if (ValoreCorrente < ValoreMinimo || ValoreCorrente > ValoreMassimo) return;
  Dipingi();
  contesto_.Messaggi.LasciaCorrere();
  if (ValoreMassimo != 0) {
    const std::int64_t percent = std::int64_t{ValoreCorrente} * 100 / ValoreMassimo;
    percento_ = std::to_string(percent) + "%";
  }
  if (numeroFile < 1) {
    numFileVisibile_ = false;
  } else {
    if (incrementa) {
      Increment(FileCorrente);
    } else {
      FileCorrente = numeroFile;
    }
    MostraContatore();
  }
  Ridisegna();
  contesto_.Messaggi.LasciaCorrere();
}

void FinestraProgresso::IncrementaContatoreFile() {
  Carica();
  Increment(FileCorrente);
  MostraContatore();
  Ridisegna();
  contesto_.Messaggi.LasciaCorrere();
}

void FinestraProgresso::MostraContatore() {
  numFile_ = std::to_string(FileCorrente) + "/" + std::to_string(FileTotali);
  numFileVisibile_ = true;
}

void FinestraProgresso::Mostra() {
  Carica();
  visibile_ = true;
  Ridisegna();
}

void FinestraProgresso::Nascondi() {
  visibile_ = false;
  Ridisegna();
}

void FinestraProgresso::Scarica() {
  if (!caricata_) return;
  caricata_ = false;
  visibile_ = false;
  ValoreMinimo = ValoreMassimo = ValoreCorrente = FileTotali = FileCorrente = 0;
  operazione_ = "Operat";
  percento_.clear();
  numFile_ = "1/1";
  numFileVisibile_ = true;
  barra_ = 0;
  acceso_ = true;
  Ridisegna();
}

void FinestraProgresso::Tick() {
  if (!caricata_) return;  // a tick that was under way when the window went
  acceso_ = !acceso_;
  Ridisegna();
}

int FinestraProgresso::PixelBarra() const {
  const double whole = std::clamp(barra_, 0.0, static_cast<double>(LarghezzaPiena));
  return static_cast<int>(ArrotondaPari(whole * PixelPieni / LarghezzaPiena));
}

void FinestraProgresso::Annulla() {
  Carica();  // a load clears the flag, so it comes first
  contesto_.Stato.AnnullatoDaUtente = true;
  Operazione(TestoLingua(contesto_, "70008"));  // this key alone has no leading zeros
  contesto_.Messaggi.LasciaCorrere();
}

}  // namespace kvr5
