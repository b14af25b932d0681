#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace kvr5 {

/// Paints a sign (a numeral, a letter) on a disc of the primary colour that fills `posto`.
void DipingiDisco(QPainter& pittore, const QRectF& posto, const QString& segno);

}  // namespace kvr5
