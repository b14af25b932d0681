#pragma once

class QApplication;
class QWidget;

namespace kvr5 {

/// The property of a button that chooses its letter before the others of its window, so that the
/// button has the same one on all screens and in all states.
inline constexpr const char* kPrimaLettera = "primaLettera";

/// Gives each button with a label, in every window of the application, a letter of that label to be
/// pressed with Alt: the first letters where they are free, no letter twice in a window. Those
/// with the property choose first. The
/// letters are found when a window comes up and whenever Alt goes down, and are underlined while it
/// is held.
void InstallaMnemonici(QApplication& programma);

/// Gives the buttons that a window shows now their letters, as the above does.
void AssegnaMnemonici(QWidget& finestra);

}  // namespace kvr5
