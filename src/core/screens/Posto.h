#pragma once

class QWidget;

namespace kvr5 {

/// Has a control keep its room while it is hidden, so that nothing jumps under the pointer.
void TieniPosto(QWidget& controllo);

/// The middle of a large screen, which scrolls in a small window while head and command bar stay.
QWidget* Scorrevole(QWidget* corpo, QWidget* padre);

}  // namespace kvr5
