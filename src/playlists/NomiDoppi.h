#pragma once

#include <set>
#include <string>
#include <string_view>

#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// The names that more than one file of all playlists has, compared without regard to case. Two
/// such files can't both be brought into the project's folder, nor, in the mode of named lists,
/// onto the card.
class NomiDoppi {
 public:
  NomiDoppi() = default;
  explicit NomiDoppi(EditorPlaylist& editor);

  bool Contiene(std::string_view nome) const;
  /// What to do about one of them, named; "" where there is none.
  std::string Parole(Contesto& contesto) const;
  /// The same about this name.
  static std::string ParoleDi(Contesto& contesto, std::string_view nome);

 private:
  std::set<std::string, std::less<>> nomi_;  ///< with their letters made small
  std::string primo_;                        ///< one of them as it is spelled
};

}  // namespace kvr5
