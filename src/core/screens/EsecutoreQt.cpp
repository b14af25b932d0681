#include "core/screens/EsecutoreQt.h"

#include <QDesktopServices>
#include <QUrl>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Testo.h"

namespace kvr5 {

bool EsecutoreQt::Apri(const std::string& percorso, const std::string& /*parametri*/) {
  const std::string host = contesto_.Files.HostPath(percorso);
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(Qs(host)))) return true;
  contesto_.Finestre.MostraMessaggio({TestoLinguaO(contesto_, "0130346", "It could not be opened"),
                                      ConValori(TestoLinguaO(contesto_, "0130347", "%1"), {host}),
                                      Icona::Informazione, Pulsanti::Ok, Risposta::Ok});
  return false;
}

}  // namespace kvr5
