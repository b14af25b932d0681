#include "core/CartellaMp3.h"

#include "core/Aiuti.h"
#include "core/Impostazioni.h"
#include "platform/FileOps.h"
#include "platform/Path.h"

namespace kvr5 {
namespace {

constexpr const char* kStandard = "C:\\";

/// A path as the settings may hold it, in the system's form and with the spelling of the disk; as
/// it is where that can't be had.
std::string InSystemForm(const Contesto& context, std::string_view path) {
  const auto found = context.Files.SystemPath(path);
  return found ? found.Value() : std::string(path);
}

std::string NearestFolder(const Contesto& context, std::string path) {
  while (!FolderExists(context.Files, path)) {
    std::string parent(FolderOf(path));
    if (parent.size() >= path.size()) return kStandard;
    path = std::move(parent);
  }
  return path;
}

}  // namespace

std::string CartellaIniziale(Contesto& contesto, std::int16_t apreDaFlash) {
  if (apreDaFlash != 0) return NearestFolder(contesto, contesto.Stato.CartellaProgetto);
  const std::string kept =
      LeggiParametroIni(contesto, FileImpostazioni(contesto), "Path", "LastMp3Dir", kStandard);
  return NearestFolder(contesto, InSystemForm(contesto, kept));
}

std::optional<std::string> ScegliCartella(Contesto& contesto, std::string_view scelta) {
  if (Rifila(scelta).empty()) return {};
  std::string folder = InSystemForm(contesto, scelta);
  if (!FolderExists(contesto.Files, folder)) return {};
  TieniCartella(contesto, folder);
  return folder;
}

void TieniCartella(Contesto& contesto, std::string_view cartella) {
  ScriviParametroIni(contesto, FileImpostazioni(contesto), "Path", "LastMp3Dir",
                     std::string(cartella));
}

}  // namespace kvr5
