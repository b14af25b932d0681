#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <memory>
#include <string>

#include "core/Contesto.h"
#include "core/screens/Barra.h"
#include "core/screens/Coppia.h"

class QLabel;

namespace kvr5 {

/// The window of one copy: the file at work, how much is done, how fast, how long it will take, and
/// the cancel.
class RiquadroCopia : public QDialog {
 public:
  explicit RiquadroCopia(Contesto& contesto);
  /// Writes a state, unless the cancel was pressed. `millisecondi`: since the copy began.
  void Scrivi(const CopyState& stato, qint64 millisecondi);
  /// The same, and shows the window where it isn't shown yet.
  void Aggiorna(const CopyState& stato, qint64 millisecondi);
  bool Annullato() const { return annullato_; }
  /// The window's own button and Esc cancel too.
  void reject() override;

 private:
  /// The language's words, read once: a copy writes many times a second.
  struct Parole {
    std::string Conta, Quanto, Tempo;
  };

  void Costruisci();
  void ScriviFile(const std::string& file);
  void ScriviTempo(const CopyState& stato, qint64 millisecondi);

  Contesto& contesto_;
  Parole parole_;
  QLabel* file_;
  QLabel* quanto_;
  QLabel* tempo_;
  Barra* barra_;
  Coppia* annulla_;
  bool annullato_ = false;
};

/// Shows a copy's window once it has taken about half a second, and its failure in the window's own
/// words until it is acknowledged.
class FinestraCopia : public CopyObserver {
 public:
  FinestraCopia() = default;
  /// To be called once, before the first copy.
  void Collega(Contesto& contesto) { contesto_ = &contesto; }

  void Begin() override;
  bool Progress(const CopyState& state) override;
  void Failed(const CopyFailure& failure) override;
  void End() override;

 private:
  void Apri(const CopyState& state);

  Contesto* contesto_ = nullptr;
  std::unique_ptr<RiquadroCopia> riquadro_;
  QElapsedTimer inizio_;
};

}  // namespace kvr5
