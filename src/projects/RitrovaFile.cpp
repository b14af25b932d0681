#include "projects/RitrovaFile.h"

#include <algorithm>
#include <functional>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/Path.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "projects/SommarioProgetto.h"

namespace kvr5 {
namespace {

constexpr const char* kRows = "SELECT * FROM [List]";

/// The folders of a path from its end upwards, whichever bar divides them.
std::vector<std::string_view> FoldersOf(std::string_view path) {
  constexpr std::string_view kBars = "\\/";
  std::vector<std::string_view> folders;
  while (!path.empty()) {
    const std::size_t bar = path.find_last_of(kBars);
    const std::size_t begin = bar == std::string_view::npos ? 0 : bar + 1;
    if (begin < path.size()) folders.push_back(path.substr(begin));
    path = path.substr(0, begin == 0 ? 0 : bar);
  }
  return folders;
}

/// How many folders two paths have in common, from their ends upwards.
std::size_t Likeness(std::string_view a, const std::vector<std::string_view>& b) {
  const auto folders = FoldersOf(a);
  return static_cast<std::size_t>(std::ranges::mismatch(folders, b, EqualFold).in1 -
                                  folders.begin());
}

/// One search; each method is one of its steps.
class Search {
 public:
  Search(Contesto& context, OsservatoreRitrovo& observer)
      : context_(context), observer_(observer) {}

  EsitoRitrovo Run(const std::string& folder);

 private:
  void Gather();
  bool Look(const std::string& folder);
  bool Choose(RigaRitrovata& row);
  bool AreTheSame(const std::string& a, const std::string& b);
  void Write(const char* database);

  Contesto& context_;
  OsservatoreRitrovo& observer_;
  EsitoRitrovo outcome_;
  /// By name without regard to case: the folders that hold a file that is looked for.
  std::unordered_map<std::string, std::vector<std::string>> places_;
  std::map<std::pair<std::string, std::string>, bool> compared_;  ///< files, by their paths
};

EsitoRitrovo Search::Run(const std::string& folder) {
  Gather();
  if (outcome_.Righe.empty()) return outcome_;
  const bool chosen =
      Look(AggiungiBarra(folder)) &&
      std::ranges::all_of(outcome_.Righe, [this](auto& row) { return Choose(row); });
  if (!chosen || !observer_.Avanza(folder)) {
    for (RigaRitrovata& row : outcome_.Righe) row.Ora.clear();
    outcome_.Annullato = true;
    return outcome_;
  }
  for (const char* database : kDatabaseProgetto) Write(database);
  return outcome_;
}

void Search::Gather() {
  const SommarioProgetto summary = LeggiSommario(context_);
  for (const auto* list : {&summary.Ingressi, &summary.Brani, &summary.Spot}) {
    for (const RigaProgetto& row : *list) {
      if (!row.Mancante || row.FileName.empty()) continue;
      outcome_.Righe.push_back(
          {.Database = row.Lista, .Id = row.Id, .Nome = row.FileName, .Prima = row.FilePath});
      places_[FoldCase(row.FileName)];
    }
  }
  if (!summary.Guasti.empty()) outcome_.Causa = Error(errors::CannotOpen, summary.Guasti.back());
}

/// False when it was cancelled. A folder that can't be listed is passed over.
bool Search::Look(const std::string& folder) {
  if (!observer_.Avanza(folder)) return false;
  const auto entries = context_.Files.List(folder);
  if (!entries) return true;
  for (const FileInfo& entry : entries.Value()) {
    // What a copy of a folder leaves out, and a desktop's folder of deleted files.
    if (entry.Unusable != NameFault::None || entry.Hidden || entry.System) continue;
    if (EqualFold(entry.Name, "$RECYCLE.BIN")) continue;
    if (entry.IsFolder) {
      if (!entry.IsLink && !Look(folder + entry.Name + "\\")) return false;
      continue;
    }
    const auto wanted = places_.find(FoldCase(entry.Name));
    if (wanted != places_.end()) wanted->second.push_back(folder);
  }
  return true;
}

bool Search::AreTheSame(const std::string& a, const std::string& b) {
  const auto [known, isNew] = compared_.try_emplace({a, b}, false);
  if (isNew) known->second = HoldTheSame(context_.Files, a, b);
  return known->second;
}

/// False when it was cancelled.
bool Search::Choose(RigaRitrovata& row) {
  const auto& folders = places_.at(FoldCase(row.Nome));
  std::vector<std::string_view> before = FoldersOf(row.Prima);
  // Some rows name the file itself in place of its folder.
  if (!before.empty() && EqualFold(before.front(), row.Nome)) before.erase(before.begin());
  std::map<std::size_t, std::vector<const std::string*>, std::greater<>> byLikeness;
  for (const std::string& each : folders) byLikeness[Likeness(each, before)].push_back(&each);
  if (byLikeness.empty()) return true;
  const auto& nearest = byLikeness.begin()->second;
  const std::string& first = *nearest.front();
  for (const std::string* each : nearest) {
    if (each == nearest.front()) continue;
    if (!observer_.Avanza(*each)) return false;
    row.Dubbia = row.Dubbia || !AreTheSame(first + row.Nome, *each + row.Nome);
  }
  if (!row.Dubbia) row.Ora = first;
  return true;
}

void Search::Write(const char* database) {
  std::unordered_map<std::int64_t, const RigaRitrovata*> found;
  for (const RigaRitrovata& row : outcome_.Righe) {
    if (row.Database == database && !row.Ora.empty()) found.emplace(row.Id, &row);
  }
  if (found.empty()) return;
  Connection connection(context_.Files);
  Recordset rows;
  Error error = connection.Open(FileDelProgetto(context_, database));
  if (!error) error = rows.Open(connection, kRows);
  Transaction all(connection);
  Error failed;
  std::unordered_set<std::int64_t> written;
  if (!error) {
    error = WalkRows(rows, [&] {
      const auto id = rows.Get("ID");
      const auto row = id ? found.find(std::get<std::int64_t>(id.Value())) : found.end();
      if (row == found.end()) return true;
      failed = rows.Set("FilePath", row->second->Ora);
      if (!failed) failed = rows.Update();
      if (!failed) written.insert(row->first);
      return !failed;
    });
  }
  const Error ended = all.End();
  for (const Error& each : {error, failed, ended}) {
    if (each) outcome_.Causa = each;
  }
  if (ended) written.clear();
  for (RigaRitrovata& row : outcome_.Righe) {
    if (row.Database == database && !written.contains(row.Id)) row.Ora.clear();
  }
}

}  // namespace

std::size_t EsitoRitrovo::Trovati() const {
  return static_cast<std::size_t>(
      std::ranges::count_if(Righe, [](const RigaRitrovata& row) { return !row.Ora.empty(); }));
}

EsitoRitrovo RitrovaFile(Contesto& contesto, const std::string& cartella,
                         OsservatoreRitrovo& osservatore) {
  return Search(contesto, osservatore).Run(cartella);
}

}  // namespace kvr5
