#include "platform/FileSystem.h"

namespace kvr5 {

Error FileSystem::FlushAll(std::span<File* const> files) {
  for (File* file : files) {
    if (Error error = file->Flush()) return error;
  }
  return {};
}

}  // namespace kvr5
