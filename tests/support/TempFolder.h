#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kvr5::test {

/// A folder of its own for one test, gone with everything in it at the end. Its path is short, as
/// settings hold at most 99 characters.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  /// The folder in the host's form, without a closing slash.
  const std::filesystem::path& Host() const { return folder_; }
  /// The same in the system's form, such as "C:\tmp\kvr5-1", with `name` behind it if given.
  std::string System(std::string_view name = {}) const;
  /// Writes a file of the folder, making the folders it needs.
  void Write(const std::string& name, std::string_view bytes) const;
  /// All bytes of a file of the folder; a missing one fails the test.
  std::string Read(const std::string& name) const;
  bool Exists(const std::string& name) const;
  /// True when both files hold the same bytes; for files too large or too binary to print.
  bool Same(const std::string& a, const std::string& b) const { return Read(a) == Read(b); }

 private:
  std::filesystem::path folder_;
};

}  // namespace kvr5::test
