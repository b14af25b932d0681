#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "core/screens/Coppia.h"
#include "core/screens/Stile.h"
#include "core/screens/Tema.h"

// The colours of the two themes, by what stands on what.

namespace kvr5 {
namespace {

constexpr double kText = 4.5;  // of letters, by the Web Content Accessibility Guidelines, level AA
constexpr double kSign = 3.0;  // of lines and rings

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

/// The contrast of two colours, from 1 to 21, as those guidelines define it.
double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

struct Pair {
  const char* What;
  QColor On, Ground;
};

void ExpectContrast(const std::vector<Pair>& pairs, double least) {
  for (const auto& pair : pairs) {
    EXPECT_GE(Contrast(pair.On, pair.Ground), least) << pair.What;
  }
}

class Palette : public testing::TestWithParam<bool> {
 protected:
  const Tema& tema = GetParam() ? Tema::ScuroDiNotte() : Tema::Chiaro();
};

INSTANTIATE_TEST_SUITE_P(Themes, Palette, testing::Bool(),
                         [](const auto& dark) { return dark.param ? "Dark" : "Light"; });

TEST_P(Palette, ItsWordsCanBeReadOnEveryGround) {
  for (const QColor& ground : {tema.Finestra, tema.Superficie, tema.Incavo}) {
    SCOPED_TRACE(ground.name().toStdString());
    ExpectContrast({{"text", tema.Testo, ground},
                    {"muted", tema.Attenuato, ground},
                    {"disabled", tema.Disabilitato, ground},
                    {"error", tema.Errore, ground},
                    {"warning", tema.Avviso, ground},
                    {"good", tema.Buono, ground}},
                   kText);
  }
}

TEST_P(Palette, ItsWordsCanBeReadOnFillings) {
  ExpectContrast({{"on primary", tema.SuPrimario, tema.Primario},
                  {"on selection", tema.SuSelezione, tema.Selezione},
                  {"text on selection", tema.Testo, tema.Selezione},
                  {"warning", tema.Avviso, tema.FondoAvviso},
                  {"warning on selection", tema.Avviso, tema.Selezione},
                  {"error", tema.Errore, tema.FondoErrore},
                  {"error on selection", tema.Errore, tema.Selezione},
                  {"good", tema.Buono, tema.FondoBuono}},
                 kText);
}

TEST_P(Palette, TheNamesOfTerminalsCanBeRead) {
  const QColor strip = FondoMorsettiera(tema);
  ExpectContrast({{"name", Qt::black, strip}, {"ticked", QColor(0x00, 0x40, 0xA2), strip}}, kText);
  ExpectContrast({{"focus", Tema::Chiaro().Fuoco, strip}}, kSign);
}

/// What a button's words stand on, amid its surface.
QColor GroundOf(const AspettoPulsante& look) {
  constexpr int kSide = 36;
  QImage image(kSide, kSide, QImage::Format_RGB32);
  image.fill(Tema::Corrente().Finestra);
  QPainter painter(&image);
  DipingiPulsante(painter, image.rect(), look);
  painter.end();
  return image.pixelColor(kSide / 2, kSide / 2);
}

TEST_P(Palette, TheWordsOfAButtonCanBeReadHoveredAndPressedToo) {
  const bool before = Tema::Corrente().Scuro;
  ApplicaTema(*qApp, GetParam());
  using Kind = Coppia::Genere;
  Coppia button("pic", "lbl", QStringLiteral("Words"), "salva", -1);
  for (const auto kind : {Kind::Normale, Kind::Primario, Kind::Quieto, Kind::Pericolo, Kind::Carta,
                          Kind::CartaPrimaria}) {
    button.ImpostaGenere(kind);
    for (const bool enabled : {true, false}) {
      button.setEnabled(enabled);
      const QColor words = button.Etichetta()->palette().color(QPalette::WindowText);
      const auto on = [&](bool hovered, bool pressed) {
        return GroundOf(
            {.Genere = kind, .Abilitato = enabled, .Sopra = hovered, .Premuto = pressed});
      };
      SCOPED_TRACE(testing::Message() << static_cast<int>(kind) << " enabled " << enabled);
      ExpectContrast({{"at rest", words, on(false, false)},
                      {"hovered", words, on(true, false)},
                      {"pressed", words, on(true, true)}},
                     kText);
      EXPECT_EQ(on(true, true) != on(false, false), enabled) << "one sees that it is pressed";
    }
  }
  ApplicaTema(*qApp, before);
}

TEST_P(Palette, ItsLinesAndRingsCanBeSeen) {
  for (const QColor& ground : {tema.Finestra, tema.Superficie, tema.Incavo}) {
    SCOPED_TRACE(ground.name().toStdString());
    ExpectContrast({{"line", tema.Linea, ground},
                    {"focus", tema.Fuoco, ground},
                    {"primary", tema.Primario, ground}},
                   kSign);
  }
}

TEST_P(Palette, OfTheToolkitHasTheSameColours) {
  const QPalette palette = PaletteDi(tema);
  EXPECT_EQ(palette.color(QPalette::Window), tema.Finestra);
  EXPECT_EQ(palette.color(QPalette::Base), tema.Superficie);
  EXPECT_EQ(palette.color(QPalette::Text), tema.Testo);
  EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text), tema.Disabilitato);
  EXPECT_EQ(palette.color(QPalette::Highlight), tema.Selezione);
  EXPECT_EQ(palette.color(QPalette::HighlightedText), tema.SuSelezione);
}

}  // namespace
}  // namespace kvr5
