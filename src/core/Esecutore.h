#pragma once

#include <string>

namespace kvr5 {

/// Opens a document or a folder with whatever the host has for it.
class Esecutore {
 public:
  virtual ~Esecutore() = default;
  /// `percorso` is in the system's form. False when the host found nothing to open it with; most
  /// callers don't look.
  virtual bool Apri(const std::string& percorso) = 0;
};

}  // namespace kvr5
