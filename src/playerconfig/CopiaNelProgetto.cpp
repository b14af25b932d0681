#include "playerconfig/CopiaNelProgetto.h"

#include <cstdint>
#include <cstdlib>

#include "platform/Path.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {

bool PuoChiamarsi(const std::string& nome) {
  return CardCanHold(nome) && FaultOf(nome) == NameFault::None;
}

bool SembraCopiaDi(const Contesto& contesto, const std::string& alias,
                   const std::string& sorgente) {
  const auto file = contesto.Files.Info(sorgente);
  if (!file || file.Value().IsFolder) return true;
  const auto copy = contesto.Files.Info(FileDelProgetto(contesto, alias));
  constexpr std::int64_t kFat = 2;  // seconds that a card's file system rounds to
  return copy && copy.Value().Size == file.Value().Size &&
         std::abs(copy.Value().Modified - file.Value().Modified) <= kFat;
}

}  // namespace kvr5
