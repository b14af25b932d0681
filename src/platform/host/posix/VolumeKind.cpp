#include "platform/host/posix/VolumeKind.h"

#include <linux/magic.h>
#include <sys/vfs.h>

#include <chrono>

#ifndef XFS_SUPER_MAGIC
#define XFS_SUPER_MAGIC 0x58465342
#endif
#ifndef EXFAT_SUPER_MAGIC
#define EXFAT_SUPER_MAGIC 0x2011BAB0
#endif

namespace kvr5::host {
namespace {

using Clock = std::chrono::steady_clock;

struct Answer {
  dev_t Device = 0;
  VolumeKind Kind = VolumeKind::Unknown;
  Clock::time_point Taken;
};

Answer g_answer;  // one thread, and runs stay on one volume

}  // namespace

VolumeKind KindOf(const std::string& path) {
  struct statfs volume {};
  if (::statfs(path.c_str(), &volume) != 0) return VolumeKind::Unknown;
  switch (volume.f_type) {
    case MSDOS_SUPER_MAGIC:
    case EXFAT_SUPER_MAGIC:
      return VolumeKind::Fat;
    case EXT4_SUPER_MAGIC:
    case XFS_SUPER_MAGIC:
    case BTRFS_SUPER_MAGIC:
    case TMPFS_MAGIC:
      return VolumeKind::MindsCase;
    default:
      return VolumeKind::Unknown;
  }
}

VolumeKind KindOf(const std::string& path, dev_t device) {
  constexpr auto kMoment = std::chrono::seconds(1);
  const Clock::time_point now = Clock::now();
  if (g_answer.Device != device || now - g_answer.Taken > kMoment) {
    g_answer = {device, KindOf(path), now};
  }
  return g_answer.Kind;
}

}  // namespace kvr5::host
