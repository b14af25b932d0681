#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace kvr5::test {

/// A small volume mounted at an empty folder for the life of the object, in place of a card. A test
/// that finds it not mounted is skipped and says why.
class SmallVolume {
 public:
  ~SmallVolume();
  SmallVolume(const SmallVolume&) = delete;
  SmallVolume& operator=(const SmallVolume&) = delete;

  /// In memory, told apart by case.
  static std::unique_ptr<SmallVolume> InMemory(const std::filesystem::path& folder,
                                               std::size_t mebibytes);
  /// exFAT on a loop device by its user-space driver; names without regard to case. The image is
  /// made in `folder`'s parent.
  static std::unique_ptr<SmallVolume> ExFat(const std::filesystem::path& folder,
                                            std::size_t mebibytes);

  bool IsMounted() const { return why_.empty(); }
  /// Why it isn't mounted.
  const std::string& Why() const { return why_; }
  /// Makes it write-protected.
  bool Protect() const;
  /// Takes it away while the folder stays. False when something keeps it busy.
  bool Unmount();

 private:
  explicit SmallVolume(std::filesystem::path folder) : folder_(std::move(folder)) {}

  std::filesystem::path folder_;
  std::string why_ = "not mounted";
  std::string loop_;
};

}  // namespace kvr5::test
