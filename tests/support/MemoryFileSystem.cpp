#include "support/MemoryFileSystem.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/CodePage.h"

namespace kvr5::test {
namespace {

std::string Fold(std::string_view name) {
  return CodePage(65001).Fold(name);
}

/// A path with single backslashes and none at its end, also "C:" for a root.
std::string Plain(std::string_view path) {
  std::string plain;
  for (const char c : path) {
    if (c != '\\' || !plain.ends_with('\\')) plain += c;
  }
  if (plain.ends_with('\\')) plain.pop_back();
  return plain;
}

std::string Key(std::string_view path) {
  return Fold(Plain(path));
}

std::string NameOf(const std::string& plain) {
  return plain.substr(plain.rfind('\\') + 1);
}

/// The folder above; empty for a root.
std::string ParentOf(const std::string& plain) {
  const std::size_t last = plain.rfind('\\');
  return last == std::string::npos ? std::string() : plain.substr(0, last);
}

bool IsReserved(const std::string& name) {
  std::string stem = Fold(name.substr(0, name.find('.')));
  const bool numbered = stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9';
  if (numbered) stem.pop_back();
  if (stem == "com" || stem == "lpt") return numbered;
  return !numbered && (stem == "con" || stem == "prn" || stem == "aux" || stem == "nul");
}

bool CanBeName(const std::string& name) {
  const bool forbidden = std::ranges::any_of(name, [](char c) {
    return static_cast<unsigned char>(c) < 0x20 ||
           std::string_view("<>:\"/\\|?*").find(c) != std::string_view::npos;
  });
  return !name.empty() && !forbidden && name.back() != '.' && name.back() != ' ' &&
         !IsReserved(name);
}

}  // namespace

class MemoryFileSystem::OpenFile : public File {
 public:
  OpenFile(MemoryFileSystem& files, std::string path, std::shared_ptr<Node> node, OpenMode mode)
      : files_(files), path_(std::move(path)), node_(std::move(node)), mode_(mode) {}

  Result<std::size_t> Read(std::span<char> buffer) override {
    auto count = ReadAt(place_, buffer);
    if (count) place_ += count.Value();
    return count;
  }

  Result<std::size_t> ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    if (auto error = files_.Failure(path_, Operation::Read)) return error;
    const std::string& bytes = node_->Bytes;
    const auto start = static_cast<std::size_t>(std::min<std::uint64_t>(offset, bytes.size()));
    const std::size_t count = std::min(buffer.size(), bytes.size() - start);
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(start), count, buffer.begin());
    return count;
  }

  Error Write(std::string_view bytes) override {
    if (mode_ == OpenMode::Read) return Error(errors::PermissionDenied);
    files_.calls_.push_back("write " + path_);
    if (auto error = files_.Failure(path_, Operation::Write)) return error;
    const auto room = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), files_.free_));
    node_->Bytes.append(bytes.substr(0, room));
    files_.free_ -= room;
    files_.Touch(*node_);
    return room < bytes.size() ? Error(errors::DiskFull) : Error();
  }

  Error Flush() override {
    files_.calls_.push_back("flush " + path_);
    return files_.Failure(path_, Operation::Flush);
  }

  Error Close() override {
    if (std::exchange(closed_, true)) return {};
    files_.calls_.push_back("close " + path_);
    return files_.Failure(path_, Operation::Close);
  }

  Result<std::uint64_t> Size() override { return std::uint64_t{node_->Bytes.size()}; }

 private:
  MemoryFileSystem& files_;
  std::string path_;
  std::shared_ptr<Node> node_;
  OpenMode mode_;
  std::uint64_t place_ = 0;
  bool closed_ = false;
};

MemoryFileSystem::MemoryFileSystem() {
  AddFolder("C:\\");
}

void MemoryFileSystem::AddFile(std::string_view path, std::string_view bytes) {
  const std::string plain = Plain(path);
  AddFolder(ParentOf(plain));
  auto node = Find(plain);
  if (!node) node = Create(plain, false);
  node->Bytes = bytes;
  Touch(*node);
}

void MemoryFileSystem::AddFolder(std::string_view path) {
  const std::string plain = Plain(path);
  if (plain.empty() || Find(plain)) return;
  AddFolder(ParentOf(plain));
  Create(plain, true);
}

void MemoryFileSystem::SetAttributes(std::string_view path, bool hidden, bool system,
                                     bool readOnly) {
  const auto node = Find(path);
  ASSERT_NE(node, nullptr) << path;
  node->Info.Hidden = hidden;
  node->Info.System = system;
  node->Info.ReadOnly = readOnly;
}

std::string MemoryFileSystem::Content(std::string_view path) const {
  const auto node = Find(path);
  EXPECT_NE(node, nullptr) << path;
  return node ? node->Bytes : std::string();
}

bool MemoryFileSystem::Exists(std::string_view path) const {
  return Find(path) != nullptr;
}

void MemoryFileSystem::Fail(std::string_view path, int number, Operation operation) {
  failures_[{Key(path), operation}] = number;
}

Result<FileInfo> MemoryFileSystem::Info(std::string_view path) const {
  if (auto error = Failure(path, Operation::Info)) return error;
  const auto node = Find(path);
  if (!node) return Missing(path);
  FileInfo info = node->Info;
  info.Size = node->Bytes.size();
  return info;
}

Result<std::vector<FileInfo>> MemoryFileSystem::List(std::string_view folder) const {
  if (auto error = Failure(folder, Operation::List)) return error;
  const auto node = Find(folder);
  if (!node || !node->Info.IsFolder) return Error(errors::PathNotFound);
  const std::string above = Key(folder) + "\\";
  std::vector<FileInfo> infos;
  for (auto it = nodes_.lower_bound(above); it != nodes_.end(); ++it) {
    if (!it->first.starts_with(above)) break;
    if (it->first.find('\\', above.size()) != std::string::npos) continue;
    infos.push_back(it->second->Info);
    infos.back().Size = it->second->Bytes.size();
  }
  return infos;
}

Result<std::unique_ptr<File>> MemoryFileSystem::Open(std::string_view path, OpenMode mode) {
  if (auto error = Failure(path, Operation::Open)) return error;
  auto node = Find(path);
  if (!node && mode == OpenMode::Read) return Missing(path);
  if (node && mode == OpenMode::New) return Error(errors::FileExists);
  if (!node) {
    if (auto error = CannotCreate(path)) return error;
    node = Create(Plain(path), false);
  }
  const bool writes = mode != OpenMode::Read;
  if (node->Info.IsFolder || (writes && node->Info.ReadOnly)) return Error(errors::PathFileAccess);
  if (mode == OpenMode::Write) {
    free_ += node->Bytes.size();
    node->Bytes.clear();
  }
  if (writes) Touch(*node);
  return std::unique_ptr<File>(std::make_unique<OpenFile>(*this, Spelled(path), node, mode));
}

Error MemoryFileSystem::Delete(std::string_view path) {
  if (auto error = Failure(path, Operation::Delete)) return error;
  const auto node = Find(path);
  if (!node) return Missing(path);
  if (node->Info.IsFolder || node->Info.ReadOnly) return Error(errors::PathFileAccess);
  calls_.push_back("delete " + Spelled(path));
  free_ += node->Bytes.size();
  nodes_.erase(Key(path));
  return {};
}

Error MemoryFileSystem::CreateFolder(std::string_view path) {
  if (auto error = Failure(path, Operation::CreateFolder)) return error;
  if (Find(path)) return Error(errors::PathFileAccess);
  if (auto error = CannotCreate(path)) return error;
  calls_.push_back("folder " + Plain(path));
  Create(Plain(path), true);
  return {};
}

Error MemoryFileSystem::Rename(std::string_view from, std::string_view to) {
  if (auto error = Failure(from, Operation::Rename)) return error;
  if (auto error = Failure(to, Operation::Rename)) return error;
  const auto node = Find(from);
  if (!node) return Missing(from);
  if (const auto taken = Find(to); taken && taken != node) return Error(errors::FileExists);
  if (auto error = CannotCreate(to)) return error;
  const std::string target = Plain(to);
  calls_.push_back("rename " + Spelled(from) + " " + target);
  Move(Key(from), Key(to), NameOf(target));
  return {};
}

Error MemoryFileSystem::Replace(std::string_view from, std::string_view to) {
  if (auto error = Failure(from, Operation::Replace)) return error;
  if (auto error = Failure(to, Operation::Replace)) return error;
  const auto node = Find(from);
  if (!node) return Missing(from);
  const auto old = Find(to);
  if (node->Info.IsFolder || (old && old->Info.IsFolder)) return Error(errors::PathFileAccess);
  if (!old) {
    if (auto error = CannotCreate(to)) return error;
  }
  calls_.push_back("replace " + Spelled(from) + " " + Spelled(to));
  if (old && old != node) free_ += old->Bytes.size();
  Move(Key(from), Key(to), old ? old->Info.Name : NameOf(Plain(to)));
  return {};
}

Result<std::size_t> MemoryFileSystem::CopyRange(File& from, File& to, std::size_t size) {
  std::string buffer(size, '\0');
  auto count = from.Read(buffer);
  if (!count || count.Value() == 0) return count;
  if (auto error = to.Write(std::string_view(buffer).substr(0, count.Value()))) return error;
  return count;
}

Error MemoryFileSystem::SyncVolume(std::string_view path) {
  calls_.push_back("sync " + Plain(path).substr(0, 2) + "\\");
  return Failure(path, Operation::SyncVolume);
}

Result<std::uint64_t> MemoryFileSystem::FreeSpace(std::string_view path) const {
  if (auto error = Failure(path, Operation::Info)) return error;
  if (!Find(Plain(path).substr(0, 2))) return Error(errors::PathNotFound);
  return free_;
}

Result<VolumeSpace> MemoryFileSystem::Space(std::string_view path) const {
  const auto free = FreeSpace(path);
  if (!free) return free.Err();
  std::uint64_t used = 0;
  for (const auto& [name, node] : nodes_) used += node->Bytes.size();
  return VolumeSpace{free.Value(), used + free.Value(), free.Value()};
}

bool MemoryFileSystem::SameFile(std::string_view a, std::string_view b) const {
  const auto node = Find(a);
  return node && node == Find(b);
}

std::string MemoryFileSystem::HostPath(std::string_view path) const {
  std::string host = Spelled(path);
  std::ranges::replace(host, '\\', '/');
  const std::string drive = Fold(host.substr(0, 1));
  host.erase(0, 2);
  if (drive != "c") return "/media/" + drive + host;
  return host.empty() ? "/" : host;
}

Result<std::string> MemoryFileSystem::SystemPath(std::string_view given) const {
  if (!given.starts_with('/')) return Spelled(given);
  if (given.find_first_of("|:\\*?") != std::string_view::npos) return Error(errors::BadFileName);
  std::string path = "C:" + std::string(given);
  std::ranges::replace(path, '/', '\\');
  return Spelled(path);
}

Error MemoryFileSystem::Failure(std::string_view path, Operation operation) const {
  for (const auto& where : {Key(path), Key("")}) {
    for (const Operation asked : {operation, Operation::Any}) {
      const auto found = failures_.find({where, asked});
      if (found != failures_.end() && found->second != 0) return Error(found->second);
    }
  }
  return {};
}

std::shared_ptr<MemoryFileSystem::Node> MemoryFileSystem::Find(std::string_view path) const {
  const auto found = nodes_.find(Key(path));
  return found == nodes_.end() ? nullptr : found->second;
}

Error MemoryFileSystem::Missing(std::string_view path) const {
  const auto parent = Find(ParentOf(Plain(path)));
  return Error(parent && parent->Info.IsFolder ? errors::FileNotFound : errors::PathNotFound);
}

Error MemoryFileSystem::CannotCreate(std::string_view path) const {
  const std::string plain = Plain(path);
  if (!CanBeName(NameOf(plain))) return Error(errors::BadFileName);
  const auto parent = Find(ParentOf(plain));
  return parent && parent->Info.IsFolder ? Error() : Error(errors::PathNotFound);
}

std::shared_ptr<MemoryFileSystem::Node> MemoryFileSystem::Create(std::string_view path,
                                                                 bool folder) {
  auto node = std::make_shared<Node>();
  node->Info.Name = NameOf(std::string(path));
  node->Info.IsFolder = folder;
  Touch(*node);
  nodes_[Key(path)] = node;
  return node;
}

void MemoryFileSystem::Move(const std::string& from, const std::string& to,
                            const std::string& name) {
  std::map<std::string, std::shared_ptr<Node>> moved;
  for (auto it = nodes_.begin(); it != nodes_.end();) {
    if (it->first == from || it->first.starts_with(from + "\\")) {
      moved[to + it->first.substr(from.size())] = it->second;
      it = nodes_.erase(it);
    } else {
      ++it;
    }
  }
  moved.at(to)->Info.Name = name;
  for (auto& [path, node] : moved) nodes_[path] = node;
}

std::string MemoryFileSystem::Spelled(std::string_view path) const {
  const std::string plain = Plain(path);
  const std::string parent = ParentOf(plain);
  if (parent.empty()) return plain + "\\";
  std::string above = Spelled(parent);
  if (!above.ends_with('\\')) above += '\\';
  const auto node = Find(plain);
  return above + (node ? node->Info.Name : NameOf(plain));
}

}  // namespace kvr5::test
