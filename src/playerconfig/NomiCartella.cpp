#include "playerconfig/NomiCartella.h"

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"

namespace kvr5 {

NomiCartella::NomiCartella(const FileSystem& file, std::string_view cartella) {
  for (const auto& entry : ListMatching(file, AggiungiBarra(cartella))) {
    nomi_.insert(FoldCase(entry.Name));
  }
}

bool NomiCartella::Contiene(std::string_view nome) const {
  return nomi_.contains(FoldCase(nome));
}

void NomiCartella::Rinominato(std::string_view da, std::string_view a) {
  nomi_.erase(FoldCase(da));
  nomi_.insert(FoldCase(a));
}

}  // namespace kvr5
