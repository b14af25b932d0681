#pragma once

class QAbstractButton;
class QApplication;
class QWidget;

namespace kvr5 {

/// When a button chooses its letter. None has a button of an earlier turn move, so that those that
/// save and record have the same letter on all screens, and the others whatever comes and goes.
/// Options and the labels of fields come last.
enum class TurnoLettera { SalvaERegistra, Sempre, VieneEVa, Scelte };

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
