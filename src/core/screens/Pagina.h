#pragma once

#include <QBoxLayout>
#include <initializer_list>

#include "core/screens/Coppia.h"

class QLabel;
class QWidget;

namespace kvr5 {

/// The page of a screen: its controls from top to bottom, with the margins of all screens.
QVBoxLayout* NuovaPagina(QWidget& form);

/// Controls side by side; a null stretches.
QHBoxLayout* Riga(std::initializer_list<QWidget*> controlli);

/// picHelp, the quiet button of the upper right corner.
Coppia* NuovoAiuto(QWidget* padre);

/// The order of the controls on the keyboard.
void OrdineTab(std::initializer_list<QWidget*> controlli);

/// A label of one line with its name, caption and tag (below 0: not translated).
QLabel* NuovaEtichetta(const char* nome, const QString& scritta, int tag, QWidget* padre);

}  // namespace kvr5
