#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kvr5::host {

/// What udev found out about block devices, as it keeps it for its own use: one file a device,
/// named after its number ("b8:17"), with lines such as "E:ID_FS_LABEL_ENC=MY\x20CARD".
class UdevDatabase {
 public:
  /// `folder` is "/run/udev/data"; tests give one of their own.
  explicit UdevDatabase(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// A property of a device, which is known by its folder in sysfs; "" when there is none.
  std::string Property(const std::filesystem::path& device, std::string_view name) const;

 private:
  std::filesystem::path folder_;
};

/// Udev's way of writing any text undone: "\x20" is a blank. What isn't UTF-8 then, or isn't to be
/// seen, comes as U+FFFD.
std::string DecodedUdevText(std::string_view text);

}  // namespace kvr5::host
