#include "core/screens/FileTrascinati.h"

#include <QMimeData>
#include <QUrl>

#include "core/screens/Testo.h"

namespace kvr5 {

std::vector<std::string> FileTrascinati(const QMimeData& dati) {
  std::vector<std::string> files;
  for (const QUrl& each : dati.urls()) {
    if (each.isLocalFile()) files.push_back(Std(each.toLocalFile()));
  }
  return files;
}

}  // namespace kvr5
