#pragma once

#include <functional>

#include "platform/Drives.h"
#include "platform/Error.h"

namespace kvr5 {

/// Takes a card off the host, so that it can be pulled out.
class VolumeEjector {
 public:
  virtual ~VolumeEjector() = default;
  /// Whether the host can do so with this drive now.
  virtual bool CanEject(const Drive& drive) const = 0;
  /// Puts what isn't on the device yet there, unmounts the volume and what else of its medium is
  /// mounted, and ejects the medium where the reader can.
  ///
  /// `done` is called once, later, with what came of it: 0, 70 where a volume is in use or the user
  /// may not, 68 where the service or the drive is gone or doesn't answer, 57 otherwise. The
  /// description tells the service's own words. An ejector that is deleted calls nobody anymore.
  virtual void Eject(const Drive& drive, std::function<void(const Error&)> done) = 0;
};

}  // namespace kvr5
