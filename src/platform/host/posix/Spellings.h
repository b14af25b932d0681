#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kvr5::host {

/// The spelling in `folder` (host form) of a name that isn't there as it is given but may be in
/// another case; of several the first in the order of their bytes.
///
/// A folder that is asked often is read once: what was read serves again for a moment, as long as
/// the folder's time of change stays and this process changed nothing on the disk. So a list of
/// names that are missing or spelled otherwise doesn't cost its square.
std::optional<std::string> OtherSpelling(const std::string& folder, std::string_view name);

/// To be called with every change that this process makes to the names on the disk.
void ForgetSpellings();

/// While one lives, what was read of a folder serves on, whatever the folder's time of change says:
/// for a run of renames, each of which is told. What others change meanwhile isn't seen.
class SpellingsHeld {
 public:
  SpellingsHeld();
  ~SpellingsHeld();
  SpellingsHeld(const SpellingsHeld&) = delete;
  SpellingsHeld& operator=(const SpellingsHeld&) = delete;
};

/// Tells of a rename within one folder. False where nothing is held: the change is to be forgotten
/// like any other.
bool NoteRenamed(const std::string& folder, std::string_view from, std::string_view to);

}  // namespace kvr5::host
