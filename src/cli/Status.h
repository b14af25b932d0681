#pragma once

namespace kvr5::cli {

/// Exit statuses; outside tools rely on them.
enum Status : int {
  kDone = 0,
  kRefused = 1,  ///< the routine gave up or refused
  kUsage = 2,    ///< wrong usage; help was printed on standard error
  kMissing = 3,  ///< something needed is missing
};

}  // namespace kvr5::cli
