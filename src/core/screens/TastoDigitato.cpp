#include "core/screens/TastoDigitato.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace kvr5 {

char32_t TastoDigitato(const QKeyEvent& tasto) {
  if (tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter) return U'\r';
  // Editing keys and shortcuts aren't characters that are typed; with the modifier that types the
  // third character of a key (Ctrl and Alt at once, or Alt alone) they are.
  const bool shortcut =
      (tasto.modifiers() & Qt::ControlModifier) != 0 && (tasto.modifiers() & Qt::AltModifier) == 0;
  const bool edits = tasto.key() == Qt::Key_Delete || tasto.key() == Qt::Key_Escape || shortcut;
  return edits || tasto.text().isEmpty() ? 0 : tasto.text().toUcs4().first();
}

bool LasciaIlCampo(const QFocusEvent& evento) {
  return evento.reason() != Qt::PopupFocusReason && evento.reason() != Qt::ActiveWindowFocusReason;
}

}  // namespace kvr5
