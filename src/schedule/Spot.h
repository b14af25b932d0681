#pragma once

#include <cstdint>
#include <string>

#include "schedule/EditorPalinsesto.h"

namespace kvr5 {

/// The spots of the selected segment: added, replaced, removed, moved. A slot is counted from 0 and
/// stands for the spot at Pos `slot` + 1.

/// As many spots as a day takes, whatever places its segments have.
inline constexpr int kLimiteSpot = 500;

/// What came of adding a file.
enum class EsitoSpot {
  Aggiunto,    ///< or put in the place of another
  Pieno,       ///< the day is full; told
  NonValido,   ///< the panel hasn't passed the file, or the slot takes none
  NonScritto,  ///< the database took it not
};

/// The spots of the current day.
int ContaBrani(EditorPalinsesto& editor);
/// Closes the gaps in Pos: 1, 2, 3 ... in each segment, or in that of `segmento` alone; -1 is all.
/// Rows that agree aren't written.
void RinumeraSpot(EditorPalinsesto& editor, std::int64_t segmento);

/// picAggiungiSpot: the file, which FileMp3Valido has to vouch for, comes into a free slot or in
/// the place of the slot's. A limit of the day that is reached is told first, also where a file
/// would only replace another: that is meant so.
EsitoSpot AggiungiSpot(EditorPalinsesto& editor, int slot, const std::string& cartella,
                       const std::string& nome);
/// picRimuoviSpot: removes the spot, without a question; those behind it move up.
void RimuoviSpot(EditorPalinsesto& editor, int slot);
/// UpDownFile: changes places with the next spot (`giu`), or with the one before; it stays the
/// current row. Nothing at the end.
void SpostaSpot(EditorPalinsesto& editor, int slot, bool giu);
/// Goes to the spot of a slot; false where it holds none.
bool VaiAlloSlot(EditorPalinsesto& editor, int slot);

}  // namespace kvr5
