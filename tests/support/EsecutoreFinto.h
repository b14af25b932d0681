#pragma once

#include <string>
#include <vector>

#include "core/Esecutore.h"

namespace kvr5::test {

/// Remembers what was to be opened; opens nothing.
class EsecutoreFinto : public Esecutore {
 public:
  bool Apri(const std::string& percorso, const std::string& parametri = {}) override {
    Aperti.push_back(percorso);
    Parametri.push_back(parametri);
    return Riesce;
  }

  std::vector<std::string> Aperti;
  std::vector<std::string> Parametri;  ///< of each, "" for none
  bool Riesce = true;
};

}  // namespace kvr5::test
