#pragma once

class QAbstractButton;
class QApplication;
class QWidget;

namespace kvr5 {

/// When a button chooses its letter. None has a button of an earlier turn move, so that those that
/// save and record have the same letter on all screens, and the others whatever comes and goes.
enum class TurnoLettera { SalvaERegistra, Sempre, VieneEVa };

/// A button of which nothing is set is there at all times.
void ImpostaTurno(QAbstractButton& pulsante, TurnoLettera turno);

/// Gives each button with a label, in every window of the application, a letter of that label to be
/// pressed with Alt: the first letters where they are free, no letter twice in a window, by turns.
/// The letters are found when a window comes up and whenever Alt goes down, and are underlined
/// while it is held.
void InstallaMnemonici(QApplication& programma);

/// Gives the buttons that a window shows now their letters, as the above does.
void AssegnaMnemonici(QWidget& finestra);

}  // namespace kvr5
