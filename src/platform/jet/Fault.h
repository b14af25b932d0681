#pragma once

#include "platform/Error.h"

namespace kvr5::jet {

/// Why a file of the Jet engine isn't read.
enum class Fault {
  None,
  NotJet,      ///< it isn't one
  Jet3,        ///< of an older version, whose pages are laid out otherwise
  Newer,       ///< of a later engine
  Damaged,     ///< cut short, or its pages contradict themselves
  NoTable,     ///< a table that is needed isn't there
  NoColumn,    ///< a column that is needed isn't there, or is of another type
  Unreadable,  ///< the host doesn't give its bytes
};

}  // namespace kvr5::jet
