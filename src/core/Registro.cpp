#include "core/Registro.h"

#include <ctime>

#include "core/Aiuti.h"
#include "core/Impostazioni.h"
#include "platform/FileOps.h"

namespace kvr5 {
namespace {

std::string LogFolder(const Contesto& contesto) {
  return AggiungiBarra(contesto.CartellaProgramma) + "Logs";
}

}  // namespace

void ScriviLog(Contesto& contesto, std::string_view messaggio) {
  const std::string folder = LogFolder(contesto);
  if (!FolderExists(contesto.Files, folder)) Ignora(contesto.Files.CreateFolder(folder));
  const std::tm now = contesto.Ora.Adesso();
  auto file = contesto.Files.Open(AggiungiBarra(folder) + FormattaMomento(now, "%Y%m%d.log"),
                                  OpenMode::Append);
  if (!file) return;
  const CodePage page(contesto.Luogo.AnsiCodePage);
  Ignora(file.Value()->Write(FormattaMomento(now, "%H:%M:%S ") + page.Encode(messaggio) + "\r\n"));
  Ignora(file.Value()->Close());
}

void InizializzaLog(Contesto& contesto) {
  const std::string value =
      LeggiParametroIni(contesto, FileImpostazioni(contesto), "Config", "EnableDebug");
  // The flag stays false in both cases, and on purpose: the failure lines of the settings store
  // are never written, EnableDebug=1 only makes the folder.
  contesto.Stato.DebugAbilitato = false;
  if (value != "1") return;
  const std::string folder = LogFolder(contesto);
  if (!FolderExists(contesto.Files, folder)) {
    contesto.Errore.Record(contesto.Files.CreateFolder(folder));
  }
  if (contesto.Errore) contesto.Stato.DebugAbilitato = false;
}

}  // namespace kvr5
