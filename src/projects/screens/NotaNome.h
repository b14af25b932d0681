#pragma once

#include <QLineEdit>

#include "core/Contesto.h"
#include "core/screens/Avvisi.h"

namespace kvr5 {

/// What the screens that ask for a project's name say about the one in the field while it is typed.
/// The note about forbidden characters warns, in colour and weight, while the name holds one: the
/// button then does nothing and says nothing. The line below shows the folder that the name leads
/// to, or warns that no folder can be called so. Nothing is said about a blank name. A screen
/// reader hears the warning with the field.
void ValutaNome(Contesto& contesto, QLineEdit& campo, EtichettaAvviso& nota, QLabel& cartella);

}  // namespace kvr5
