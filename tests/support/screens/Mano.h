#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QWidget>
#include <string>

class QFileDialog;
class QListWidget;

namespace kvr5::test {

/// The control of that name in a window; a missing one fails the test and ends it by an exception.
QWidget& Controllo(QWidget& finestra, const char* nome);
template <class T>
T& Controllo(QWidget& finestra, const char* nome) {
  return dynamic_cast<T&>(Controllo(finestra, nome));
}

/// Waits until a window is on the screen and has the keyboard.
bool Pronta(QWidget& finestra);

/// A click in the middle of what is seen of a control, given to its window as the mouse does:
/// whatever lies there gets it.
void Clicca(QWidget& controllo);
void Clicca(QWidget& finestra, const char* nome);
/// The same at a place of the control.
void Clicca(QWidget& controllo, QPoint dove);
/// A click and another one at once.
void CliccaDoppio(QWidget& controllo, QPoint dove);

/// A key given to a window as the keyboard does: to its shortcuts, then to the control with the
/// focus.
void Tasto(QWidget& finestra, Qt::Key tasto, Qt::KeyboardModifiers modi = Qt::NoModifier);
/// Text typed into the control with the focus.
void Scrivi(QWidget& finestra, const QString& testo);
/// The same into a field, in the place of what it holds.
void Riscrivi(QWidget& campo, const QString& testo);

/// Chooses a folder (host's form) in a folder chooser by its full path, and leaves it.
void ScegliCartella(QFileDialog& scelta, const std::string& cartella);

/// Where an entry stands in a list, in view; one that isn't there ends the test.
QPoint PostoDi(QListWidget& elenco, const std::string& voce);

/// The text that a label of that name shows.
std::string Scritta(QWidget& finestra, const char* nome);

}  // namespace kvr5::test
