#pragma once

#include <string>
#include <string_view>

#include "schedule/EditorPalinsesto.h"

namespace kvr5 {

/// The start time of the selected segment, in its two fields.

/// Whether a field takes a key: control keys (below 14) and digits.
bool TastoOrario(char32_t carattere);
/// What stands in a field after a text was typed over its selected content: the digits of the text,
/// or the content where it has none.
std::string DigitatoSopra(std::string_view contenuto, std::string_view testo);

/// txtOre, or txtMin, is left: what it holds is made two digits, "00" where it is no number below
/// 24, or 60, and the time is saved. True where it was stored.
bool LasciaOre(EditorPalinsesto& editor);
bool LasciaMin(EditorPalinsesto& editor);
/// Both at once, where the second was left before anybody looked at the first.
bool LasciaOreEMin(EditorPalinsesto& editor);

/// Stores the time of both fields; without `controllaDoppi` it goes on to tell of a segment of the
/// day that has the same. The list is sorted anew. Nothing without a segment, or where a field
/// holds no number. True where it was stored.
bool SalvaOrarioSegmento(EditorPalinsesto& editor, bool controllaDoppi);
/// Tells when another segment of the day has the same time. The time stays saved: the message warns
/// and changes nothing, and that is meant so.
void VerificaOrarioDoppio(EditorPalinsesto& editor, const std::string& orario, std::int64_t id);

}  // namespace kvr5
