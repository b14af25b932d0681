#pragma once

#include <string>

namespace kvr5 {

/// Opens a document or a folder with whatever the host has for it.
class Esecutore {
 public:
  virtual ~Esecutore() = default;
  /// `percorso` is in the system's form. `parametri` go to the program that opens it, where the
  /// host has a way to hand them over. False when the host found nothing to open it with; most
  /// callers don't look.
  virtual bool Apri(const std::string& percorso, const std::string& parametri = {}) = 0;
};

}  // namespace kvr5
