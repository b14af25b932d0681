#pragma once

#include <QChar>
#include <QString>

class QWidget;

namespace kvr5 {

/// Whether a control can be reached by Alt and a letter: a button with a label, an option with
/// words of its own, and the label of a field, whose letter leads to the field. The segments of a
/// strip have none: on a screen with a dozen strips, that many say "Off".
bool PortaLettera(const QWidget& controllo);

/// What such a control says: where its letter comes from.
QString ParoleDi(const QWidget& controllo);

/// Null where it has none.
QChar LetteraDi(const QWidget& controllo);

void DaiLettera(QWidget& controllo, QChar lettera);

/// While Alt is held: the letter is underlined. That of an option or a field works as long.
void SottolineaLettera(QWidget& controllo, bool mostra);

}  // namespace kvr5
