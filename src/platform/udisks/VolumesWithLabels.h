#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "platform/Drives.h"
#include "platform/udisks/UDisks.h"

namespace kvr5 {

/// The volumes of another source, with labels by UDisks2 where that one knows none: a system may
/// keep udev's database from the program.
///
/// The service is asked once for a volume, as long as it stays mounted, and whatever it answers:
/// the drives are looked up every second or so.
class VolumesWithLabels : public VolumeSource {
 public:
  /// `udisks` must outlive the object.
  VolumesWithLabels(std::unique_ptr<VolumeSource> volumes, const UDisks& udisks)
      : volumes_(std::move(volumes)), udisks_(udisks) {}

  std::vector<Volume> Removable() const override;
  std::optional<VolumeRoom> Room(const std::string& folder) const override {
    return volumes_->Room(folder);
  }

 private:
  using Key = std::pair<std::string, std::string>;  ///< device and folder

  std::unique_ptr<VolumeSource> volumes_;
  const UDisks& udisks_;
  mutable std::map<Key, std::string> labels_;
};

}  // namespace kvr5
