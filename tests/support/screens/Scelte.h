#pragma once

#include <string>

class QComboBox;

namespace kvr5::test {

/// Goes to an entry of a list with the arrow keys; to the one that is selected already by way of a
/// neighbour, so that coming there is a choice of its own.
void ScegliVoce(QComboBox& elenco, const std::string& voce);

}  // namespace kvr5::test
