#include "core/screens/Disco.h"

#include "core/screens/Tema.h"

namespace kvr5 {

void DipingiDisco(QPainter& pittore, const QRectF& posto, const QString& segno) {
  const Tema& tema = Tema::Corrente();
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(tema.Primario);
  pittore.drawEllipse(posto);
  QFont font = FontDi(Carattere::Suggerimento);
  font.setBold(true);
  pittore.setFont(font);
  pittore.setPen(tema.SuPrimario);
  pittore.drawText(posto, Qt::AlignCenter, segno);
  pittore.restore();
}

}  // namespace kvr5
