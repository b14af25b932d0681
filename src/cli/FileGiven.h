#pragma once

#include <functional>
#include <string>

#include "cli/Session.h"
#include "mp3/modMp3Infos.h"

namespace kvr5::cli {

/// A file that was named, for a list of the program.
struct FileGiven {
  std::string Path;  ///< system form, spelled as on the disk; "" where there is none
  std::string Why;   ///< why the screen would refuse it; "" when it takes it
};

/// Looks at a file by the rule of a screen. `words`: the key of the screen's refusal.
FileGiven LookAtFile(Session& session, modMp3Infos& reader, const std::string& file,
                     const std::function<bool(const InfoMp3&)>& good, const char* words);

}  // namespace kvr5::cli
