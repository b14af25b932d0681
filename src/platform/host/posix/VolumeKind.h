#pragma once

#include <sys/types.h>

#include <string>

namespace kvr5::host {

/// How a volume takes the names of its files, as far as its file system tells.
enum class VolumeKind {
  Fat,        ///< FAT or exFAT of the kernel's own drivers: any case is found, flags are kept
  MindsCase,  ///< a file system of the kernel's own that minds the case of names
  Unknown,    ///< it could be either: another file system, a driver of its own, one far away
};

/// The kind of the volume that `path` (host form) lies on; Unknown when nothing is there.
VolumeKind KindOf(const std::string& path);

/// The same for a path that was found on `device`. What a device holds is asked once in a moment
/// only: a card is not changed that fast.
VolumeKind KindOf(const std::string& path, dev_t device);

}  // namespace kvr5::host
