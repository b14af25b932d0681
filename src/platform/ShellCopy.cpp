#include "platform/ShellCopy.h"

#include "platform/copy/CopyRun.h"

namespace kvr5 {

CopyOutcome ShellCopy(FileSystem& files, const std::vector<CopyPair>& pairs,
                      CopyObserver& observer) {
  observer.Begin();
  const CopyOutcome outcome = CopyRun(files, observer).Run(pairs);
  observer.End();
  return outcome;
}

}  // namespace kvr5
