#pragma once

#include <QDialog>

#include "core/Contesto.h"

namespace kvr5 {

/// A plain message box: sign, title, text, one to three buttons with the language's captions. It
/// belongs to no window: the one that it stands before may go.
class RiquadroMessaggio : public QDialog {
 public:
  RiquadroMessaggio(Contesto& contesto, const Messaggio& messaggio);
  /// What was pressed; the window's own button is the cancel, or No where there is none.
  Risposta Esito() const { return esito_; }

 protected:
  void showEvent(QShowEvent* event) override;
  /// Copy puts title and text on the clipboard, to be sent to whoever helps.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AggiungiPulsanti(Contesto& contesto, const Messaggio& messaggio);

  Risposta esito_;
};

}  // namespace kvr5
