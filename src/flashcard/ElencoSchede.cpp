#include "flashcard/ElencoSchede.h"

#include <algorithm>

#include "core/Lingua.h"
#include "platform/Fold.h"

namespace kvr5 {
namespace {

constexpr std::size_t kDriveName = 2;  // "e:", the label behind it is none of the path

bool IsFloppy(std::string_view drive) {
  return EqualFold(drive, "A:") || EqualFold(drive, "B:");
}

/// Any other failure than that of an empty reader lets a removable drive through: what is wrong
/// with it is told when it is used.
bool IsCard(std::uint32_t type, const Error& listing) {
  return type == tipo_drive::Rimovibile && listing.Number() != errors::BadFileName;
}

std::string UpperRoot(std::string root) {
  if (!root.empty() && root[0] >= 'a' && root[0] <= 'z') {
    root[0] = static_cast<char>(root[0] - 'a' + 'A');
  }
  return root;
}

std::optional<Drive> FactsOf(const std::string& root, const std::vector<Drive>& drives) {
  const auto found = std::ranges::find_if(
      drives, [&](const Drive& drive) { return EqualFold(drive.Root(), root); });
  return found != drives.end() ? std::optional(*found) : std::nullopt;
}

}  // namespace

bool ElencoSchede::Carica() {
  contesto_.Stato.SelezioneFlashAnnullata = false;
  Cerca();
  if (schede_.empty()) DiciNessuna();
  return !schede_.empty();
}

void ElencoSchede::Cerca() {
  schede_.clear();
  scelta_ = 0;
  for (const std::string& entry : drive_.Voci()) {
    const std::string drive = entry.substr(0, kDriveName);
    // Refused by name, before any call: no floppy is touched.
    if (IsFloppy(drive) || !Candidata(drive + "\\")) continue;
    schede_.push_back({UpperRoot(drive + "\\")});
  }
  if (schede_.empty()) return;
  const auto drives = drive_.Fatti();
  for (SchedaTrovata& card : schede_) card.Fatti = FactsOf(card.Radice, drives);
}

bool ElencoSchede::Candidata(const std::string& radice) {
  contesto_.Errore.Clear();
  const std::uint32_t type = drive_.Tipo(radice);
  contesto_.Messaggi.LasciaCorrere();
  const Error listing = drive_.Elenca(radice);
  return IsCard(type, listing);
}

void ElencoSchede::DiciNessuna() {
  contesto_.Finestre.MostraSiNo({.Titolo = TestoLingua(contesto_, "0060002"),
                                 .Nota = TestoLingua(contesto_, "0060001"),
                                 .SoloOk = TestoLingua(contesto_, "0140022"),
                                 .ColoreNota = {}});
}

void ElencoSchede::Scegli(std::size_t indice) {
  if (indice < schede_.size()) scelta_ = indice;
}

bool ElencoSchede::Aggiorna() {
  const auto drives = drive_.Fatti();
  const std::string chosen = Testo();
  auto cards = CheRestano(drives);
  AggiungiNuove(drives, cards);
  if (cards == schede_) return false;
  schede_ = std::move(cards);
  const auto place = std::ranges::find(schede_, chosen, &SchedaTrovata::Radice);
  scelta_ = place == schede_.end() ? 0 : static_cast<std::size_t>(place - schede_.begin());
  return true;
}

/// The cards of the list that are there still, and the chosen one.
std::vector<SchedaTrovata> ElencoSchede::CheRestano(const std::vector<Drive>& drives) const {
  std::vector<SchedaTrovata> cards;
  for (const SchedaTrovata& card : schede_) {
    auto facts = FactsOf(card.Radice, drives);
    const bool there = facts && facts->HasMedium;
    if (there || card.Radice == Testo()) cards.push_back({card.Radice, facts, !facts});
  }
  return cards;
}

void ElencoSchede::AggiungiNuove(const std::vector<Drive>& drives,
                                 std::vector<SchedaTrovata>& cards) {
  for (const Drive& drive : drives) {
    const std::string root = drive.Root();
    const bool known = std::ranges::find(cards, root, &SchedaTrovata::Radice) != cards.end();
    if (known || IsFloppy(root.substr(0, kDriveName)) || !drive.HasMedium ||
        !IsCard(drive_.Tipo(root), drive_.Elenca(root))) {
      continue;
    }
    const auto place =
        std::ranges::find_if(cards, [&](const SchedaTrovata& card) { return card.Radice > root; });
    cards.insert(place, {root, drive});
  }
}

std::string ElencoSchede::Testo() const {
  return schede_.empty() ? std::string() : schede_.at(scelta_).Radice;
}

bool ElencoSchede::Conferma(std::string_view formChiamante) {
  contesto_.Stato.PercorsoMemoryCard = Testo();
  return EqualFold(formChiamante, "frmPlayerConfig");
}

void ElencoSchede::Annulla() {
  contesto_.Stato.SelezioneFlashAnnullata = true;
}

void ElencoSchede::Esplora(Esecutore& esecutore) const {
  esecutore.Apri(Testo());
}

}  // namespace kvr5
