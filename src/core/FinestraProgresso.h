#pragma once

#include <cstdint>
#include <string>

#include "core/Contesto.h"

namespace kvr5 {

/// frmProgress without its pixels: the bar, the percentage, the counter and the cancel of a long
/// operation. The operation drives it; a derived class draws it.
///
/// Loading (the first use of a control) clears AnnullatoDaUtente; unloading puts every member
/// back to its initial value. Setting a plain member doesn't load.
class FinestraProgresso {
 public:
  explicit FinestraProgresso(Contesto& contesto) : contesto_(contesto) {}
  virtual ~FinestraProgresso() = default;
  FinestraProgresso(const FinestraProgresso&) = delete;
  FinestraProgresso& operator=(const FinestraProgresso&) = delete;

  /// Width of the whole bar in twips; a constant of the form.
  static constexpr int LarghezzaPiena = 5880;
  /// The same in logical pixels, of 15 twips each.
  static constexpr int PixelPieni = LarghezzaPiena / 15;
  /// Interval of tmrCicla in milliseconds.
  static constexpr int IntervalloCicla = 1000;

  std::int32_t ValoreMinimo = 0;
  std::int32_t ValoreMassimo = 0;
  std::int32_t ValoreCorrente = 0;
  std::int32_t FileTotali = 0;
  std::int32_t FileCorrente = 0;

  /// Sets lblOperazione.
  void Operazione(const std::string& testo);
  /// Sets the value and, inside the bounds, paints the bar; the labels stay.
  void Progresso(std::int32_t valore);
  /// Adds 1 to the value and, inside the bounds, paints the bar and the percentage. `numeroFile`
  /// below 1 hides the counter; else it shows that number, or the next one with `incrementa`.
  void Step(std::int32_t numeroFile, bool incrementa);
  /// Adds 1 to the counter and shows it.
  void IncrementaContatoreFile();
  void Carica();
  void Mostra();
  void Nascondi();
  void Scarica();
  /// tmrCicla, each 1000 ms from the load on: the operation's text blinks.
  void Tick();
  /// picAnnulla: raises the flag and says so; the operation goes on until it looks.
  void Annulla();

  bool Caricata() const { return caricata_; }
  bool Visibile() const { return visibile_; }
  const std::string& TestoOperazione() const { return operazione_; }
  const std::string& TestoPercento() const { return percento_; }
  const std::string& TestoNumFile() const { return numFile_; }
  bool NumFileVisibile() const { return numFileVisibile_; }
  /// Twips, 0 to LarghezzaPiena.
  double LarghezzaBarra() const { return barra_; }
  /// The bar's width to draw: whole logical pixels, 0 to PixelPieni also where bounds below zero
  /// give an odd width.
  int PixelBarra() const;
  /// Which of its two display states lblOperazione is in; the first one from the load on.
  bool TestoAcceso() const { return acceso_; }

 protected:
  /// Called after every change of what is seen.
  virtual void Ridisegna() {}

  Contesto& contesto_;

 private:
  void Dipingi();
  void MostraContatore();

  bool caricata_ = false;
  bool visibile_ = false;
  std::string operazione_ = "Operat";
  std::string percento_;
  std::string numFile_ = "1/1";
  bool numFileVisibile_ = true;
  double barra_ = 0;
  bool acceso_ = true;
};

}  // namespace kvr5
