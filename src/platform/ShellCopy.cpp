#include "platform/ShellCopy.h"

#include "platform/copy/CopyRun.h"

namespace kvr5 {

CopyOutcome ShellCopy(FileSystem& files, const std::vector<CopyPair>& pairs,
                      CopyObserver& observer) {
  return CopyRun(files, observer).Run(pairs);
}

}  // namespace kvr5
