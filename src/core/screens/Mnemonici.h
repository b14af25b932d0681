#pragma once

class QAbstractButton;
class QApplication;
class QWidget;

namespace kvr5 {

/// When a control chooses its letter; it takes none from those that have chosen in an earlier turn.
/// So what saves and records has the same letter on all screens, and no letter moves when another
/// button comes or goes. Options and the labels of fields choose after the buttons that stay.
enum class TurnoLettera { SalvaERegistra, Sempre, Scelte, VieneEVa };

/// A button of which nothing is set is there at all times.
void ImpostaTurno(QAbstractButton& pulsante, TurnoLettera turno);

/// Gives what can bear a letter, in every window of the application, one of its words to be pressed
/// with Alt: the first letters where they are free, no letter twice in a window, by turns. The
/// letters are found when a window comes up and whenever Alt goes down, and are underlined while it
/// is held.
void InstallaMnemonici(QApplication& programma);

/// Gives what a window shows now its letters, as the above does.
void AssegnaMnemonici(QWidget& finestra);

}  // namespace kvr5
