#include "core/screens/Pagina.h"

#include <QLabel>
#include <QVariant>

#include "core/screens/LocalizzaForm.h"
#include "core/screens/Tema.h"

namespace kvr5 {

QVBoxLayout* NuovaPagina(QWidget& form) {
  auto* page = new QVBoxLayout(&form);
  page->setContentsMargins(spazi::kLargo, spazi::kMedio, spazi::kLargo, spazi::kMedio);
  page->setSpacing(spazi::kMedio);
  return page;
}

QHBoxLayout* Riga(std::initializer_list<QWidget*> controlli) {
  auto* line = new QHBoxLayout();
  line->setSpacing(spazi::kStretto);
  for (QWidget* control : controlli) {
    if (control == nullptr) {
      line->addStretch(1);
    } else {
      line->addWidget(control);
    }
  }
  return line;
}

Coppia* NuovoAiuto(QWidget* padre) {
  auto* help = new Coppia("picHelp", "", QStringLiteral("Help (F1)"), "aiuto", -1, padre);
  help->ImpostaGenere(Coppia::Genere::Quieto);
  return help;
}

void OrdineTab(std::initializer_list<QWidget*> controlli) {
  QWidget* before = nullptr;
  for (QWidget* control : controlli) {
    if (before != nullptr) QWidget::setTabOrder(before, control);
    before = control;
  }
}

QLabel* NuovaEtichetta(const char* nome, const QString& scritta, int tag, QWidget* padre) {
  auto* label = new QLabel(scritta, padre);
  label->setObjectName(QLatin1String(nome));
  label->setTextFormat(Qt::PlainText);
  if (tag >= 0) label->setProperty(kTag, tag);
  return label;
}

}  // namespace kvr5
