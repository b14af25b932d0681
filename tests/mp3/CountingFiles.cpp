#include "mp3/CountingFiles.h"

#include <algorithm>
#include <utility>

namespace kvr5::test {
namespace {

class CountingFile : public File {
 public:
  CountingFile(CountingFiles& files, std::unique_ptr<File> inner)
      : files_(files), inner_(std::move(inner)) {
    ++files_.OpenFiles;
  }
  ~CountingFile() override { --files_.OpenFiles; }
  CountingFile(const CountingFile&) = delete;
  CountingFile& operator=(const CountingFile&) = delete;

  Result<std::size_t> Read(std::span<char> buffer) override {
    const Error error = Count(buffer.size());
    return error ? Result<std::size_t>(error) : inner_->Read(buffer);
  }
  Result<std::size_t> ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    const Error error = Count(buffer.size());
    return error ? Result<std::size_t>(error) : inner_->ReadAt(offset, buffer);
  }
  Error Write(std::string_view bytes) override { return inner_->Write(bytes); }
  Error Flush() override { return inner_->Flush(); }
  Error Close() override { return inner_->Close(); }
  Result<std::uint64_t> Size() override { return inner_->Size(); }

 private:
  Error Count(std::size_t bytes) {
    files_.Wanted += bytes;
    return ++files_.Reads == files_.FailingRead ? Error(errors::DeviceIo) : Error();
  }

  CountingFiles& files_;
  std::unique_ptr<File> inner_;
};

}  // namespace

Result<std::unique_ptr<File>> CountingFiles::Open(std::string_view path, OpenMode mode) {
  if (RefuseOpen) return Error(errors::PermissionDenied);
  auto file = HostFileSystem::Open(path, mode);
  if (!file) return file;
  return std::unique_ptr<File>(std::make_unique<CountingFile>(*this, std::move(file.Value())));
}

std::string CountingFiles::FromHost(std::string path) {
  std::ranges::replace(path, '/', '\\');
  return "C:" + path;
}

}  // namespace kvr5::test
