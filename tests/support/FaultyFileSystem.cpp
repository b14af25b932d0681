#include "support/FaultyFileSystem.h"

#include <algorithm>

#include "platform/Fold.h"

namespace kvr5::test {
namespace {

bool IsBelow(std::string_view path, std::string_view prefix) {
  while (prefix.ends_with('\\')) prefix.remove_suffix(1);
  if (path.size() < prefix.size() || !EqualFold(path.substr(0, prefix.size()), prefix)) {
    return false;
  }
  return prefix.empty() || path.size() == prefix.size() || path[prefix.size()] == '\\';
}

}  // namespace

/// An open file that remembers its path and its places.
class FaultyFileSystem::FaultyFile : public File {
 public:
  FaultyFile(FaultyFileSystem& files, std::string path, std::unique_ptr<File> inner)
      : files_(files), path_(std::move(path)), inner_(std::move(inner)) {
    files_.mostOpen_ = std::max(files_.mostOpen_, ++files_.open_);
  }
  ~FaultyFile() override { --files_.open_; }
  FaultyFile(const FaultyFile&) = delete;
  FaultyFile& operator=(const FaultyFile&) = delete;

  Result<std::size_t> Read(std::span<char> buffer) override {
    if (Error error = Touch("Read")) return error;
    Error fault;
    const std::uint64_t size = files_.Readable(path_, place_, buffer.size(), fault);
    if (fault && size == 0) return fault;
    Result<std::size_t> read = inner_->Read(buffer.first(size));
    if (read) place_ += read.Value();
    if (read && read.Value() == size && fault) return fault;
    return read;
  }
  Result<std::size_t> ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    if (Error error = Touch("ReadAt")) return error;
    Error fault;
    if (files_.Readable(path_, offset, buffer.size(), fault) < buffer.size()) return fault;
    return inner_->ReadAt(offset, buffer);
  }
  Error Write(std::string_view bytes) override {
    if (Error error = Touch("Write")) return error;
    Error fault;
    const std::uint64_t size = files_.Writable(path_, bytes.size(), fault);
    if (Error error = inner_->Write(bytes.substr(0, size))) return error;
    return fault;
  }
  void Settle(std::uint64_t end) override { inner_->Settle(end); }
  Error Flush() override {
    if (Error error = Touch("Flush")) return error;
    if (Error error = files_.FlushFault(path_)) return error;
    return inner_->Flush();
  }
  Error SetModified(std::int64_t seconds) override {
    if (Error error = Touch("SetModified")) return error;
    return inner_->SetModified(seconds);
  }
  Error Close() override {
    const Error closed = inner_->Close();
    const Error error = Touch("Close");
    return error ? error : closed;
  }
  Result<std::uint64_t> Size() override {
    if (Error error = Touch("Size")) return error;
    return inner_->Size();
  }

  Error Touch(const char* operation) const {
    return files_.Touch(operation, path_, Kind::OfOpenFile);
  }
  File& Inner() { return *inner_; }
  const std::string& Path() const { return path_; }
  std::uint64_t Place() const { return place_; }
  void Advance(std::uint64_t bytes) { place_ += bytes; }

 private:
  FaultyFileSystem& files_;
  std::string path_;
  std::unique_ptr<File> inner_;
  std::uint64_t place_ = 0;  ///< of reading
};

void FaultyFileSystem::FailWritesAfter(std::string prefix, std::uint64_t bytes, int error) {
  writes_ = Limit{std::move(prefix), bytes, error};
  written_ = 0;
}

void FaultyFileSystem::LimitRoom(std::string prefix, std::uint64_t bytes) {
  room_ = Limit{std::move(prefix), bytes, errors::DiskFull};
}

void FaultyFileSystem::Protect(std::string prefix) {
  protected_ = std::move(prefix);
}

void FaultyFileSystem::VanishAfter(std::string prefix, std::size_t operations) {
  vanish_ = Countdown{std::move(prefix), operations};
}

void FaultyFileSystem::FailFlush(std::string prefix, int error) {
  flush_ = Limit{std::move(prefix), 0, error};
}

void FaultyFileSystem::FailReadsAfter(std::string prefix, std::uint64_t bytes, int error) {
  reads_ = Limit{std::move(prefix), bytes, error};
}

void FaultyFileSystem::FailOperation(std::string prefix, std::size_t index, int error) {
  single_ = Countdown{std::move(prefix), index, error};
  failedOperation_.clear();
}

void FaultyFileSystem::Repair() {
  writes_.reset();
  room_.reset();
  protected_.reset();
  vanish_.reset();
  single_.reset();
  flush_.reset();
  reads_.reset();
}

Error FaultyFileSystem::Touch(const char* operation, std::string_view path, Kind kind) const {
  if (vanish_ && IsBelow(path, vanish_->Prefix)) {
    if (vanish_->Left == 0) {
      return Error(kind == Kind::OfOpenFile ? errors::DeviceUnavailable : errors::PathNotFound);
    }
    --vanish_->Left;
  }
  if (protected_ && kind == Kind::Change && IsBelow(path, *protected_)) {
    return Error(errors::PermissionDenied);
  }
  if (single_ && !single_->Over && IsBelow(path, single_->Prefix)) {
    if (single_->Left == 0) {
      single_->Over = true;
      failedOperation_ = operation;
      return Error(single_->Error);
    }
    --single_->Left;
  }
  return {};
}

std::uint64_t FaultyFileSystem::Used(const std::string& folder) const {
  const auto list = inner_.List(folder);
  if (!list) return 0;
  std::uint64_t used = 0;
  for (const FileInfo& info : list.Value()) {
    used += info.IsFolder ? Used(JoinPath(folder, info.Name)) : info.Size;
  }
  return used;
}

std::uint64_t FaultyFileSystem::Writable(std::string_view path, std::uint64_t size, Error& error) {
  if (writes_ && IsBelow(path, writes_->Prefix)) {
    const std::uint64_t left = writes_->Bytes - std::min(writes_->Bytes, written_);
    if (left < size) error = Error(writes_->Error);
    size = std::min(size, left);
    written_ += size;
  }
  if (room_ && IsBelow(path, room_->Prefix)) {
    const std::uint64_t left = room_->Bytes - std::min(room_->Bytes, Used(room_->Prefix));
    if (left < size) error = Error(room_->Error);
    size = std::min(size, left);
  }
  return size;
}

std::uint64_t FaultyFileSystem::Readable(std::string_view path, std::uint64_t offset,
                                         std::uint64_t size, Error& error) const {
  if (!reads_ || !IsBelow(path, reads_->Prefix)) return size;
  const std::uint64_t left = reads_->Bytes - std::min(reads_->Bytes, offset);
  if (left < size) error = Error(reads_->Error);
  return std::min(size, left);
}

Error FaultyFileSystem::FlushFault(std::string_view path) const {
  return flush_ && IsBelow(path, flush_->Prefix) ? Error(flush_->Error) : Error();
}

Result<FileInfo> FaultyFileSystem::Info(std::string_view path) const {
  if (Error error = Touch("Info", path, Kind::Look)) return error;
  return inner_.Info(path);
}

Result<std::vector<FileInfo>> FaultyFileSystem::List(std::string_view folder) const {
  if (Error error = Touch("List", folder, Kind::Look)) return error;
  return inner_.List(folder);
}

Result<std::unique_ptr<File>> FaultyFileSystem::Open(std::string_view path, OpenMode mode) {
  const Kind kind = mode == OpenMode::Read ? Kind::Look : Kind::Change;
  if (Error error = Touch("Open", path, kind)) return error;
  auto file = inner_.Open(path, mode);
  if (!file) return file;
  return std::unique_ptr<File>(
      std::make_unique<FaultyFile>(*this, std::string(path), std::move(file.Value())));
}

Error FaultyFileSystem::Delete(std::string_view path) {
  if (Error error = Touch("Delete", path, Kind::Change)) return error;
  return inner_.Delete(path);
}

Error FaultyFileSystem::DeleteUnheld(std::string_view path) {
  if (Error error = Touch("DeleteUnheld", path, Kind::Change)) return error;
  return inner_.DeleteUnheld(path);
}

Error FaultyFileSystem::DeleteFolder(std::string_view path) {
  if (Error error = Touch("DeleteFolder", path, Kind::Change)) return error;
  return inner_.DeleteFolder(path);
}

Error FaultyFileSystem::CreateFolder(std::string_view path) {
  if (Error error = Touch("CreateFolder", path, Kind::Change)) return error;
  return inner_.CreateFolder(path);
}

Error FaultyFileSystem::Rename(std::string_view from, std::string_view to) {
  if (Error error = Touch("Rename", from, Kind::Change)) return error;
  return inner_.Rename(from, to);
}

Error FaultyFileSystem::Replace(std::string_view from, std::string_view to) {
  if (Error error = Touch("Replace", to, Kind::Change)) return error;
  return inner_.Replace(from, to);
}

Result<std::size_t> FaultyFileSystem::CopyRange(File& from, File& to, std::size_t size) {
  auto& source = dynamic_cast<FaultyFile&>(from);
  auto& target = dynamic_cast<FaultyFile&>(to);
  if (Error error = source.Touch("CopyRange")) return error;
  if (Error error = target.Touch("CopyRange")) return error;
  // Only what the source still has asks for room.
  const auto length = source.Inner().Size();
  if (!length) return length.Err();
  const std::uint64_t rest = length.Value() - std::min(length.Value(), source.Place());
  Error fault;
  const std::uint64_t asked = std::min<std::uint64_t>(size, rest);
  const std::uint64_t readable = Readable(source.Path(), source.Place(), asked, fault);
  const std::uint64_t count = Writable(target.Path(), readable, fault);
  if (count == 0 && fault) return fault;
  Result<std::size_t> copied = inner_.CopyRange(source.Inner(), target.Inner(), count);
  if (copied) source.Advance(copied.Value());
  return copied;
}

Error FaultyFileSystem::FlushAll(std::span<File* const> files) {
  std::vector<File*> inner;
  for (File* file : files) {
    auto& own = dynamic_cast<FaultyFile&>(*file);
    if (Error error = own.Touch("FlushAll")) return error;
    if (Error error = FlushFault(own.Path())) return error;
    inner.push_back(&own.Inner());
  }
  return inner_.FlushAll(inner);
}

Error FaultyFileSystem::SyncVolume(std::string_view path) {
  if (Error error = Touch("SyncVolume", path, Kind::Look)) return error;
  return inner_.SyncVolume(path);
}

Result<std::uint64_t> FaultyFileSystem::FreeSpace(std::string_view path) const {
  if (Error error = Touch("FreeSpace", path, Kind::Look)) return error;
  if (room_ && IsBelow(path, room_->Prefix)) {
    return room_->Bytes - std::min(room_->Bytes, Used(room_->Prefix));
  }
  return inner_.FreeSpace(path);
}

Result<VolumeSpace> FaultyFileSystem::Space(std::string_view path) const {
  if (Error error = Touch("Space", path, Kind::Look)) return error;
  if (room_ && IsBelow(path, room_->Prefix)) {
    const std::uint64_t free = room_->Bytes - std::min(room_->Bytes, Used(room_->Prefix));
    return VolumeSpace{free, room_->Bytes, free};
  }
  return inner_.Space(path);
}

bool FaultyFileSystem::SameFile(std::string_view a, std::string_view b) const {
  if (Touch("SameFile", a, Kind::Look) || Touch("SameFile", b, Kind::Look)) return false;
  return inner_.SameFile(a, b);
}

}  // namespace kvr5::test
