#include "platform/host/posix/VolumeLabels.h"

namespace kvr5::host {

namespace fs = std::filesystem;

std::string VolumeLabels::Of(const fs::path& device) const {
  const std::string known = udev_.Property(device, "ID_FS_LABEL_ENC");
  return DecodedUdevText(known.empty() ? ByLink(device.filename()) : known);
}

std::string VolumeLabels::ByLink(const fs::path& deviceName) const {
  std::error_code failed;
  for (fs::directory_iterator it(links_, failed), end; !failed && it != end; it.increment(failed)) {
    std::error_code unreadable;
    const fs::path device = fs::read_symlink(it->path(), unreadable);
    if (!unreadable && device.filename() == deviceName) return it->path().filename().string();
  }
  return "";
}

}  // namespace kvr5::host
