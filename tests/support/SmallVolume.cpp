#include "support/SmallVolume.h"

#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <memory>

namespace kvr5::test {

namespace fs = std::filesystem;

namespace {

struct Answer {
  int Status = -1;
  std::string Text;
};

/// Runs a command of the system administrator and returns its first line.
Answer Run(const std::string& command) {
  struct ClosePipe {
    void operator()(FILE* pipe) const { pclose(pipe); }
  };
  const std::string line = "PATH=$PATH:/usr/sbin:/sbin; " + command + " 2>&1";
  std::unique_ptr<FILE, ClosePipe> pipe(popen(line.c_str(), "r"));
  if (!pipe) return {};
  Answer answer;
  std::array<char, 256> buffer{};
  while (fgets(buffer.data(), buffer.size(), pipe.get()) != nullptr) answer.Text += buffer.data();
  answer.Status = pclose(pipe.release());
  answer.Text = answer.Text.substr(0, answer.Text.find('\n'));
  return answer;
}

/// A fill that misses its mount would fill the disk: so nothing counts but another device.
bool IsMountPoint(const fs::path& folder) {
  struct stat inside {};
  struct stat outside {};
  return stat(folder.c_str(), &inside) == 0 && stat((folder / "..").c_str(), &outside) == 0 &&
         inside.st_dev != outside.st_dev;
}

}  // namespace

std::unique_ptr<SmallVolume> SmallVolume::InMemory(const fs::path& folder, std::size_t mebibytes) {
  std::unique_ptr<SmallVolume> volume(new SmallVolume(folder));
  fs::create_directories(folder);
  const std::string size = "size=" + std::to_string(mebibytes) + "m";
  if (mount("tmpfs", folder.c_str(), "tmpfs", 0, size.c_str()) != 0) {
    volume->why_ = std::string("no right to mount a volume in memory: ") + std::strerror(errno);
  } else if (IsMountPoint(folder)) {
    volume->why_.clear();
  }
  return volume;
}

std::unique_ptr<SmallVolume> SmallVolume::ExFat(const fs::path& folder, std::size_t mebibytes) {
  std::unique_ptr<SmallVolume> volume(new SmallVolume(folder));
  fs::create_directories(folder);
  const fs::path image = folder.parent_path() / "volume.img";
  const std::string name = "'" + image.string() + "'";
  const Answer made = Run("truncate -s " + std::to_string(mebibytes) + "M " + name +
                          " && mkfs.exfat -L CARD " + name);
  if (made.Status != 0) {
    volume->why_ = "no exFAT volume can be made: " + made.Text;
    return volume;
  }
  const Answer loop = Run("losetup -f --show " + name);
  if (loop.Status != 0) {
    volume->why_ = "no right to a loop device: " + loop.Text;
    return volume;
  }
  volume->loop_ = loop.Text;
  const Answer mounted = Run("mount.exfat-fuse " + loop.Text + " '" + folder.string() + "'");
  if (mounted.Status == 0 && IsMountPoint(folder)) {
    volume->why_.clear();
  } else {
    volume->why_ = "no exFAT volume can be mounted: " + mounted.Text;
  }
  return volume;
}

bool SmallVolume::Protect() const {
  return mount(nullptr, folder_.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

bool SmallVolume::Unmount() {
  if (!IsMounted()) return true;
  if (umount(folder_.c_str()) != 0) return false;
  why_ = "unmounted";
  return true;
}

SmallVolume::~SmallVolume() {
  // Even where a file was left open: nothing of the volume may stay behind.
  if (!Unmount()) umount2(folder_.c_str(), MNT_DETACH);
  if (!loop_.empty()) Run("losetup -d " + loop_);
}

}  // namespace kvr5::test
