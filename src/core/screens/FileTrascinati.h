#pragma once

#include <string>
#include <vector>

class QMimeData;

namespace kvr5 {

/// The files of this computer that are dragged, in the host's form.
std::vector<std::string> FileTrascinati(const QMimeData& dati);

}  // namespace kvr5
