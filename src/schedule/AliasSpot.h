#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kvr5 {

/// The names of the spots' files on the card: "F3-0122.mp3" is the second spot of the twelfth
/// segment of day 3.

/// The name of one: its day and place as they stand in the database ("" for Null), the segment's
/// running number with three digits at least.
std::string AliasDelloSpot(std::string_view giorno, int segmento, std::string_view pos);

/// The running number of the segments of a day, for spots that come by day, segment and place: 1
/// for the first segment that has a spot, then 1 more with each that follows. It counts segments as
/// they were created, not by time, and starts anew when the day changes, also within a segment.
class NumeroSegmento {
 public:
  /// The number for the next spot, by its NPlaylist and IDSched as they stand in the database.
  int Di(std::string_view giorno, std::string_view segmento);

 private:
  std::string giorno_;
  std::string segmento_;
  int numero_ = 0;  ///< 0: no spot yet
};

}  // namespace kvr5
