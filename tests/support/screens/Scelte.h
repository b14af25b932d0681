#pragma once

#include <QFileDialog>
#include <string>

#include "support/screens/Pilota.h"

class QComboBox;

namespace kvr5::test {

/// Goes to an entry of a list with the arrow keys; to the one that is selected already by way of a
/// neighbour, so that coming there is a choice of its own.
void ScegliVoce(QComboBox& elenco, const std::string& voce);
/// Chooses a folder of the host in the next folder browser.
Pilota<QFileDialog> RispondiCartella(const std::string& cartella);

}  // namespace kvr5::test
