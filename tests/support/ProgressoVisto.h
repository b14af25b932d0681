#pragma once

#include <string>
#include <vector>

#include "core/FinestraProgresso.h"

namespace kvr5::test {

/// A progress window that remembers all that was seen of it: "Writing the report 1/4".
class ProgressoVisto : public FinestraProgresso {
 public:
  using FinestraProgresso::FinestraProgresso;
  std::vector<std::string> Seen;

 protected:
  void Ridisegna() override {
    if (!Visibile()) return;
    const std::string now = TestoOperazione() + " " + std::to_string(ValoreCorrente) + "/" +
                            std::to_string(ValoreMassimo);
    if (Seen.empty() || Seen.back() != now) Seen.push_back(now);
  }
};

}  // namespace kvr5::test
