#include "flashcard/FattiScheda.h"

#include <array>
#include <utility>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/Fold.h"
#include "projects/FattiProgetto.h"

namespace kvr5 {
namespace {

/// The file system as people call it. "vfat" tells nothing of the width of its table.
std::string FileSystemName(const std::string& host) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kNames{{
      {"vfat", "FAT"},
      {"msdos", "FAT"},
      {"exfat", "exFAT"},
      {"ntfs", "NTFS"},
      {"ntfs3", "NTFS"},
  }};
  for (const auto& [name, shown] : kNames) {
    if (EqualFold(host, name)) return std::string(shown);
  }
  return SuUnaRiga(host);
}

void AddTo(std::string& line, const std::string& fact) {
  if (fact.empty()) return;
  if (!line.empty()) line += ", ";
  line += fact;
}

std::string LockWords(Contesto& contesto, bool readOnly) {
  if (readOnly) return TestoLinguaO(contesto, "0130024", "locked");
  return TestoLinguaO(contesto, "0130023", "lock open");
}

}  // namespace

std::string FattiScheda(Contesto& contesto, const Drive& drive) {
  std::string line;
  AddTo(line, SuUnaRiga(drive.Label));
  if (!drive.HasMedium) {
    AddTo(line, TestoLinguaO(contesto, "0130025", "no card in it"));
    return line;
  }
  AddTo(line, FileSystemName(drive.FileSystem));
  AddTo(line, QuantitaInParole(drive.Size, contesto.Luogo));
  AddTo(line, ConValori(TestoLinguaO(contesto, "0130022", "%1 free"),
                        {QuantitaInParole(drive.Free, contesto.Luogo)}));
  AddTo(line, SuUnaRiga(drive.Mount));
  AddTo(line, LockWords(contesto, drive.ReadOnly));
  return line;
}

std::string ProgettoSullaScheda(Contesto& contesto, std::string_view radice) {
  const auto facts = LeggiFattiProgetto(contesto, radice);
  if (!facts) return TestoLinguaO(contesto, "0130026", "No project is on it.");
  const std::string name = facts->Nome.empty()
                               ? TestoLinguaO(contesto, "0130028", "a project without a name")
                               : facts->Nome;
  const std::string when =
      facts->Modificato ? QuandoInParole(contesto, *facts->Modificato) : std::string();
  return ConValori(TestoLinguaO(contesto, "0130027", "On it: %1, changed %2"), {name, when});
}

}  // namespace kvr5
