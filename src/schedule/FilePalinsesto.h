#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "projects/ListeDiTesto.h"

namespace kvr5 {

/// The files of the schedule that the player reads: PALIN.TXT of a project with one schedule, else
/// 1.pal to 7.pal, one for each day.
///
/// A line is a segment with its spots: the start "08:30", then for each spot a tab, its name on the
/// card without ".mp3", and a tab. So the tab between two spots is doubled and one closes the line,
/// which belongs to the format. Segments stand in the order in which they were created, not by
/// time, and one without spots has no line.
class FilePalinsesto {
 public:
  /// A spot, by day, segment and place.
  struct Spot {
    std::string StartTime;  ///< of its segment, as stored
    std::string NPlaylist;  ///< as it stands in the database; "" for Null
    std::string IDSched;
    std::string Alias;
  };

  /// `uno`: one schedule. The files are to be there at the end, be they empty.
  FilePalinsesto(ListeDiTesto& liste, bool uno);
  void Aggiungi(const Spot& spot);
  /// Writes out the last line; ListeDiTesto writes the files.
  void Fine() { Scrivi(); }

  static constexpr const char* kUno = "PALIN.TXT";
  static constexpr int kGiorni = 7;  ///< of the week, from 1
  /// "3.pal".
  static std::string NomeDelGiorno(int giorno);

 private:
  void Scrivi();

  ListeDiTesto& liste_;
  bool uno_;
  /// The line under construction, led by the day's digit, which isn't written but tells the file.
  std::string riga_;
  std::string segmento_;  ///< of the spot before
};

}  // namespace kvr5
