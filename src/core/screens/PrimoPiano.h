#pragma once

class QWidget;

namespace kvr5 {

/// Makes a window stay above all others, or an ordinary one again. What is shown stays shown.
void ImpostaPrimoPiano(QWidget& finestra, bool sopra);

}  // namespace kvr5
