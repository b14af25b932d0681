#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "core/Contesto.h"
#include "platform/CodePage.h"

namespace kvr5 {

/// The language file as it stands, read once for all that is asked of it while this lives: a screen
/// that loads asks for a hundred texts at a time. TestoLingua answers from the last one made; each
/// text is what a reading of its own would give.
class LinguaLetta {
 public:
  explicit LinguaLetta(Contesto& contesto);
  ~LinguaLetta();
  LinguaLetta(const LinguaLetta&) = delete;
  LinguaLetta& operator=(const LinguaLetta&) = delete;

  /// The one that lives now and holds this context's language; null for none.
  static const LinguaLetta* Per(const Contesto& contesto);

  /// A text by its key; nothing where only a reading of its own can tell.
  std::optional<std::string> Testo(std::string_view chiave) const;

 private:
  void Indicizza();

  const Contesto& contesto_;
  std::string file_;
  CodePage pagina_;
  std::string contenuto_;
  bool ordinaria_ = false;                              ///< a file that the index can stand for
  std::map<std::string_view, std::string_view> righe_;  ///< the whole line of each key
  LinguaLetta* prima_;
};

}  // namespace kvr5
