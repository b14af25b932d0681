#include "core/screens/Tema.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>

#include "core/screens/Icona.h"
#include "core/screens/Stile.h"

namespace kvr5 {
namespace {

const Tema* g_corrente = &Tema::Chiaro();

}  // namespace

QColor FondoMorsettiera(const Tema& tema) {
  return tema.Scuro ? QColor(0xBC, 0xC5, 0xCA) : QColor(0xE9, 0xED, 0xEF);
}

QPalette PaletteDi(const Tema& tema) {
  QPalette palette;
  palette.setColor(QPalette::Window, tema.Finestra);
  palette.setColor(QPalette::WindowText, tema.Testo);
  palette.setColor(QPalette::Base, tema.Superficie);
  palette.setColor(QPalette::AlternateBase, tema.Incavo);
  palette.setColor(QPalette::Text, tema.Testo);
  palette.setColor(QPalette::PlaceholderText, tema.Attenuato);
  palette.setColor(QPalette::Button, tema.Superficie);
  palette.setColor(QPalette::ButtonText, tema.Testo);
  palette.setColor(QPalette::BrightText, tema.Fuoco);
  palette.setColor(QPalette::Highlight, tema.Selezione);
  palette.setColor(QPalette::HighlightedText, tema.SuSelezione);
  palette.setColor(QPalette::ToolTipBase, tema.Superficie);
  palette.setColor(QPalette::ToolTipText, tema.Testo);
  palette.setColor(QPalette::Link, tema.Primario);
  palette.setColor(QPalette::LinkVisited, tema.SuPrimario);
  palette.setColor(QPalette::Mid, tema.Linea);
  palette.setColor(QPalette::Light, tema.Superficie);
  palette.setColor(QPalette::Dark, tema.Linea);
  palette.setColor(QPalette::Shadow, tema.Linea);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, tema.Disabilitato);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, tema.Incavo);
  palette.setColor(QPalette::Disabled, QPalette::Link, tema.Disabilitato);
  return palette;
}

const Tema& Tema::Chiaro() {
  static const Tema tema{false,     "#F3F5F6", "#FFFFFF", "#E9EDEF", "#1A2328",
                         "#4F5D65", "#5F6B72", "#7B878E", "#0A665A", "#FFFFFF",
                         "#CBE6E1", "#0F2F2A", "#1A5FC4", "#7F4600", "#FFF0D9",
                         "#A8221B", "#FCE9E7", "#1C6432", "#E3F3E8"};
  return tema;
}

const Tema& Tema::ScuroDiNotte() {
  static const Tema tema{true,      "#14191C", "#1E2529", "#171C1F", "#E8EDEF",
                         "#AAB6BC", "#8F9BA1", "#74828A", "#5CC8B5", "#06231E",
                         "#1F4D45", "#E6F6F2", "#8AB8FF", "#FFC57A", "#3A2A12",
                         "#FFB4AB", "#43201C", "#8FD6A3", "#16321F"};
  return tema;
}

const Tema& Tema::Corrente() {
  return *g_corrente;
}

void ApplicaTema(QApplication& programma) {
  constexpr int kMiddle = 128;
  ApplicaTema(programma, programma.palette().color(QPalette::Window).lightness() < kMiddle);
}

void ApplicaTema(QApplication& programma, bool scuro) {
  g_corrente = scuro ? &Tema::ScuroDiNotte() : &Tema::Chiaro();
  QApplication::setStyle(new Stile());
  QApplication::setPalette(PaletteDi(*g_corrente));
  QApplication::setFont(FontDi(Carattere::Corpo));
  QGuiApplication::setWindowIcon(IconaProgramma());
  programma.setQuitOnLastWindowClosed(false);
}

QFont FontDi(Carattere carattere) {
  static const QFont base = QApplication::font();
  QFont font = base;
  switch (carattere) {
    case Carattere::Progetto:
      font.setPixelSize(24);
      font.setWeight(QFont::DemiBold);
      break;
    case Carattere::Schermata:
      font.setPixelSize(18);
      font.setWeight(QFont::DemiBold);
      break;
    case Carattere::Riquadro:
      font.setPixelSize(14);
      font.setWeight(QFont::DemiBold);
      break;
    case Carattere::Corpo:
      font.setPixelSize(14);
      break;
    case Carattere::Suggerimento:
      font.setPixelSize(12);
      break;
    case Carattere::Orario:
      font.setPixelSize(28);
      break;
  }
  return font;
}

QColor DaBgr(std::uint32_t colore) {
  const auto byte = [colore](int shift) { return static_cast<int>((colore >> shift) & 0xFFU); };
  return {byte(0), byte(8), byte(16)};
}

void Veste(QLabel& etichetta, Carattere carattere, Ruolo ruolo) {
  const Tema& tema = Tema::Corrente();
  etichetta.setFont(FontDi(carattere));
  QPalette palette = etichetta.palette();
  switch (ruolo) {
    case Ruolo::Testo:
      palette.setColor(QPalette::WindowText, tema.Testo);
      break;
    case Ruolo::Attenuato:
      palette.setColor(QPalette::WindowText, tema.Attenuato);
      break;
    case Ruolo::Avviso:
      palette.setColor(QPalette::WindowText, tema.Avviso);
      break;
    case Ruolo::Errore:
      palette.setColor(QPalette::WindowText, tema.Errore);
      break;
    case Ruolo::Buono:
      palette.setColor(QPalette::WindowText, tema.Buono);
      break;
  }
  palette.setColor(QPalette::Disabled, QPalette::WindowText, tema.Disabilitato);
  etichetta.setPalette(palette);
}

}  // namespace kvr5
