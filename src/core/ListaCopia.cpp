#include "core/ListaCopia.h"

#include <algorithm>

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
  const std::string& folded = testi_.emplace_back(FoldCase(sorgente));
  ripiegati_.append("|").append(folded);
  if (IsRegular(folded)) {
    percorsi_.insert(folded);
  } else {
    AggiungiCode(folded, codeAltri_);
  }
}

bool ListaCopia::ContieneDestinazione(std::string_view percorso) const {
  return !destinazioni_.empty() &&
         FoldCase(destinazioni_).find(FoldCase(percorso)) != std::string::npos;
}

bool ListaCopia::Coda::operator<(const Coda& altra) const {
  if (const int order = Dopo.compare(altra.Dopo); order != 0) return order < 0;
  if (Oltre != altra.Oltre) return altra.Oltre;
  return std::lexicographical_compare(Prima.rbegin(), Prima.rend(), altra.Prima.rbegin(),
                                      altra.Prima.rend());
}

void ListaCopia::AggiungiCode(std::string_view testo, Code& code) {
  for (auto at = testo.find('\\'); at != std::string_view::npos; at = testo.find('\\', at + 1)) {
    code.insert({testo.substr(at + 1), testo.substr(0, at)});
  }
}

bool ListaCopia::InCode(const Code& code, std::string_view cercato) {
  const std::string_view head = cercato.substr(0, cercato.find('\\'));
  const std::string_view rest = cercato.substr(head.size() + 1);
  // Each different text that begins so, and of those that follow it the one that ends in the head.
  for (auto each = code.lower_bound({rest, {}}); each != code.end();) {
    const std::string_view after = each->Dopo;
    if (!after.starts_with(rest)) return false;
    const auto fits = code.lower_bound({after, head});
    if (fits != code.end() && fits->Dopo == after && fits->Prima.ends_with(head)) return true;
    each = code.lower_bound({after, {}, true});
  }
  return false;
}

bool ListaCopia::Contiene(std::string_view percorso) const {
  if (sorgenti_.empty()) return false;
  const std::string folded = FoldCase(percorso);
  const bool regular = IsRegular(folded);
  if (regular) {
    const auto next = percorsi_.lower_bound(folded);
    if (next != percorsi_.end() && next->starts_with(folded)) return true;
    if (percorsi_.size() == testi_.size()) return false;
  }
  if (folded.find('\\') == std::string::npos || folded.find('|') != std::string::npos) {
    return ripiegati_.find(folded) != std::string::npos;
  }
  if (InCode(codeAltri_, folded)) return true;
  if (regular) return false;
  for (; codati_ < testi_.size(); ++codati_) AggiungiCode(testi_[codati_], code_);
  return InCode(code_, folded);
}

}  // namespace kvr5
