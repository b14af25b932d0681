#pragma once

#include <string>
#include <vector>

#include "core/Esecutore.h"

namespace kvr5::test {

/// Remembers what was to be opened; opens nothing.
class EsecutoreFinto : public Esecutore {
 public:
  bool Apri(const std::string& percorso) override {
    Aperti.push_back(percorso);
    return Riesce;
  }

  std::vector<std::string> Aperti;
  bool Riesce = true;
};

}  // namespace kvr5::test
