#pragma once

#include <string>
#include <string_view>

#include "platform/Locale.h"

namespace kvr5 {

/// What a box for a whole number holds once it was checked: `minimo` for a text that isn't numeric
/// or lies below it, `massimo` for one above it. Digits inside these bounds stay as they are
/// written, zeros in front included; a number written otherwise ("1e1", "2.5") becomes the nearest
/// whole one inside them (halves go to the even neighbour), as the file takes digits only.
std::string NumeroControllato(std::string_view testo, int minimo, int massimo, const Locale& luogo);

/// A box for a whole number with its two arrows, without pixels. It is free while the user types;
/// when the focus leaves it, it is checked.
class CasellaNumero {
 public:
  /// The text stays as it is, also outside the bounds, until the box is left.
  CasellaNumero(std::string testo, int minimo, int massimo, Locale luogo)
      : testo_(std::move(testo)), minimo_(minimo), massimo_(massimo), luogo_(std::move(luogo)) {}
  virtual ~CasellaNumero() = default;
  CasellaNumero(const CasellaNumero&) = default;
  CasellaNumero& operator=(const CasellaNumero&) = default;
  CasellaNumero(CasellaNumero&&) = default;
  CasellaNumero& operator=(CasellaNumero&&) = default;

  const std::string& Testo() const { return testo_; }

  /// A key is pressed in the box: true when its character goes on to the box. Of the codes from 14
  /// on only the digits do. Enter (13) doesn't either, and leaves the box like PerdeFuoco.
  bool Tasto(char32_t carattere);
  /// The box's text changes, by typing or pasting.
  virtual void Cambia(std::string testo) { testo_ = std::move(testo); }
  /// The focus leaves the box.
  void PerdeFuoco();
  /// The arrows: one more or less inside the bounds.
  void Su() { Sposta(+1); }
  void Giu() { Sposta(-1); }

 protected:
  const Locale& Luogo() const { return luogo_; }

 private:
  void Sposta(int passo);

  std::string testo_;
  int minimo_;
  int massimo_;
  Locale luogo_;
};

}  // namespace kvr5
