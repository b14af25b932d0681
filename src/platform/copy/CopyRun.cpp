#include "platform/copy/CopyRun.h"

#include <algorithm>
#include <array>

#include "platform/FileOps.h"

namespace kvr5 {
namespace {

constexpr std::size_t kPiece = std::size_t{1} << 20U;

/// Adds up what a copy of a folder comes to.
class Counter : public CopyVisitor {
 public:
  Counter(CopyState& state, CopyObserver& observer) : state_(state), observer_(observer) {}
  bool Entered(const std::string& source) override {
    state_.File = source;
    return observer_.Progress(state_);
  }
  bool TakeFolder(const std::string& /*target*/) override { return true; }
  bool TakeFile(const std::string& /*source*/, const FileInfo& info,
                const std::string& /*target*/) override {
    ++state_.FileCount;
    state_.BytesTotal += info.Size;
    return true;
  }
  bool Unreadable(const std::string& /*source*/, const Error& /*error*/) override {
    return true;  // the copy itself will meet it
  }

 private:
  CopyState& state_;
  CopyObserver& observer_;
};

/// True when a piece failed because its source can't be read at `offset`. A full or protected
/// volume is always the destination.
bool IsAtSource(const Error& error, File& source, std::uint64_t offset) {
  if (error.Number() == errors::DiskFull || error.Number() == errors::PermissionDenied) {
    return false;
  }
  std::array<char, 4096> probe{};
  return !source.ReadAt(offset, probe);
}

}  // namespace

CopyOutcome CopyRun::Run(const std::vector<CopyPair>& pairs) {
  if (Count(pairs)) {
    static_cast<void>(
        std::ranges::all_of(pairs, [this](const CopyPair& pair) { return CopyOnePair(pair); }));
  }
  batch_.Abandon();
  static_cast<void>(Commit());
  SyncWritten();
  CopyOutcome outcome{.FilesCopied = batch_.FilesCopied(),
                      .BytesCopied = batch_.BytesCopied(),
                      .LeftOut = std::move(leftOut_)};
  if (cancelled_) {
    outcome.Result = errors::Cancelled;
  } else if (failure_) {
    outcome.Result = failure_->Cause.Number();
    observer_.Failed(*failure_);
  }
  return outcome;
}

bool CopyRun::Count(const std::vector<CopyPair>& pairs) {
  Counter counter(state_, observer_);
  for (const CopyPair& pair : pairs) {
    const std::string_view name = LastName(pair.Source);
    bool goOn = true;
    if (HasWildcard(name)) {
      goOn = CopyTree(files_, name, counter)
                 .Walk(std::string(FolderOf(pair.Source)), pair.Destination);
    } else if (const Result<FileInfo> info = files_.Info(pair.Source); !info) {
      continue;
    } else if (info.Value().IsFolder) {
      goOn = CopyTree(files_, "*.*", counter).Walk(pair.Source, pair.Destination);
    } else {
      counter.TakeFile(pair.Source, info.Value(), pair.Destination);
    }
    if (!goOn) {
      cancelled_ = true;
      return false;
    }
  }
  return true;
}

bool CopyRun::CopyOnePair(const CopyPair& pair) {
  // One pair after another: what a pair reads, those before it have brought to its place.
  const std::string_view name = LastName(pair.Source);
  if (HasWildcard(name)) {
    return Commit() && CopyFolder(std::string(FolderOf(pair.Source)), name, pair.Destination);
  }
  if (batch_.Awaits(pair.Source) && !Commit()) return false;
  const Result<FileInfo> info = files_.Info(pair.Source);
  if (!info) {
    const bool missing = info.Err().Number() == errors::PathNotFound;
    return Fail(pair.Source, true, missing ? Error(errors::FileNotFound) : info.Err());
  }
  const std::string target = pair.Destination.ends_with('\\')
                                 ? JoinPath(pair.Destination, info.Value().Name)
                                 : pair.Destination;
  if (info.Value().IsFolder) {
    return Commit() && MakeFolder(target) && CopyFolder(pair.Source, "*.*", target);
  }
  targetFolder_ = FolderOf(target);
  return CopyOne(pair.Source, info.Value(), target);
}

bool CopyRun::CopyFolder(const std::string& source, std::string_view pattern,
                         const std::string& target) {
  targetFolder_ = target;
  return CopyTree(files_, pattern, *this).Walk(source, target);
}

bool CopyRun::CopyOne(const std::string& source, const FileInfo& info, const std::string& target) {
  state_.File = source;
  ++state_.FileNumber;
  if (!Report()) return false;
  if (files_.SameFile(source, target)) {
    state_.BytesDone += info.Size;
    return true;
  }
  auto from = files_.Open(source, OpenMode::Read);
  if (!from) return Fail(source, true, from.Err());
  if (!Begin(target, info.Size)) return false;
  if (!Transfer(*from.Value(), source, info, target)) return false;
  Ignora(batch_.Current().SetModified(info.Modified));
  batch_.Finish();
  return !batch_.IsFull() || Commit();
}

bool CopyRun::Begin(const std::string& target, std::uint64_t size) {
  bool folderMade = false;
  const auto [folder, isNew] = swept_.emplace(FolderOf(target));
  if (isNew) SweepLeftovers(files_, *folder);
  for (;;) {
    const Error error = batch_.Begin(target);
    if (!error) {
      written_.insert(targetFolder_);
      return true;
    }
    if (error.Number() == errors::PathNotFound && !folderMade) {
      if (!MakeFolder(std::string(FolderOf(target)))) return false;
      folderMade = true;
    } else if (error.Number() != errors::DiskFull || !MakeRoom(target, size)) {
      return Fail(target, false, error);
    }
  }
}

bool CopyRun::Transfer(File& from, const std::string& source, const FileInfo& info,
                       const std::string& target) {
  std::uint64_t done = 0;
  for (;;) {
    const Result<std::size_t> copied = files_.CopyRange(from, batch_.Current(), kPiece);
    if (!copied) {
      const Error error = copied.Err();
      const std::uint64_t missing = info.Size > done ? info.Size - done : 1;
      if (error.Number() == errors::DiskFull && MakeRoom(target, missing)) continue;
      const bool atSource = IsAtSource(error, from, done);
      return Fail(atSource ? source : target, atSource, error);
    }
    if (copied.Value() == 0) return true;
    done += copied.Value();
    state_.BytesDone += copied.Value();
    state_.BytesTotal = std::max(state_.BytesTotal, state_.BytesDone);
    batch_.Added(copied.Value());
    if (!Report()) return false;
  }
}

bool CopyRun::MakeRoom(const std::string& target, std::uint64_t missing) {
  if (!batch_.IsEmpty()) return Commit();  // the files that they replace give theirs back
  const Result<FileInfo> old = files_.Info(target);
  if (!old || old.Value().IsFolder) return false;
  const Result<std::uint64_t> free = files_.FreeSpace(FolderOf(target));
  if (!free || free.Value() + old.Value().Size < missing) return false;
  return !files_.Delete(target);
}

bool CopyRun::MakeFolder(const std::string& folder) {
  const Error error = CreateFolders(folder);
  return error ? Fail(folder, false, error) : true;
}

Error CopyRun::CreateFolders(const std::string& folder) {
  const Result<FileInfo> info = files_.Info(folder);
  if (info) return info.Value().IsFolder ? Error() : Error(errors::PathFileAccess);
  const int number = info.Err().Number();
  const std::string parent(FolderOf(folder));
  if (parent == folder) return info.Err();
  if (number == errors::PathNotFound) {
    if (Error error = CreateFolders(parent)) return error;
  } else if (number != errors::FileNotFound) {
    return info.Err();
  }
  return files_.CreateFolder(folder);
}

bool CopyRun::Commit() {
  const std::optional<CopyFailure> failure = batch_.Commit();
  return failure ? Fail(failure->File, failure->Source, failure->Cause) : true;
}

bool CopyRun::Report() {
  cancelled_ = !observer_.Progress(state_);
  return !cancelled_;
}

bool CopyRun::Fail(const std::string& file, bool source, const Error& cause) {
  if (!failure_) failure_ = CopyFailure{.File = file, .Source = source, .Cause = cause};
  return false;
}

void CopyRun::SyncWritten() {
  if (batch_.FilesCopied() == 0) return;
  for (const std::string& folder : written_) {
    const Error error = files_.SyncVolume(folder);
    if (error) static_cast<void>(Fail(folder, false, error));
  }
}

bool CopyRun::Entered(const std::string& /*source*/) {
  return true;
}

bool CopyRun::TakeFolder(const std::string& target) {
  return MakeFolder(target);
}

bool CopyRun::TakeFile(const std::string& source, const FileInfo& info, const std::string& target) {
  return CopyOne(source, info, target);
}

void CopyRun::LeftOut(const std::string& name) {
  constexpr std::size_t kTold = 100;
  if (leftOut_.size() < kTold) leftOut_.push_back(name);
}

bool CopyRun::Unreadable(const std::string& source, const Error& error) {
  return Fail(source, true, error);
}

}  // namespace kvr5
