#include "core/screens/CasellaCerca.h"

#include <QAction>
#include <QToolTip>

#include "core/screens/Icona.h"
#include "core/screens/Tema.h"

namespace kvr5 {

CasellaCerca::CasellaCerca(QWidget* padre) : QLineEdit(padre) {
  setObjectName(QStringLiteral("txtCerca"));
  setClearButtonEnabled(true);
  segno_ = addAction(IconaDi(QStringLiteral("avviso"), Tema::Corrente().Errore), LeadingPosition);
  segno_->setVisible(false);
}

void CasellaCerca::ImpostaParole(const QString& invito, const QString& spiega,
                                 const QString& niente) {
  spiega_ = spiega;
  niente_ = niente;
  setPlaceholderText(invito);
  setAccessibleName(invito);
  setToolTip(spiega);
  segno_->setToolTip(niente);
}

bool CasellaCerca::SenzaEsito() const {
  return segno_->isVisible();
}

void CasellaCerca::MostraEsito(bool trovato) {
  const bool nothing = !trovato && !text().trimmed().isEmpty();
  segno_->setVisible(nothing);
  QPalette colours = palette();
  colours.setColor(QPalette::Text, nothing ? Tema::Corrente().Errore : Tema::Corrente().Testo);
  setPalette(colours);
  setAccessibleDescription(nothing ? niente_ : QString());
  setToolTip(nothing ? niente_ : spiega_);
  if (nothing && hasFocus()) {
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), niente_, this);
  } else {
    QToolTip::hideText();
  }
}

}  // namespace kvr5
