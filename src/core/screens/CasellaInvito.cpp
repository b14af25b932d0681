#include "core/screens/CasellaInvito.h"

#include <QPalette>
#include <QStyleOptionComboBox>

#include "core/screens/Tema.h"

namespace kvr5 {

CasellaInvito::CasellaInvito(QWidget* padre) : QComboBox(padre) {
  connect(this, &QComboBox::currentTextChanged, this, [this] { Descrivi(); });
}

void CasellaInvito::ImpostaInvito(const QString& parole) {
  invito_ = parole;
  Descrivi();
  update();
}

void CasellaInvito::Descrivi() {
  setAccessibleDescription(currentText().trimmed().isEmpty() ? invito_ : QString());
}

void CasellaInvito::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  if (!option->currentText.trimmed().isEmpty()) return;
  option->currentText = invito_;
  for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
    option->palette.setColor(role, Tema::Corrente().Attenuato);
  }
}

}  // namespace kvr5
