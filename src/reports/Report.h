#pragma once

#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// The writer of HTML reports. One report is open at a time; it lies in the open project's folder,
/// has its lines in the ANSI code page with CR LF, and begins with the lines of a template. Calling
/// order: ApriReport, then lines and inclusions in any order, then ChiudiReport. Every failure is
/// the pending error and nothing else: what can't be written is missing.

/// Opens `nome` + ".htm" anew, "" being the project's name, and starts it from Report\report.htm;
/// without one the report has no head. The template's two images are copied into the folder unless
/// they are there. `titolo` has no effect. The path is left in FileReport. A name that no file of
/// the folder can have (52) opens nothing.
void ApriReport(Contesto& contesto, std::string_view nome, std::string_view titolo);

/// Prints one line of markup (UTF-8). With no report open it writes to nothing (52).
void ScriviRigaReport(Contesto& contesto, std::string_view testo);

/// Prints the closing tags, closes the report and lets events run.
void ChiudiReport(Contesto& contesto);

/// Copies the lines of a template, trimmed, up to its line "</BODY>" (in any case); a line among
/// its first two that holds "div" is dropped. Nothing where the file isn't there or no report is
/// open.
void IncludiTemplate(Contesto& contesto, std::string_view file);

/// Copies the body of another report: its lines behind the line "<BODY>", by the rule above, which
/// begins to count there. Nothing where it has no such line.
void IncludiCorpoHtml(Contesto& contesto, std::string_view file);

/// Copies a text file: its lines trimmed, without empty ones and those that hold "[CONFIG]" in any
/// case; `aCapo` closes each with "<BR>". They are shown as they are, also where they look like
/// markup.
void IncludiFileTesto(Contesto& contesto, std::string_view file, bool aCapo);

}  // namespace kvr5
