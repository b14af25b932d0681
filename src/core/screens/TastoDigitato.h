#pragma once

class QFocusEvent;
class QKeyEvent;

namespace kvr5 {

/// The character that a key types into a field, Enter as 13; 0 for none: an editing key, a
/// shortcut.
char32_t TastoDigitato(const QKeyEvent& tasto);

/// Whether a loss of the focus leaves the field: a menu over it or another program's window does
/// not.
bool LasciaIlCampo(const QFocusEvent& evento);

}  // namespace kvr5
