#pragma once

#include <QProxyStyle>

#include "core/screens/Coppia.h"

namespace kvr5 {

/// How a button's surface looks just now.
struct AspettoPulsante {
  Coppia::Genere Genere = Coppia::Genere::Normale;
  bool Abilitato = true;
  bool Sopra = false;
  bool Premuto = false;
};

/// How a segment looks just now.
struct AspettoSegmento {
  bool Scelto = false;
  bool Abilitato = true;
  bool Sopra = false;
};

void DipingiPulsante(QPainter& pittore, const QRect& dove, const AspettoPulsante& aspetto);
void DipingiSegmento(QPainter& pittore, const QRect& dove, const AspettoSegmento& aspetto);
/// The ring of a button that has the focus: 2 pixels along its edge, before a gap of 2.
void DipingiFuoco(QPainter& pittore, const QRect& dove);

/// The looks of the toolkit's own controls, over its style "Fusion".
class Stile : public QProxyStyle {
 public:
  Stile();

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  /// Words of an option or a label with the letter underlined that is to be pressed with Alt.
  void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                    bool enabled, const QString& text, QPalette::ColorRole role) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

}  // namespace kvr5
