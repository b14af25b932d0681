#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <cstdint>

class QApplication;
class QLabel;

namespace kvr5 {

/// The colours of all screens, by what they are for. Every pair that stands on one another has a
/// contrast of at least 4.5:1 (lines and rings 3:1).
struct Tema {
  bool Scuro;
  QColor Finestra, Superficie, Incavo;
  QColor Testo, Attenuato, Disabilitato, Linea;
  QColor Primario, SuPrimario;
  QColor Selezione, SuSelezione, Fuoco;
  QColor Avviso, FondoAvviso, Errore, FondoErrore, Buono, FondoBuono;

  static const Tema& Chiaro();
  static const Tema& ScuroDiNotte();
  /// The one in use.
  static const Tema& Corrente();
};

/// The ground of a strip of terminals. It is light in both themes, since the names on it have fixed
/// colours: black, and #0040A2 where they are ticked.
QColor FondoMorsettiera(const Tema& tema);

/// The palette of the toolkit's controls in these colours. Link and LinkVisited are what is ticked
/// and the mark on it, BrightText is the ring of the focus.
QPalette PaletteDi(const Tema& tema);

/// Gives the application its style, palette, font and icon; light or dark as the host's palette is.
void ApplicaTema(QApplication& programma);
/// The same with the choice made.
void ApplicaTema(QApplication& programma, bool scuro);

/// The sizes of text, in logical pixels.
enum class Carattere { Progetto, Schermata, Riquadro, Corpo, Suggerimento, Orario };
QFont FontDi(Carattere carattere);

/// The distances between things, in logical pixels.
namespace spazi {
inline constexpr int kStretto = 8;
inline constexpr int kMedio = 16;
inline constexpr int kLargo = 24;
inline constexpr int kControllo = 32;
inline constexpr int kPulsante = 36;
inline constexpr int kPrimario = 44;
inline constexpr int kAngolo = 6;
}  // namespace spazi

/// A colour as the logic has it: blue in the highest byte, then green, then red.
QColor DaBgr(std::uint32_t colore);

/// What a text is, by its colour.
enum class Ruolo { Testo, Attenuato, Avviso, Errore, Buono };
/// Has a label take the colour and size of its role.
void Veste(QLabel& etichetta, Carattere carattere, Ruolo ruolo = Ruolo::Testo);

}  // namespace kvr5
