#include "schedule/AggiungiSpotScelti.h"

#include <algorithm>
#include <utility>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "schedule/Spot.h"

namespace kvr5 {
namespace {

/// Adds one file that was looked at; what is against it, in words.
std::string AddOne(EditorPalinsesto& editor, int slot, const FileOfferto& file, bool& full) {
  if (slot >= SlotSpot::kPosti) {
    return TestoLinguaO(editor.C(), "0140101", "All eight places of this segment are used.");
  }
  const bool before = std::exchange(editor.FileMp3Valido, true);
  const EsitoSpot end = AggiungiSpot(editor, slot, EstraiCartella(file.Percorso), file.Nome);
  editor.FileMp3Valido = before;
  full = end == EsitoSpot::Pieno;
  if (end == EsitoSpot::Aggiunto || full) return {};
  return TestoLinguaO(editor.C(), "0140134", "It couldn't be stored.");
}

}  // namespace

int PrimoSlotLibero(EditorPalinsesto& editor) {
  return std::min(editor.QuantiSpot(), SlotSpot::kPosti);
}

std::vector<FileNonPreso> AggiungiSpotScelti(EditorPalinsesto& editor, modMp3Infos& lettore,
                                             int slot, const std::vector<std::string>& file) {
  std::vector<FileNonPreso> notTaken;
  int next = std::min(slot, PrimoSlotLibero(editor));
  bool full = false;
  for (const std::string& each : file) {
    const FileOfferto offered = EsaminaFile(editor.C(), lettore, each);
    std::string why = offered.Perche;
    if (why.empty()) why = AddOne(editor, next, offered, full);
    if (full) break;
    if (!why.empty()) {
      notTaken.push_back({offered.Nome, std::move(why)});
    } else {
      next = PrimoSlotLibero(editor);
    }
  }
  return notTaken;
}

}  // namespace kvr5
