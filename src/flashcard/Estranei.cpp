#include "flashcard/Estranei.h"

#include <set>

#include "core/Aiuti.h"
#include "flashcard/ContenutoScheda.h"
#include "platform/Fold.h"

namespace kvr5 {

std::size_t ContaEstranei(Contesto& contesto, const std::string& scheda) {
  const auto onCard = FileSullaScheda(contesto.Files, AggiungiBarra(scheda));
  if (!onCard) return 0;
  const ContenutoScheda expected = ContenutoDellaScheda(contesto);
  std::set<std::string> own;
  for (const FileDiScheda& file : expected.File) own.insert(FoldCase(file.Nome));
  std::size_t strays = 0;
  for (const FileInfo& file : *onCard) {
    // Of two files whose names differ by case one is the project's.
    const bool its = own.erase(FoldCase(file.Name)) > 0;
    if (!its && !ForseDelProgetto(expected, file)) ++strays;
  }
  return strays;
}

}  // namespace kvr5
