#include "schedule/screens/CampoOra.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include "core/screens/Form.h"
#include "core/screens/TastoDigitato.h"
#include "core/screens/Tema.h"
#include "schedule/OrarioSegmento.h"

namespace kvr5 {

CampoOra::CampoOra(const char* nome, QWidget* padre) : QLineEdit(padre) {
  constexpr int kWidth = 60;
  constexpr int kHeight = 48;
  setObjectName(QLatin1String(nome));
  setFont(FontDi(Carattere::Orario));
  setAlignment(Qt::AlignCenter);
  setFixedSize(kWidth, kHeight);
  setProperty(kLasciaAlClic, true);
  setAttribute(Qt::WA_InputMethodEnabled, false);  // digits are typed key by key
  setAcceptDrops(false);                           // files come with their paths as text
}

void CampoOra::Mostra(const QString& testo) {
  if (text() == testo) return;
  setText(testo);
  if (hasFocus()) selectAll();
}

void CampoOra::keyPressEvent(QKeyEvent* event) {
  if (PrimaDelTasto) PrimaDelTasto();
  const char32_t character = TastoDigitato(*event);
  if (character == U'\r') {
    if (SuInvio) SuInvio();
    return;
  }
  if (character == 0 || TastoOrario(character)) QLineEdit::keyPressEvent(event);
}

void CampoOra::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!LasciaIlCampo(*event)) return;  // back from a menu or another program
  selectAll();
  // A click that enters the field would set the cursor afterwards.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (hasFocus()) selectAll();
      },
      Qt::QueuedConnection);
}

void CampoOra::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (LasciaIlCampo(*event) && SuLascia) SuLascia();
}

}  // namespace kvr5
