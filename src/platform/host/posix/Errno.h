#pragma once

#include <cerrno>

#include "platform/Error.h"

namespace kvr5::host {

/// The runtime's error for a number of <cerrno>. ENOENT is 53 here; whoever knows the path tells
/// whether the folder is missing too.
Error FromErrno(int code);

/// The result of a system call that is repeated while signals interrupt it.
template <typename Call>
auto Retry(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

}  // namespace kvr5::host
