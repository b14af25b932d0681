#include <fcntl.h>
#include <linux/msdos_fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "platform/HostFileSystem.h"
#include "platform/host/posix/VolumeKind.h"

namespace kvr5 {

std::optional<FatAttributes> ReadFatAttributes(const std::string& hostPath, std::uint64_t device) {
  if (host::KindOf(hostPath, device) != host::VolumeKind::Fat) return std::nullopt;
  const int file = ::open(hostPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (file < 0) return std::nullopt;
  __u32 bits = 0;
  const bool known = ::ioctl(file, FAT_IOCTL_GET_ATTRIBUTES, &bits) == 0;
  ::close(file);
  if (!known) return std::nullopt;  // the exFAT driver answers since Linux 6.7
  return FatAttributes{.Hidden = (bits & ATTR_HIDDEN) != 0,
                       .System = (bits & ATTR_SYS) != 0,
                       .ReadOnly = (bits & ATTR_RO) != 0};
}

}  // namespace kvr5
