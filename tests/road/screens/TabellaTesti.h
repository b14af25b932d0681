#pragma once

#include <map>
#include <set>
#include <string>

namespace kvr5::test {

/// Where the texts of the language files are used: key -> places, such as "frmMain.lblUscita" for
/// the caption of a control and "core/Lingua" for a source that names the key.
using UsoDeiTesti = std::map<std::string, std::set<std::string>>;

/// The use of all texts, from the sources and from a walk past every window.
const UsoDeiTesti& TestiInUso();

/// The forms' numbers, the first three digits of their keys, with their names.
const std::map<std::string, std::string>& NumeriDelleForm();

/// docs/texts.md: a table of all keys, their English texts and their places.
std::string TabellaTesti();

}  // namespace kvr5::test
