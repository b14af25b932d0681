#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace kvr5::test {

/// Another file system whose device fails when a test wants it to. Prefixes are paths in the
/// system's form; a fault concerns what lies at or below its prefix. "" is everything.
class FaultyFileSystem : public FileSystem {
 public:
  /// `inner` must outlive it.
  explicit FaultyFileSystem(FileSystem& inner) : inner_(inner) {}

  /// Writing fails with `error` once this many bytes were written below the prefix.
  void FailWritesAfter(std::string prefix, std::uint64_t bytes, int error);
  /// The volume at the prefix holds this many bytes of files: 61 on more, FreeSpace tells the rest.
  void LimitRoom(std::string prefix, std::uint64_t bytes);
  /// The volume at the prefix is write-protected: 70 on every change.
  void Protect(std::string prefix);
  /// The volume at the prefix is pulled out after this many operations on it: its paths are 76
  /// then, its open files 68.
  void VanishAfter(std::string prefix, std::size_t operations);
  /// Flushing fails with `error` below the prefix.
  void FailFlush(std::string prefix, int error);
  /// Reading below the prefix fails with `error` from this offset on.
  void FailReadsAfter(std::string prefix, std::uint64_t bytes, int error);
  /// One operation, counted from 0 below the prefix, fails with `error`; the next ones work.
  void FailOperation(std::string prefix, std::size_t index, int error);
  /// All faults are over.
  void Repair();

  /// What FailOperation made fail ("Replace"), or "" when it never came to it.
  const std::string& FailedOperation() const { return failedOperation_; }
  /// How many of these files were open at once, at the most.
  std::size_t MostOpen() const { return mostOpen_; }

  Result<FileInfo> Info(std::string_view path) const override;
  Result<std::vector<FileInfo>> List(std::string_view folder) const override;
  Result<std::unique_ptr<File>> Open(std::string_view path, OpenMode mode) override;
  Error Delete(std::string_view path) override;
  Error DeleteUnheld(std::string_view path) override;
  Result<std::shared_ptr<void>> Hold(std::string_view path) override { return inner_.Hold(path); }
  std::string BehindLink(std::string_view path) const override { return inner_.BehindLink(path); }
  Error CreateFolder(std::string_view path) override;
  Error DeleteFolder(std::string_view path) override;
  std::shared_ptr<void> HoldNames() override { return inner_.HoldNames(); }
  Error Rename(std::string_view from, std::string_view to) override;
  Error Replace(std::string_view from, std::string_view to) override;
  Result<std::size_t> CopyRange(File& from, File& to, std::size_t size) override;
  Error FlushAll(std::span<File* const> files) override;
  Error SyncVolume(std::string_view path) override;
  Result<std::uint64_t> FreeSpace(std::string_view path) const override;
  Result<VolumeSpace> Space(std::string_view path) const override;
  bool SameFile(std::string_view a, std::string_view b) const override;
  std::string HostPath(std::string_view path) const override { return inner_.HostPath(path); }
  Result<std::string> SystemPath(std::string_view given) const override {
    return inner_.SystemPath(given);
  }

 private:
  class FaultyFile;

  enum class Kind { Look, Change, OfOpenFile };

  struct Limit {
    std::string Prefix;
    std::uint64_t Bytes = 0;
    int Error = 0;
  };
  struct Countdown {
    std::string Prefix;
    std::size_t Left = 0;
    int Error = 0;
    bool Over = false;
  };

  /// What an operation on `path` fails with, if it does; counts it.
  Error Touch(const char* operation, std::string_view path, Kind kind) const;
  /// How many of `size` bytes can be written to a file at `path`; why not all, in `error`.
  std::uint64_t Writable(std::string_view path, std::uint64_t size, Error& error);
  /// How many of `size` bytes can be read at `offset`; why not all, in `error`.
  std::uint64_t Readable(std::string_view path, std::uint64_t offset, std::uint64_t size,
                         Error& error) const;
  Error FlushFault(std::string_view path) const;
  std::uint64_t Used(const std::string& folder) const;

  FileSystem& inner_;
  std::optional<Limit> writes_;
  std::uint64_t written_ = 0;
  std::optional<Limit> room_;
  std::optional<std::string> protected_;
  mutable std::optional<Countdown> vanish_;
  mutable std::optional<Countdown> single_;
  std::optional<Limit> flush_;
  std::optional<Limit> reads_;
  mutable std::string failedOperation_;
  std::size_t open_ = 0;
  std::size_t mostOpen_ = 0;
};

}  // namespace kvr5::test
