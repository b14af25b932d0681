#pragma once

class QApplication;
class QWidget;

namespace kvr5 {

/// Gives each button with a label, in every window of the application, a letter of that label to be
/// pressed with Alt: the first letters where they are free, no letter twice in a window. The
/// letters are found when a window comes up and whenever Alt goes down, and are underlined while it
/// is held.
void InstallaMnemonici(QApplication& programma);

/// Gives the buttons that a window shows now their letters, as the above does.
void AssegnaMnemonici(QWidget& finestra);

}  // namespace kvr5
