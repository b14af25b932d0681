#include "core/ListaCopia.h"

#include "platform/Fold.h"

namespace kvr5 {
namespace {

/// A drive letter, a colon, and no further colon or bar: such a text can occur in a list of such
/// paths only where one of them begins.
bool IsRegular(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' && path[0] != '|' &&
         path.find_first_of(":|", 2) == std::string_view::npos;
}

}  // namespace

void ListaCopia::Aggiungi(std::string_view sorgente, std::string_view destinazione) {
  sorgenti_.append("|").append(sorgente);
  destinazioni_.append("|").append(destinazione);
  std::string folded = FoldCase(sorgente);
  ripiegati_.append("|").append(folded);
  regolari_ = regolari_ && IsRegular(folded);
  percorsi_.insert(std::move(folded));
}

bool ListaCopia::ContieneDestinazione(std::string_view percorso) const {
  return !destinazioni_.empty() &&
         FoldCase(destinazioni_).find(FoldCase(percorso)) != std::string::npos;
}

bool ListaCopia::Contiene(std::string_view percorso) const {
  if (sorgenti_.empty()) return false;
  const std::string folded = FoldCase(percorso);
  if (!regolari_ || !IsRegular(folded)) {
    return ripiegati_.find(folded) != std::string::npos;
  }
  const auto next = percorsi_.lower_bound(folded);
  return next != percorsi_.end() && next->starts_with(folded);
}

}  // namespace kvr5
