#pragma once

class QWidget;

namespace kvr5 {

/// Has the wheel change a control only while it has the keyboard: who scrolls the page must not
/// change a value on the way.
void SenzaRotella(QWidget& controllo);

}  // namespace kvr5
