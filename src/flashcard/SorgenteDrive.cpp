#include "flashcard/SorgenteDrive.h"

#include <algorithm>

#include "platform/Fold.h"

namespace kvr5 {

std::vector<std::string> DriveDelComputer::Voci() {
  elenco_ = drives_.List();
  std::vector<std::string> entries;
  for (const Drive& drive : elenco_) entries.push_back(FoldCase(drive.Root().substr(0, 2)));
  return entries;
}

const Drive* DriveDelComputer::Trova(const std::string& radice) const {
  const auto found = std::ranges::find_if(
      elenco_, [&](const Drive& drive) { return EqualFold(drive.Root(), radice); });
  return found == elenco_.end() ? nullptr : &*found;
}

std::uint32_t DriveDelComputer::Tipo(const std::string& radice) {
  return Trova(radice) != nullptr ? tipo_drive::Rimovibile : tipo_drive::Sconosciuto;
}

Error DriveDelComputer::Elenca(const std::string& radice) {
  const Drive* drive = Trova(radice);
  if (drive == nullptr || !drive->HasMedium) return Error(errors::BadFileName);
  // Looking the root up is enough to miss the medium, and doesn't walk a damaged directory.
  const Error error = files_.Info(radice).Err();
  return error.Number() == errors::DiskNotReady ? Error(errors::BadFileName) : error;
}

std::vector<Drive> DriveDelComputer::Fatti() {
  elenco_ = drives_.List();
  return elenco_;
}

}  // namespace kvr5
