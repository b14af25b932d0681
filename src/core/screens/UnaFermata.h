#pragma once

class QRadioButton;

namespace kvr5 {

/// Has Tab stop at an option of several only while it is the chosen one; the arrow keys lead to the
/// others. By itself the toolkit stops at the first one until one of them has had the focus.
void FermaSeScelta(QRadioButton& opzione);

}  // namespace kvr5
