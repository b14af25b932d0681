#pragma once

#include <QtDBus/QDBusMessage>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kvr5 {

/// What UDisks2 told of all block devices and drives at one moment.
class UDisksObjects {
 public:
  /// The call that asks for all of them.
  static QDBusMessage Question();
  /// The answer to it; nothing for an error and for what UDisks2 doesn't say.
  static std::optional<UDisksObjects> From(const QDBusMessage& reply);
  /// The object of a device, by its name in sysfs ("sdb1"). Signs that a path on the bus can't hold
  /// stand in it as "_" and two digits.
  static std::string PathOf(const std::string& device);

  bool Knows(const std::string& path) const { return blocks_.contains(path); }
  /// The label of a volume; "" where it has none or isn't known.
  std::string LabelOf(const std::string& path) const;
  /// Whether a device is a volume that is mounted at `folder`.
  bool IsMounted(const std::string& path, const std::string& folder) const;
  /// The drive that a device belongs to, through encryption too; "" where there is none.
  std::string DriveOf(const std::string& path) const;
  /// All mounted volumes of the device's drive, each as often as it is mounted; the device itself
  /// comes last.
  std::vector<std::string> MountedBeside(const std::string& path) const;
  bool CanEject(const std::string& drive) const;

 private:
  struct Block {
    std::string Label;
    std::string Drive;
    std::string Backing;  ///< of an encrypted volume that is open: the device that it lies on
    std::vector<std::string> MountPoints;
  };

  std::map<std::string, Block> blocks_;
  std::map<std::string, bool> drives_;  ///< whether each can eject
};

}  // namespace kvr5
