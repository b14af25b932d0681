#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/ShellCopy.h"
#include "platform/copy/CopyBatch.h"
#include "platform/copy/CopyTree.h"

namespace kvr5 {

/// One copy operation from its first look at the sources to its end.
class CopyRun : private CopyVisitor {
 public:
  CopyRun(FileSystem& files, CopyObserver& observer)
      : files_(files), observer_(observer), batch_(files) {}

  CopyOutcome Run(const std::vector<CopyPair>& pairs);

 private:
  // Each of these returns false when the operation is to end: cancelled, or with failure_ set.
  bool Count(const std::vector<CopyPair>& pairs);
  bool CopyOnePair(const CopyPair& pair);
  bool CopyFolder(const std::string& source, std::string_view pattern, const std::string& target);
  bool CopyOne(const std::string& source, const FileInfo& info, const std::string& target);
  bool Begin(const std::string& target, std::uint64_t size);
  bool Transfer(File& from, const std::string& source, const FileInfo& info,
                const std::string& target);
  bool MakeRoom(const std::string& target, std::uint64_t missing);
  bool MakeFolder(const std::string& folder);
  bool Commit();
  bool Report();
  bool Fail(const std::string& file, bool source, const Error& cause);
  Error CreateFolders(const std::string& folder);
  void SyncWritten();

  bool Entered(const std::string& source) override;
  bool TakeFolder(const std::string& target) override;
  bool TakeFile(const std::string& source, const FileInfo& info,
                const std::string& target) override;
  void LeftOut(const std::string& name) override;
  bool Unreadable(const std::string& source, const Error& error) override;

  FileSystem& files_;
  CopyObserver& observer_;
  CopyBatch batch_;
  CopyState state_;
  std::string targetFolder_;       ///< where the pair at work leads, less subfolders of its own
  std::set<std::string> swept_;    ///< the target folders that were freed of leftovers
  std::set<std::string> written_;  ///< the target folders of the pairs that brought something
  std::optional<CopyFailure> failure_;
  std::vector<std::string> leftOut_;  ///< names, see CopyOutcome
  bool cancelled_ = false;
};

}  // namespace kvr5
