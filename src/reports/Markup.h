#pragma once

#include <string>
#include <string_view>

namespace kvr5 {

/// The recurring pieces of markup of all reports. The arguments are plain text (UTF-8), shown as
/// they are.

/// The heading of a page.
std::string TitoloReport(std::string_view testo);
/// A line with a field's label and its value.
std::string CampoReport(std::string_view etichetta, std::string_view valore);
/// The heading of a section.
std::string SezioneReport(std::string_view testo);
/// The heading of a group of rows.
std::string GruppoReport(std::string_view testo);

}  // namespace kvr5
