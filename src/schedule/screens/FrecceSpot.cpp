#include "schedule/screens/FrecceSpot.h"

#include <QToolButton>
#include <QVBoxLayout>

#include "core/screens/Icona.h"
#include "core/screens/Lampada.h"
#include "core/screens/Tema.h"

namespace kvr5 {
namespace {

QToolButton* NewArrow(const QString& name, const char* icon, QWidget* parent) {
  constexpr QSize kSize(24, 17);
  auto* arrow = new QToolButton(parent);
  arrow->setObjectName(name + QLatin1Char('_') + QLatin1String(icon));
  arrow->setIcon(IconaDi(QLatin1String(icon), Tema::Corrente().Testo));
  arrow->setIconSize({12, 12});
  arrow->setFixedSize(kSize);
  arrow->setAutoRaise(true);
  arrow->setFocusPolicy(Qt::StrongFocus);  // a click leaves a field that is being typed in
  return arrow;
}

}  // namespace

FrecceSpot::FrecceSpot(int indice, QWidget* padre) : QWidget(padre) {
  setObjectName(NomeElemento("UpDownFile", indice));
  Su = NewArrow(objectName(), "su", this);
  Giu = NewArrow(objectName(), "giu", this);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  lines->addWidget(Su);
  lines->addWidget(Giu);
  connect(Su, &QToolButton::clicked, this, [this] {
    if (SuMuovi) SuMuovi(false);
  });
  connect(Giu, &QToolButton::clicked, this, [this] {
    if (SuMuovi) SuMuovi(true);
  });
}

void FrecceSpot::InOrdine(const std::function<void(QWidget*)>& visita) const {
  visita(Su);
  visita(Giu);
}

void FrecceSpot::Copri(bool su, bool giu) {
  Su->setEnabled(!su);
  Giu->setEnabled(!giu);
}

}  // namespace kvr5
