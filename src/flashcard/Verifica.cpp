#include "flashcard/Verifica.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

#include "core/Aiuti.h"
#include "flashcard/ConfrontoFile.h"
#include "flashcard/ContenutoScheda.h"
#include "flashcard/VociListe.h"
#include "mp3/Accettazione.h"
#include "mp3/modMp3Infos.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "projects/CartellaProgetto.h"

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
  bool IsReadable(const std::string& path) const;
  bool CardWentAway();
  Riscontro Missing(const FileDiScheda& file) const;
  Riscontro Unreadable(const FileDiScheda& file) const;
  bool GoesOn() const { return !outcome_.Annullata && !outcome_.Sparita; }
  bool Compare(const FileDiScheda& file, const FileInfo& onCard);
  bool PlayerTakes(const FileDiScheda& file, const std::string& path);
  void CheckLists();
  void CheckList(const FileInfo& list);
  void CheckEntry(const std::string& name);
  void FindStrays();

  /// The card's file of a name; null where it holds none.
  const FileInfo* OnCard(std::string_view name) const {
    const auto [first, last] = onCard_.equal_range(FoldCase(name));
    const auto exact =
        std::find_if(first, last, [name](const auto& entry) { return entry.second.Name == name; });
    if (exact != last) return &exact->second;
    return first == last ? nullptr : &first->second;
  }
  std::string CardPath(std::string_view name) const { return std::string(card_).append(name); }
  void Find(Riscontro finding);
  bool Advance();

  Contesto& context_;
  const std::string card_;
  OsservatoreVerifica& observer_;
  modMp3Infos reader_;
  ContenutoScheda expected_;
  /// By name without regard to case; a card that minds it may hold several of one.
  std::multimap<std::string, FileInfo> onCard_;
  std::set<const FileInfo*> taken_;      ///< those that a recording would put there
  std::set<std::string> entriesTold_;    ///< a file that several lists name is told once
  std::set<std::string> uncheckedTold_;  ///< and so is one that can't be read in several ways
  bool unread_ = false;                  ///< something couldn't be read since the last look
  CopyState state_;
  PezziConfronto pieces_;
  EsitoVerifica outcome_;
};

EsitoVerifica Verification::Run() {
  // What is still on its way to the card would be read from memory.
  if (!observer_.Presente()) return {.SenzaScheda = true};
  Ignora(context_.Files.SyncVolume(card_));
  expected_ = ContenutoDellaScheda(context_);
  if (!ListCard()) return {.SenzaScheda = true};
  CountBytes();
  CheckAll();
  if (GoesOn()) CheckLists();
  if (GoesOn()) FindStrays();
  return outcome_;
}

bool Verification::ListCard() {
  auto files = FileSullaScheda(context_.Files, card_);
  if (!files) return false;
  for (FileInfo& file : *files) onCard_.emplace(FoldCase(file.Name), std::move(file));
  return true;
}

void Verification::CountBytes() {
  for (const FileDiScheda& file : expected_.File) {
    const FileInfo* there = OnCard(file.Nome);
    if (there != nullptr) state_.BytesTotal += there->Size;
  }
  state_.FileCount = outcome_.Attesi = expected_.File.size();
}

void Verification::CheckAll() {
  for (const FileDiScheda& file : expected_.File) {
    state_.File = CardPath(file.Nome);
    ++state_.FileNumber;
    if (!Advance()) return;
    Check(file);
    if (outcome_.Annullata || CardWentAway()) return;
  }
  for (const std::string& database : expected_.NonLetti) {
    Find({Difetto::NonLetto, database, FileDelProgetto(context_, database), Mancanza::Database});
  }
}

void Verification::Check(const FileDiScheda& file) {
  const FileInfo* there = OnCard(file.Nome);
  if (there == nullptr) return Find(Missing(file));
  taken_.insert(there);
  const std::uint64_t before = state_.BytesDone;
  const bool readable = Compare(file, *there);
  state_.BytesDone = before + there->Size;
  const std::string path = CardPath(there->Name);
  if (!readable || outcome_.Annullata || PlayerTakes(file, path)) return;
  // What can't be read any more is no reason to accuse the file.
  Find({IsReadable(path) ? Difetto::Rifiutato : Difetto::NonLetto, file.Nome});
}

bool Verification::IsReadable(const std::string& path) const {
  const auto file = context_.Files.Open(path, OpenMode::Read);
  std::array<char, 1> first{};
  return file && file.Value()->Read(first);
}

/// Once the card can't be read at all the rest would be findings of no use.
bool Verification::CardWentAway() {
  if (!std::exchange(unread_, false)) return false;
  outcome_.Sparita = !observer_.Presente() || !context_.Files.List(card_);
  return outcome_.Sparita;
}

/// A file that the card lacks; where a recording wouldn't find it either, with what it would miss.
Riscontro Verification::Missing(const FileDiScheda& file) const {
  if (file.Sorgente.empty()) return {Difetto::Mancante, file.Nome, file.Cercato, file.Perche};
  const Mancanza why = PercheManca(context_.Files, file.Sorgente);
  if (why == Mancanza::Nessuna) return {Difetto::Mancante, file.Nome};
  return {Difetto::Mancante, file.Nome, file.Sorgente, why};
}

/// A file that can't be compared, since the project's own can't be had.
Riscontro Verification::Unreadable(const FileDiScheda& file) const {
  if (file.Sorgente.empty()) return {Difetto::NonLetto, file.Nome, file.Cercato, file.Perche};
  const Mancanza why = PercheManca(context_.Files, file.Sorgente);
  return {Difetto::NonLetto, file.Nome, file.Sorgente,
          why == Mancanza::Nessuna ? Mancanza::Illeggibile : why};
}

/// False where the card's file can't be read.
bool Verification::Compare(const FileDiScheda& file, const FileInfo& onCard) {
  const auto step = [this](std::size_t read) {
    state_.BytesDone += read;
    return Advance();
  };
  const auto result =
      ConfrontaFile(context_.Files, CardPath(onCard.Name), file.Sorgente, step, pieces_);
  switch (result) {
    case EsitoConfronto::Uguali:
      ++outcome_.File;
      outcome_.Byte += onCard.Size;
      return true;
    case EsitoConfronto::Diversi:
      Find({Difetto::Diverso, file.Nome});
      return true;
    case EsitoConfronto::PrimoIlleggibile:
      Find({Difetto::NonLetto, file.Nome});
      return false;
    case EsitoConfronto::SecondoIlleggibile:
      Find(Unreadable(file));
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
    if (!tracks && !schedule) continue;
    state_.File = CardPath(file.Name);
    if (!Advance()) return;
    CheckList(file);
    if (!GoesOn() || CardWentAway()) return;
  }
}

void Verification::CheckList(const FileInfo& list) {
  const bool tracks = MatchesWildcard(list.Name, contenuto_scheda::kListe);
  const VoceListe entry = [&](const std::string& name) { CheckEntry(name); };
  const std::string path = CardPath(list.Name);
  const AvantiListe goOn = [this] { return Advance(); };
  const Error error = tracks ? LeggiListaBrani(context_, path, entry, goOn)
                             : LeggiPalinsesto(context_, path, entry, goOn);
  if (error) Find({Difetto::NonLetto, list.Name});
}

/// The ending that a list leaves out is the player's to add, but for a file whose ending is in
/// capitals: such a name stands in the list whole.
void Verification::CheckEntry(const std::string& name) {
  constexpr std::string_view kEnding = ".mp3";
  const bool whole = FoldCase(name).ends_with(kEnding);
  const std::string file = whole ? name : name + std::string(kEnding);
  if (OnCard(file) != nullptr || !entriesTold_.insert(FoldCase(file)).second) return;
  Find({Difetto::VoceVuota, file});
}

void Verification::FindStrays() {
  for (const auto& [name, file] : onCard_) {
    if (taken_.contains(&file) || ForseDelProgetto(expected_, file)) continue;
    Find({Difetto::Estraneo, file.Name});
  }
}

void Verification::Find(Riscontro finding) {
  const bool unchecked = finding.Tipo == Difetto::NonLetto;
  unread_ = unread_ || (unchecked && finding.Perche == Mancanza::Nessuna);
  if (unchecked && !uncheckedTold_.insert(FoldCase(finding.File)).second) return;
  outcome_.Riscontri.push_back(std::move(finding));
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
