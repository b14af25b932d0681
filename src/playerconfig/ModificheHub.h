#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"
#include "playerconfig/ConfigTxt.h"

namespace kvr5 {

/// The sign "settings unsaved" of the hub: whether a save would change what the player does.
///
/// A recording takes Config.txt and not the screen, so what counts is the difference between the
/// text that a save would write for each key of the hub and the text in the file, not whether the
/// user has touched a control. Hence
///  - a project that was just saved has no sign, also after the load has read its file: a time
///    "007" is written so and comes back as "7", which is the same number to the player. So two
///    runs of digits of the same value are equal; any other difference counts, since nobody can say
///    how the player reads "14.0" or "on".
///  - a load can raise the sign by itself. It shows restart whatever MIRS says, takes every MICP
///    but "1" as off, keeps a slider's own state where the value is missing or out of range: a
///    save would then put something else into the file than the player obeys now. That is exactly
///    what the user has to know before a recording.
///  - a key that the file lacks counts: the save adds it.
///  - keys whose frames the model hides count too, as they are saved all the same. MPLL counts only
///    where its frame is visible, as only then it is saved.
///  - of a file that isn't there all keys differ: what the screen shows is kept nowhere.
///
/// The file is read on demand, at load and after each save, not at each change of a control.
class ModificheHub {
 public:
  /// Takes what Config.txt of the open project holds now. Makes no file and shows no box.
  void Rileggi(Contesto& contesto);
  /// The keys that a save would change, in the order of writing.
  std::vector<std::string_view> Diverse(const ControlliHub& controlli) const;
  /// Whether there is any such key.
  bool DaSalvare(const ControlliHub& controlli) const { return !Diverse(controlli).empty(); }

 private:
  std::map<std::string, std::string, std::less<>> valori_;  // empty where there is no file
};

}  // namespace kvr5
