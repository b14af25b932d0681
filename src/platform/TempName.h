#pragma once

#include <string>
#include <string_view>

namespace kvr5 {

/// A name for a file on its way to its good name: "~" and seven letters or digits, then ".kv5".
///
/// It takes one directory entry on a card (8.3), matches no pattern of audio files or lists, and
/// is drawn at random (2^36), so that two copies at work in one folder don't meet.
std::string NewTempName();

/// True for the names of NewTempName: what a crash may leave behind.
bool IsTempName(std::string_view name);

}  // namespace kvr5
