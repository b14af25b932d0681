#include "flashcard/Verifica.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/Aiuti.h"
#include "flashcard/ConfrontoFile.h"
#include "flashcard/ContenutoScheda.h"
#include "flashcard/VociListe.h"
#include "mp3/Accettazione.h"
#include "mp3/modMp3Infos.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"

namespace kvr5 {
namespace {

/// One verification; each method is one of its steps.
class Verification {
 public:
  Verification(Contesto& context, const std::string& card, OsservatoreVerifica& observer)
      : context_(context),
        card_(AggiungiBarra(card)),
        observer_(observer),
        reader_(context.Files) {}

  EsitoVerifica Run();

 private:
  bool ListCard();
  void CountBytes();
  void CheckAll();
  void Check(const FileDiScheda& file);
  bool Compare(const FileDiScheda& file, const FileInfo& onCard);
  bool PlayerTakes(const FileDiScheda& file, const std::string& path);
  void CheckLists();
  void CheckList(const FileInfo& list);
  void CheckEntry(const std::string& name);
  void FindStrays();

  /// The card's file of a name; null where it holds none.
  const FileInfo* OnCard(std::string_view name) const {
    const auto found = onCard_.find(FoldCase(name));
    return found == onCard_.end() ? nullptr : &found->second;
  }
  std::string CardPath(std::string_view name) const { return std::string(card_).append(name); }
  void Find(Difetto kind, std::string file);
  bool Advance();

  Contesto& context_;
  const std::string card_;
  OsservatoreVerifica& observer_;
  modMp3Infos reader_;
  ContenutoScheda expected_;
  std::map<std::string, FileInfo> onCard_;  ///< by name without regard to case
  std::set<std::string> entriesTold_;       ///< a file that several lists name is told once
  CopyState state_;
  EsitoVerifica outcome_;
};

EsitoVerifica Verification::Run() {
  // What is still on its way to the card would be read from memory.
  Ignora(context_.Files.SyncVolume(card_));
  expected_ = ContenutoDellaScheda(context_);
  if (!ListCard()) {
    outcome_.SenzaScheda = true;
    return outcome_;
  }
  CountBytes();
  CheckAll();
  if (!outcome_.Annullata) CheckLists();
  if (!outcome_.Annullata) FindStrays();
  return outcome_;
}

bool Verification::ListCard() {
  auto entries = context_.Files.List(card_);
  if (!entries) return false;
  for (FileInfo& entry : entries.Value()) {
    const bool plain = !entry.IsFolder && !entry.Hidden && !entry.System;
    if (plain) onCard_.emplace(FoldCase(entry.Name), std::move(entry));
  }
  return true;
}

void Verification::CountBytes() {
  for (const FileDiScheda& file : expected_.File) {
    const FileInfo* there = OnCard(file.Nome);
    if (there != nullptr) state_.BytesTotal += there->Size;
  }
  state_.FileCount = expected_.File.size();
}

void Verification::CheckAll() {
  for (const FileDiScheda& file : expected_.File) {
    state_.File = CardPath(file.Nome);
    ++state_.FileNumber;
    if (!Advance()) return;
    Check(file);
    if (outcome_.Annullata) return;
  }
  for (const std::string& database : expected_.NonLetti) Find(Difetto::NonLetto, database);
}

void Verification::Check(const FileDiScheda& file) {
  const FileInfo* there = OnCard(file.Nome);
  if (there == nullptr) return Find(Difetto::Mancante, file.Nome);
  const std::uint64_t before = state_.BytesDone;
  const bool readable = Compare(file, *there);
  state_.BytesDone = before + there->Size;
  if (readable && !outcome_.Annullata && !PlayerTakes(file, CardPath(there->Name))) {
    Find(Difetto::Rifiutato, file.Nome);
  }
}

/// False where the card's file can't be read.
bool Verification::Compare(const FileDiScheda& file, const FileInfo& onCard) {
  const auto result =
      ConfrontaFile(context_.Files, CardPath(onCard.Name), file.Sorgente, [this](std::size_t read) {
        state_.BytesDone += read;
        return Advance();
      });
  switch (result) {
    case EsitoConfronto::Uguali:
      ++outcome_.File;
      outcome_.Byte += onCard.Size;
      return true;
    case EsitoConfronto::Diversi:
      Find(Difetto::Diverso, file.Nome);
      return true;
    case EsitoConfronto::PrimoIlleggibile:
      Find(Difetto::NonLetto, file.Nome);
      return false;
    case EsitoConfronto::SecondoIlleggibile:
      Find(Difetto::NonLetto, file.Nome);
      return true;
    case EsitoConfronto::Interrotto:
      return true;
  }
  return true;
}

bool Verification::PlayerTakes(const FileDiScheda& file, const std::string& path) {
  if (file.Regola == RegolaMp3::Nessuna) return true;
  const InfoMp3 info = reader_.LeggiInfoMp3(path);
  return file.Regola == RegolaMp3::Ingressi ? BuonoPerIngressi(info) : BuonoPerEditor(info);
}

void Verification::CheckLists() {
  namespace scheda = contenuto_scheda;
  for (const auto& [name, file] : onCard_) {
    const bool local = MatchesWildcard(file.Name, scheda::kListeLocali);
    const bool tracks = MatchesWildcard(file.Name, scheda::kListe) && !local;
    const bool schedule =
        MatchesWildcard(file.Name, scheda::kGiorni) || EqualFold(file.Name, scheda::kPalinsesto);
    if (tracks || schedule) CheckList(file);
  }
}

void Verification::CheckList(const FileInfo& list) {
  const bool tracks = MatchesWildcard(list.Name, contenuto_scheda::kListe);
  const VoceListe entry = [&](const std::string& name) { CheckEntry(name); };
  const std::string path = CardPath(list.Name);
  const Error error =
      tracks ? LeggiListaBrani(context_, path, entry) : LeggiPalinsesto(context_, path, entry);
  if (error) Find(Difetto::NonLetto, list.Name);
}

/// The ending that a list leaves out is the player's to add, but for a file whose ending is in
/// capitals: such a name stands in the list whole.
void Verification::CheckEntry(const std::string& name) {
  constexpr std::string_view kEnding = ".mp3";
  const bool whole = FoldCase(name).ends_with(kEnding);
  const std::string file = whole ? name : name + std::string(kEnding);
  if (OnCard(file) != nullptr || !entriesTold_.insert(FoldCase(file)).second) return;
  Find(Difetto::VoceVuota, file);
}

void Verification::FindStrays() {
  std::set<std::string> expected;
  for (const FileDiScheda& file : expected_.File) expected.insert(FoldCase(file.Nome));
  for (const auto& [name, file] : onCard_) {
    if (!expected.contains(name)) Find(Difetto::Estraneo, file.Name);
  }
}

void Verification::Find(Difetto kind, std::string file) {
  outcome_.Riscontri.push_back({kind, std::move(file)});
  observer_.Trovato(outcome_.Riscontri.back());
}

bool Verification::Advance() {
  if (!observer_.Avanza(state_)) outcome_.Annullata = true;
  return !outcome_.Annullata;
}

}  // namespace

std::string_view NomeDifetto(Difetto difetto) {
  switch (difetto) {
    case Difetto::Mancante:
      return "missing";
    case Difetto::Diverso:
      return "different";
    case Difetto::Estraneo:
      return "stray";
    case Difetto::VoceVuota:
      return "entry";
    case Difetto::Rifiutato:
      return "refused";
    case Difetto::NonLetto:
      return "unchecked";
  }
  return {};
}

std::size_t EsitoVerifica::Quanti(Difetto tipo) const {
  return static_cast<std::size_t>(std::ranges::count(Riscontri, tipo, &Riscontro::Tipo));
}

EsitoVerifica VerificaScheda(Contesto& contesto, const std::string& scheda,
                             OsservatoreVerifica& osservatore) {
  return Verification(contesto, scheda, osservatore).Run();
}

}  // namespace kvr5
