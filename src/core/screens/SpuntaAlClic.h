#pragma once

class QCheckBox;
class QLabel;

namespace kvr5 {

/// Has a click on a label tick or clear its box, as a click on the box itself does; the second of a
/// quick pair too.
void SpuntaAlClic(QLabel& etichetta, QCheckBox& casella);

}  // namespace kvr5
