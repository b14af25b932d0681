#pragma once

#include <QChar>
#include <QKeySequence>
#include <QString>

class QWidget;

namespace kvr5 {

/// Whether a control can be reached by Alt and a letter: a button with a label, an option with
/// words of its own, and the label of a field or of a check box, whose letter leads there. The
/// segments of a strip have none: on a screen with a dozen strips, most of them say "Off".
bool PortaLettera(const QWidget& controllo);

/// What such a control says: where its letter comes from.
QString ParoleDi(const QWidget& controllo);

/// Where the letter stands in a text, without regard to case; -1 where it doesn't.
qsizetype PostoLettera(const QString& testo, QChar lettera);

/// Alt and a letter; no key for none.
QKeySequence TastoDi(QChar lettera);

/// Null where it has none.
QChar LetteraDi(const QWidget& controllo);

/// Has Alt and the letter press the button, choose the option or lead to the field.
void DaiLettera(QWidget& controllo, QChar lettera);

/// Underlines the letter, or no longer. The text itself stays as it is, for whoever reads it.
void SottolineaLettera(QWidget& controllo, bool mostra);

/// A text as the toolkit draws it with the letter underlined, for a control whose letter is shown
/// just now; the text itself for any other.
QString TestoSottolineato(const QWidget& controllo, const QString& testo);

}  // namespace kvr5
