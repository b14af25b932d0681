#pragma once

class QWidget;

namespace kvr5 {

/// The window that a box comes up before: one that stays on top of all, else the active one, else
/// the last that is shown (another program may be at work). Null while none is.
QWidget* FinestraSotto();

/// Puts a window that isn't shown over the middle of `sotto`, no larger than the screen has room
/// for. Null: where the last screen went, so that one follows the other in its place, else the
/// middle of the screen.
void CentraSu(QWidget& finestra, const QWidget* sotto);

/// Has a box come up before `sotto` and stay there, without belonging to it: a screen may go while
/// the box that stands before it still waits for its answer.
void MettiDavanti(QWidget& riquadro, QWidget* sotto);

/// Moves a window that isn't shown below another one, or above it where the screen ends.
void MettiAccanto(QWidget& finestra, const QWidget& altra);

/// Keeps in mind where a screen was that goes now.
void RicordaPosto(const QWidget& finestra);

}  // namespace kvr5
