#include "core/screens/EsecutoreQt.h"

#include <QDesktopServices>
#include <QUrl>

#include "core/screens/Testo.h"

namespace kvr5 {

bool EsecutoreQt::Apri(const std::string& percorso, const std::string& /*parametri*/) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(Qs(contesto_.Files.HostPath(percorso))));
}

}  // namespace kvr5
