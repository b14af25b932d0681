#include "platform/udisks/VolumesWithLabels.h"

#include <optional>

namespace kvr5 {

std::vector<Volume> VolumesWithLabels::Removable() const {
  std::vector<Volume> volumes = volumes_->Removable();
  std::map<Key, std::string> known;
  std::optional<std::optional<UDisksObjects>> told;  // all that are new are asked for at once
  for (Volume& volume : volumes) {
    if (!volume.Label.empty() || volume.Device.empty()) continue;
    const Key key{volume.Device, volume.Mount};
    if (const auto before = labels_.find(key); before != labels_.end()) {
      volume.Label = before->second;
    } else {
      if (!told) told = udisks_.Look();
      if (*told) volume.Label = (*told)->LabelOf(UDisksObjects::PathOf(volume.Device));
    }
    known[key] = volume.Label;
  }
  labels_ = std::move(known);
  return volumes;
}

}  // namespace kvr5
