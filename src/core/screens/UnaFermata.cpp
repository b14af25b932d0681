#include "core/screens/UnaFermata.h"

#include <QRadioButton>

namespace kvr5 {

void FermaSeScelta(QRadioButton& opzione) {
  const auto follow = [&opzione](bool chosen) {
    opzione.setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
  };
  QObject::connect(&opzione, &QRadioButton::toggled, &opzione, follow);
  follow(opzione.isChecked());
}

}  // namespace kvr5
