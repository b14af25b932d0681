#pragma once

#include <string>
#include <string_view>

#include "platform/Locale.h"
#include "playerconfig/Parametri.h"

namespace kvr5 {

/// The persistence time of an input (TPCM) on the hub: the box lstTPCM, the options optTPCM_On and
/// optTPCM_Off and the arrows u_dTPCM, without pixels. The box is free while the user types; when
/// the focus leaves it, it holds 0 to 255 in digits.
class CasellaPersistenza {
 public:
  /// As ControlliHub holds the parameter: the option in the number (0 is off), the box in the text.
  /// The text stays as it is, also beyond 255, until the box is left.
  CasellaPersistenza(StatoParametro stato, Locale luogo)
      : testo_(std::move(stato.Testo)), acceso_(stato.Numero != 0), luogo_(std::move(luogo)) {}

  /// What ControlliHub takes; a save writes the text as it stands, zeros in front included.
  StatoParametro Stato() const { return {acceso_ ? 1 : 0, testo_}; }
  const std::string& Testo() const { return testo_; }
  /// True while optTPCM_On is selected.
  bool Acceso() const { return acceso_; }

  /// A key is pressed in the box: true when its character goes on to the box. Of the codes from 14
  /// on only the digits do. Enter (13) doesn't either, and leaves the box like PerdeFuoco.
  bool Tasto(char32_t carattere);
  /// The box's text changes, by typing or pasting: "0" selects off, any other number on; a text
  /// that isn't numeric leaves the options.
  void Cambia(std::string testo);
  /// The focus leaves the box: what isn't numeric becomes 0, what is above 255 becomes 255. Digits
  /// inside these bounds stay as they are written; a number written otherwise ("-5", "1e2")
  /// becomes the nearest whole one inside them, as the file takes digits only.
  void PerdeFuoco();
  /// optTPCM_Off is clicked: the text becomes "0".
  void ClicOff();
  /// optTPCM_On is clicked: the text stays, a "0" too.
  void ClicOn() { acceso_ = true; }
  /// The arrows: one more or less inside 0 to 255.
  void Su() { Sposta(+1); }
  void Giu() { Sposta(-1); }

 private:
  int Valore() const;
  void Sposta(int passo);

  std::string testo_;
  bool acceso_;
  Locale luogo_;
};

}  // namespace kvr5
