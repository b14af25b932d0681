#pragma once

#include <string>
#include <utility>

#include "playerconfig/CasellaNumero.h"
#include "playerconfig/Parametri.h"

namespace kvr5 {

/// The persistence time of an input (TPCM) on the hub: the box lstTPCM, the options optTPCM_On and
/// optTPCM_Off and the arrows u_dTPCM, without pixels. When the focus leaves the box, it holds 0 to
/// 255 in digits.
class CasellaPersistenza : public CasellaNumero {
 public:
  /// As ControlliHub holds the parameter: the option in the number (0 is off), the box in the text.
  CasellaPersistenza(StatoParametro stato, Locale luogo)
      : CasellaNumero(std::move(stato.Testo), 0, kMassimo, std::move(luogo)),
        acceso_(stato.Numero != 0) {}

  /// What ControlliHub takes; a save writes the text as it stands, zeros in front included.
  StatoParametro Stato() const { return {acceso_ ? 1 : 0, Testo()}; }
  /// True while optTPCM_On is selected.
  bool Acceso() const { return acceso_; }

  /// "0" selects off, any other number on; a text that isn't numeric leaves the options.
  void Cambia(std::string testo) override;
  /// optTPCM_Off is clicked: the text becomes "0".
  void ClicOff();
  /// optTPCM_On is clicked: the text stays, a "0" too.
  void ClicOn() { acceso_ = true; }

 private:
  static constexpr int kMassimo = 255;

  bool acceso_;
};

}  // namespace kvr5
