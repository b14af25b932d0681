#pragma once

#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace kvr5 {

/// A text (UTF-8) as it is written into a page so that it is seen as it is, whatever it holds: the
/// marks of markup become entities, quotes too, a control character U+FFFD; a blank that a page
/// would swallow, the first one and each behind another, becomes one that it keeps.
std::string TestoHtml(std::string_view testo);

/// A line of markup (UTF-8) as bytes of a report. The template declares Windows-1252: of that page
/// are the bytes where the host's page is the same one. Every other character, also each that isn't
/// ASCII on a host of another page, becomes a numeric reference, so that the page shows it all the
/// same and nothing is lost to "?".
std::string RigaInPagina(std::string_view markup, const CodePage& page);

}  // namespace kvr5
