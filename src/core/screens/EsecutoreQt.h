#pragma once

#include "core/Contesto.h"
#include "core/Esecutore.h"

namespace kvr5 {

/// Opens documents and folders with the host's own programs. Where the host has none for them, a
/// box tells where they lie.
class EsecutoreQt : public Esecutore {
 public:
  explicit EsecutoreQt(Contesto& contesto) : contesto_(contesto) {}
  /// The desktop takes no parameters for a document: they go nowhere.
  bool Apri(const std::string& percorso, const std::string& parametri = {}) override;

 private:
  Contesto& contesto_;
};

}  // namespace kvr5
