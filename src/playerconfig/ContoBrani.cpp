#include "playerconfig/ContoBrani.h"

#include <unordered_set>
#include <utility>

#include "core/Aiuti.h"
#include "core/Parole.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/Locale.h"
#include "playerconfig/ParoleConto.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {

std::string ContoBrani::Chiave(const RigaProgetto& riga) {
  return FoldCase(riga.FilePath + riga.FileName + "|" + riga.Alias);
}

void ContoBrani::Imposta(std::vector<RigaProgetto> righe) {
  righe_ = std::move(righe);
  prossima_ = 0;
}

void ContoBrani::Ricomincia() {
  ++giro_;
  prossima_ = 0;
}

bool ContoBrani::Passo(std::size_t file) {
  for (; file > 0 && prossima_ < righe_.size(); ++prossima_) {
    Noto& known = noti_[Chiave(righe_[prossima_])];
    if (known.Giro == giro_) continue;
    known = {Guarda(righe_[prossima_]), giro_};
    --file;
  }
  return prossima_ < righe_.size();
}

FattiBrano ContoBrani::Guarda(const RigaProgetto& riga) {
  const auto size = GrandezzaFile(contesto_, riga);
  if (!size) return {true, 0, 0};
  std::string path = riga.FilePath + riga.FileName;
  if (!FileExists(contesto_.Files, path)) path = FileDelProgetto(contesto_, riga.Alias);
  const InfoMp3 info = lettore_.LeggiInfoMp3(path);
  return {false, *size, info.Valid ? info.Duration : 0};
}

const FattiBrano* ContoBrani::Fatti(const RigaProgetto& riga) const {
  const auto found = noti_.find(Chiave(riga));
  return found == noti_.end() ? nullptr : &found->second.Fatti;
}

std::size_t ContoBrani::Mancanti() const {
  std::size_t missing = 0;
  for (const RigaProgetto& each : righe_) {
    const FattiBrano* facts = Fatti(each);
    if (facts != nullptr && facts->Mancante) ++missing;
  }
  return missing;
}

std::string ContoBrani::Parole() const {
  if (righe_.empty() || prossima_ < righe_.size()) return {};
  std::int64_t seconds = 0;
  std::uint64_t bytes = 0;
  std::unordered_set<std::string> seen;
  for (const RigaProgetto& each : righe_) {
    const FattiBrano& facts = *Fatti(each);
    seconds += facts.Secondi;
    const std::string file = each.FilePath + each.FileName;
    if (seen.insert(FoldCase(file)).second) bytes += facts.Byte;
  }
  std::string words = DurataInParole(seconds) + ", " + QuantitaInParole(bytes, contesto_.Luogo);
  if (const std::size_t missing = Mancanti(); missing > 0) {
    words += ", " + ParoleMancanti(contesto_, missing);
  }
  return words;
}

std::string DurataInParole(std::int64_t secondi) {
  constexpr std::int64_t kMinute = 60;
  constexpr std::int64_t kHour = 3600;
  const auto twoDigits = [](std::int64_t number) { return RiempiZeri(std::to_string(number), 2); };
  const std::string seconds = ":" + twoDigits(secondi % kMinute);
  const std::int64_t minutes = secondi % kHour / kMinute;
  if (secondi < kHour) return std::to_string(minutes) + seconds;
  return std::to_string(secondi / kHour) + ":" + twoDigits(minutes) + seconds;
}

}  // namespace kvr5
