#include "playerconfig/screens/Cursore.h"

#include <QLabel>
#include <QSlider>

#include "core/screens/Pagina.h"
#include "core/screens/SenzaRotella.h"
#include "core/screens/Testo.h"
#include "playerconfig/Parametri.h"
#include "playerconfig/screens/VoceCursore.h"

namespace kvr5 {
namespace {

constexpr int kTop = 20;
constexpr int kPage = 4;

QSlider* NewSlider(const char* name, int position, QWidget* parent) {
  auto* slider = new QSlider(Qt::Vertical, parent);
  ImpostaVoce(*slider, {});  // first: what a screen reader is given is made once
  slider->setObjectName(QLatin1String(name));
  slider->setRange(0, kTop);
  slider->setSingleStep(1);
  slider->setPageStep(kPage);
  slider->setValue(position);
  slider->setMinimumHeight(96);
  SenzaRotella(*slider);
  return slider;
}

QLabel* NewLevel(const char* name, QWidget* parent) {
  auto* label = NuovaEtichetta(name, QStringLiteral("+12 dB"), -1, parent);
  label->setAlignment(Qt::AlignCenter);
  label->setMinimumWidth(62);
  return label;
}

}  // namespace

void Cursore::Aggiorna() const {
  Valore->setText(Qs(Scala(Slider->value())));
  ImpostaVoce(*Slider, Valore->text());
}

Cursore NuovoCursore(const NomiCursore& nomi, QWidget* padre) {
  const int position = StatoIniziale(*TrovaParametro(nomi.Chiave)).Numero;
  return {nomi.Chiave, NewSlider(nomi.Slider, position, padre), NewLevel(nomi.Valore, padre),
          nomi.Scala};
}

}  // namespace kvr5
