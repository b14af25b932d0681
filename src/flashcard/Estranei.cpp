#include "flashcard/Estranei.h"

#include <set>

#include "core/Aiuti.h"
#include "flashcard/ContenutoScheda.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"

namespace kvr5 {

std::size_t ContaEstranei(Contesto& contesto, const std::string& scheda) {
  const auto onCard = contesto.Files.List(AggiungiBarra(scheda));
  if (!onCard) return 0;
  const ContenutoScheda expected = ContenutoDellaScheda(contesto);
  std::set<std::string> own;
  for (const FileDiScheda& file : expected.File) own.insert(FoldCase(file.Nome));
  const bool unread = !expected.NonLetti.empty();
  std::size_t strays = 0;
  for (const FileInfo& file : onCard.Value()) {
    if (file.IsFolder || file.Hidden || file.System) continue;
    // Of two files whose names differ by case one is the project's.
    if (own.erase(FoldCase(file.Name)) > 0) continue;
    if (!unread || !MatchesWildcard(file.Name, "*.mp3")) ++strays;
  }
  return strays;
}

}  // namespace kvr5
