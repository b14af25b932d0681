#pragma once

#include <cstdint>
#include <string>

#include "core/screens/Form.h"

namespace kvr5 {

/// The property of a control that holds its number among the texts of its form.
inline constexpr const char* kTag = "Tag";

/// The property of a translated form that holds its own number among the texts.
inline constexpr const char* kNumero = "Numero";

/// The key of a control's text in the form of this number: three digits and the control's tag as
/// four; "" for a control that the pass below leaves alone.
std::string ChiaveScritta(std::int16_t numero, const QWidget& controllo);
/// The key of the form's own caption: its number and "0000".
std::string ChiaveTitolo(std::int16_t numero);

/// Sets the caption of a control: label, button, frame, or the label of a pair.
void ImpostaScritta(QWidget& controllo, const QString& testo);

/// The pass that translates a form: every control with a Tag whose name begins with "fra", "lbl",
/// "cmd" or "opt" takes the text of the form's number (three digits) and its tag (four digits); the
/// form itself takes "0000", trimmed. A key that the language lacks leaves the built-in caption.
void LocalizzaForm(Contesto& contesto, std::int16_t numero, Form& form);

}  // namespace kvr5
