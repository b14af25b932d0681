#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Drives.h"
#include "platform/Error.h"
#include "platform/FileSystem.h"

namespace kvr5 {

/// The types of a drive as the host numbers them; the others play no part.
namespace tipo_drive {
inline constexpr std::uint32_t Sconosciuto = 0;
inline constexpr std::uint32_t Rimovibile = 2;
}  // namespace tipo_drive

/// The host's drives, as the choice of the card looks at them.
class SorgenteDrive {
 public:
  virtual ~SorgenteDrive() = default;
  /// The entries of the drive list afresh, "e:" or "e: [LABEL]", in the host's order.
  virtual std::vector<std::string> Voci() = 0;
  /// The type number of a root such as "e:\".
  virtual std::uint32_t Tipo(const std::string& radice) = 0;
  /// Lists the root once: 52 when the drive holds no medium.
  virtual Error Elenca(const std::string& radice) = 0;
  /// What the host tells of its drives now, of all of them by one look.
  virtual std::vector<Drive> Fatti() = 0;
};

/// The removable drives of this computer. Those of fixed type never come into the list.
class DriveDelComputer : public SorgenteDrive {
 public:
  /// Both must outlive the object.
  DriveDelComputer(Drives& drives, const FileSystem& files) : drives_(drives), files_(files) {}

  std::vector<std::string> Voci() override;
  std::uint32_t Tipo(const std::string& radice) override;
  Error Elenca(const std::string& radice) override;
  std::vector<Drive> Fatti() override;

 private:
  const Drive* Trova(const std::string& radice) const;

  Drives& drives_;
  const FileSystem& files_;
  std::vector<Drive> elenco_;  ///< as the last look found them
};

}  // namespace kvr5
