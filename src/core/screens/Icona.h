#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>

class QPainter;

namespace kvr5 {

/// The drawings of the program, kept as SVG; a line drawn in "currentColor" takes the colour asked
/// for. A name that isn't there gives an empty picture.

/// Paints a drawing into a rectangle, its proportions kept.
void DipingiIcona(QPainter& pittore, const QRectF& dove, const QString& nome, const QColor& colore);
/// A drawing of this size in logical pixels, crisp at `scala` device pixels each.
QPixmap DisegnoDi(const QString& nome, const QSize& misura, const QColor& colore, qreal scala);
/// A drawing as an icon in a colour.
QIcon IconaDi(const QString& nome, const QColor& colore);
/// The program's own icon.
QIcon IconaProgramma();

}  // namespace kvr5
