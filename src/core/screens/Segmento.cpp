#include "core/screens/Segmento.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVariant>

#include "core/screens/LocalizzaForm.h"
#include "core/screens/Stile.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "core/screens/UnaFermata.h"

namespace kvr5 {
Segmento::Segmento(const char* nome, const QString& scritta, int tag, QWidget* padre)
    : QRadioButton(padre) {
  setObjectName(QLatin1String(nome));
  if (tag >= 0) setProperty(kTag, tag);
  setText(SenzaMnemonico(scritta));
  FermaSeScelta(*this);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize Segmento::sizeHint() const {
  const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
  return {text + 2 * spazi::kMedio, spazi::kControllo};
}

void Segmento::paintEvent(QPaintEvent* /*event*/) {
  const Tema& tema = Tema::Corrente();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRect surface = rect();
  DipingiSegmento(painter, surface,
                  {.Scelto = isChecked(), .Abilitato = isEnabled(), .Sopra = underMouse()});
  painter.setPen(!isEnabled() ? tema.Disabilitato : isChecked() ? tema.SuSelezione : tema.Testo);
  painter.drawText(surface, Qt::AlignCenter | Qt::TextShowMnemonic, text());
  if (hasFocus()) DipingiFuoco(painter, surface);
}

Striscia::Striscia(QWidget* padre) : QWidget(padre) {
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(0);
}

void Striscia::Aggiungi(Segmento* segmento) {
  layout()->addWidget(segmento);
}

}  // namespace kvr5
