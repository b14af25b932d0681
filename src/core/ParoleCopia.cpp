#include "core/ParoleCopia.h"

#include <algorithm>

#include "core/Lingua.h"

namespace kvr5 {
namespace {

struct Words {
  std::string_view key;
  std::string_view fallback;
};

Words WordsFor(const CopyFailure& failure) {
  switch (failure.Cause.Number()) {
    case errors::DiskFull:
      return {"0130003",
              "There is no room left for this file. Free some space or use a larger card, then "
              "repeat."};
    case errors::DeviceUnavailable:
    case errors::DiskNotReady:
    case errors::DeviceIo:
      return {"0130004", "The card or disk no longer answers. Connect it again, then repeat."};
    case errors::FileNotFound:
    case errors::PathNotFound:
      if (!failure.Source) {
        return {"0130004", "The card or disk no longer answers. Connect it again, then repeat."};
      }
      return {"0130006", "This file isn't where it was. Look for it, then repeat."};
    case errors::PermissionDenied:
      if (!failure.Source) {
        return {"0130005", "The card is write-protected. Open its lock, then repeat."};
      }
      break;
    case errors::BadFileName:
      if (failure.Source)
        return {"0130006", "This file isn't where it was. Look for it, then repeat."};
      return {"0130008", "A card can't hold a file of this name. Rename it, then repeat."};
    default:
      break;
  }
  if (failure.Source) return {"0130007", "This file can't be read. Check its folder's rights."};
  return {"0130009", "This file can't be written. Check the card or folder, then repeat."};
}

}  // namespace

Messaggio BoxGuastoCopia(Contesto& contesto, const CopyFailure& guasto) {
  const Words words = WordsFor(guasto);
  return {TestoLinguaO(contesto, "0130002", "Copy stopped"),
          TestoLinguaO(contesto, words.key, words.fallback) + "\r\n" +
              PercorsoPerPersone(contesto, guasto.File),
          Icona::Avviso, Pulsanti::Ok, Risposta::Ok};
}

std::string PercorsoPerPersone(const Contesto& contesto, std::string_view percorso) {
  const FileSystem& files = contesto.Files;
  if (percorso.find(':') == std::string_view::npos) {
    std::string relative(percorso);
    const bool slashes = files.HostPath("C:\\").starts_with('/');
    if (slashes) std::ranges::replace(relative, '\\', '/');
    return relative;
  }
  std::string host = files.HostPath(percorso);
  return host.empty() ? std::string(percorso) : host;
}

}  // namespace kvr5
