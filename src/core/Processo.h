#pragma once

namespace kvr5 {

/// Why the program ends at once.
enum class MotivoFine {
  ImpostazioniNonCreabili,  ///< the settings file is missing and can't be made
  LinguaMancante,           ///< English.lan isn't there
  ModelloMancante,          ///< a template or source.mdb couldn't be copied into a new project
};

/// The end of the program at the few points where it ends at once, after its box.
class Processo {
 public:
  virtual ~Processo() = default;
  /// Ends the process; never returns to its caller (tests leave it by an exception).
  [[noreturn]] virtual void Termina(MotivoFine motivo) = 0;
};

}  // namespace kvr5
