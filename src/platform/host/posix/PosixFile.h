#pragma once

#include "platform/FileSystem.h"

namespace kvr5::host {

/// An open file of the host.
class PosixFile : public File {
 public:
  /// Takes the descriptor over.
  explicit PosixFile(int descriptor) : descriptor_(descriptor) {}
  ~PosixFile() override;
  PosixFile(const PosixFile&) = delete;
  PosixFile& operator=(const PosixFile&) = delete;

  Result<std::size_t> Read(std::span<char> buffer) override;
  Result<std::size_t> ReadAt(std::uint64_t offset, std::span<char> buffer) override;
  Error Write(std::string_view bytes) override;
  void Settle(std::uint64_t end) override;
  void ForgetCached() override;
  Error Flush() override;
  Error SetModified(std::int64_t seconds) override;
  Error Close() override;
  Result<std::uint64_t> Size() override;

  int Descriptor() const { return descriptor_; }
  /// Copies from the current place of `from`, by the kernel where it can.
  Result<std::size_t> CopyFrom(PosixFile& from, std::size_t size);
  /// The failure of an earlier write-back, if any.
  const Error& Failed() const { return failed_; }
  /// Begins to write everything back, without waiting.
  void StartWriteBack();

 private:
  /// How CopyFrom moves its bytes: the quickest way that hasn't been refused yet.
  enum class Way { CopyFileRange, SendFile, Buffer };

  Result<std::size_t> CopyThroughBuffer(PosixFile& from, std::size_t size);
  /// Writes until all is written or a call fails, whose errno it leaves in `code`.
  std::size_t WriteSome(std::string_view bytes, int& code);

  int descriptor_;
  Way way_ = Way::CopyFileRange;
  std::uint64_t settled_ = 0;  ///< bytes from the start that have been waited for
  Error failed_;               ///< of an earlier write-back: the kernel tells it only once
};

}  // namespace kvr5::host
