#pragma once

#include <QLabel>
#include <cstdint>

#include "core/screens/Tema.h"

namespace kvr5 {

/// The drawing of a sign in its colour, as a label of its own.
QLabel* SegnoDi(const char* icona, const QColor& colore, int lato, QWidget* padre);

/// A text of several lines that shows whole, however long.
QLabel* TestoLungo(const char* nome, const QString& testo, QWidget* padre);

/// Words of warning: a triangle before them, the colours of a warning around them. The sign can be
/// taken off where the same words are a plain note.
class EtichettaAvviso : public QLabel {
 public:
  EtichettaAvviso(const char* nome, const QString& testo, Carattere carattere, QWidget* padre);

  /// Dresses it as a warning, or as a note of body size in muted colour.
  void ImpostaAvviso(bool avvisa);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Carattere carattere_;
  bool avvisa_ = true;
};

/// Makes a box that is about to be shown as high as its texts need at its width; by itself a window
/// comes up no higher than two thirds of the screen.
void MostraIntero(QWidget& finestra);

/// Has a text appear in a colour of the logic's own, on the dark plate that every such colour can
/// be read on.
void SuTarga(QLabel& etichetta, std::uint32_t coloreBgr);

}  // namespace kvr5
