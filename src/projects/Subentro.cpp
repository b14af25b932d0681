#include "projects/Subentro.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/Path.h"
#include "platform/TempName.h"
#include "projects/CartellaProgetto.h"
#include "projects/ConversioneJet.h"

namespace kvr5 {
namespace {

using namespace std::string_view_literals;

constexpr const char* kOriginals = "Originals";

/// Whether a file begins as ours do. One that can't be read doesn't.
bool IsOurs(FileSystem& files, const std::string& path) {
  constexpr std::string_view kMark = "SQLite format 3\0"sv;
  std::array<char, kMark.size()> head{};
  const auto file = files.Open(path, OpenMode::Read);
  if (!file) return false;
  const auto length = file.Value()->ReadAt(0, head);
  return length && std::string_view(head.data(), length.Value()) == kMark;
}

/// One taking over; each method is one of its steps.
class TakingOver {
 public:
  TakingOver(Contesto& context, const OpzioniSubentro& options)
      : context_(context), files_(context.Files), options_(options) {}

  EsitoSubentro Run();

 private:
  struct Work {
    std::string Name;  ///< of the database, in the disk's spelling
    std::string Path;  ///< of the original, behind a link
    std::string New;   ///< of the new one, under a passing name
    std::unique_ptr<ConversioneJet> Conversion;
    std::string Backup{};  ///< of the original's copy
    bool BackupIsNew = false;
    std::uint64_t Size = 0;  ///< of the original as it was read
    std::int64_t Modified = 0;
  };

  void Gather();
  bool ReadAll();
  bool WriteAll();
  bool KeepOriginals();
  Error KeepOriginal(Work& work);
  bool PutInPlace();
  Error PutInPlace(Work& work);
  void Undo();

  Contesto& context_;
  FileSystem& files_;
  const OpzioniSubentro& options_;
  bool cancelled_ = false;
  bool folderIsNew_ = false;
  std::vector<Work> works_;
  EsitoSubentro outcome_;
};

EsitoSubentro TakingOver::Run() {
  Gather();
  if (works_.empty()) return {};
  bool whole = ReadAll();
  if (whole && !options_.Prova) {
    whole = WriteAll() && KeepOriginals() && PutInPlace();
    Undo();
  }
  outcome_.Fine = cancelled_ ? FineSubentro::Annullato
                  : whole    ? FineSubentro::Compiuto
                             : FineSubentro::Fallito;
  return outcome_;
}

void TakingOver::Gather() {
  outcome_.Originali = AggiungiBarra(context_.Stato.CartellaProgetto) + kOriginals;
  for (const std::string& name : DatabaseDaSubentrare(context_)) {
    const std::string own = FileDelProgetto(context_, name);
    const std::string path = files_.BehindLink(own);
    Work work{.Name = name,
              .Path = path,
              .New = JoinPath(FolderOf(path), NewTempName()),
              .Conversion = std::make_unique<ConversioneJet>(files_, path, options_.Annulla)};
    if (const auto info = files_.Info(own)) {
      work.Name = info.Value().Name;
      work.Size = info.Value().Size;
      work.Modified = info.Value().Modified;
    }
    works_.push_back(std::move(work));
    outcome_.Database.push_back({.Nome = name, .DiJet = jet::HasSignature(files_, path)});
  }
}

bool TakingOver::ReadAll() {
  bool whole = true;
  for (std::size_t i = 0; i < works_.size() && !cancelled_; ++i) {
    DatabaseSubentrato& database = outcome_.Database[i];
    database.Guasto = works_[i].Conversion->Leggi(database.File, database.Segmenti);
    whole = whole && database.Riuscito();
    cancelled_ = works_[i].Conversion->Annullata();
  }
  return whole && !cancelled_;
}

/// Writes the new databases, once what an earlier taking over left that was cut off is away.
bool TakingOver::WriteAll() {
  const std::string model = AggiungiBarra(context_.CartellaProgramma) + "source.mdb";
  outcome_.SenzaModello = !FileExists(files_, model);
  if (outcome_.SenzaModello) return false;
  SweepLeftovers(files_, context_.Stato.CartellaProgetto);
  SweepLeftovers(files_, outcome_.Originali);
  for (std::size_t i = 0; i < works_.size() && !cancelled_; ++i) {
    outcome_.Database[i].Causa = works_[i].Conversion->Scrivi(model, works_[i].New);
    cancelled_ = works_[i].Conversion->Annullata();
    if (outcome_.Database[i].Causa) return false;
  }
  return !cancelled_;
}

bool TakingOver::KeepOriginals() {
  Error& first = outcome_.Database.front().Causa;
  if (!FolderExists(files_, outcome_.Originali)) {
    first = files_.CreateFolder(outcome_.Originali);
    if (first) return false;
    folderIsNew_ = true;
  }
  for (std::size_t i = 0; i < works_.size(); ++i) {
    outcome_.Database[i].Causa = KeepOriginal(works_[i]);
    if (outcome_.Database[i].Causa) return false;
  }
  // The originals are on the device before anything takes their place.
  first = files_.SyncVolume(outcome_.Originali);
  cancelled_ = options_.Annulla && options_.Annulla();
  return !first && !cancelled_;
}

/// Copies an original under its own name, or a numbered one where an earlier original has that. One
/// that an interrupted taking over has copied already is not copied again.
Error TakingOver::KeepOriginal(Work& work) {
  for (int number = 1;; ++number) {
    const std::string prefix = number == 1 ? "" : "(" + std::to_string(number) + ") ";
    work.Backup = AggiungiBarra(outcome_.Originali) + prefix + work.Name;
    if (!files_.Info(work.Backup)) break;
    if (HoldTheSame(files_, work.Path, work.Backup)) return {};
  }
  work.BackupIsNew = true;
  return CopyOneFile(files_, work.Path, work.Backup);
}

/// From here on each step leaves the project whole; what a failure leaves undone the next opening
/// does.
bool TakingOver::PutInPlace() {
  for (std::size_t i = 0; i < works_.size(); ++i) {
    outcome_.Database[i].Causa = PutInPlace(works_[i]);
    if (outcome_.Database[i].Causa) return false;
    works_[i].New.clear();
    outcome_.Database[i].Preso = true;
  }
  Ignora(files_.SyncVolume(context_.Stato.CartellaProgetto));
  return true;
}

/// 70 where another program has changed the original meanwhile.
Error TakingOver::PutInPlace(Work& work) {
  const auto info = files_.Info(work.Path);
  if (!info) return info.Err();
  if (info.Value().Size != work.Size || info.Value().Modified != work.Modified) {
    return Error(errors::PermissionDenied);
  }
  // A journal there belongs to a database of ours that once lay here: it would undo the new one.
  bool swept = false;
  for (const char* side : {"-journal", "-wal", "-shm"}) {
    Error error = files_.Delete(work.Path + side);
    if (error && error.Number() != errors::FileNotFound) return error;
    swept = swept || !error;
  }
  if (swept) {  // it has to be off the device first
    if (Error error = files_.SyncVolume(FolderOf(work.Path))) return error;
  }
  return files_.Replace(work.New, work.Path);
}

/// Takes away what a failure has left lying about.
void TakingOver::Undo() {
  bool kept = outcome_.Cambiato();
  for (const Work& work : works_) {
    if (!work.New.empty()) Ignora(files_.Delete(work.New));
    const bool away = !work.New.empty() && work.BackupIsNew;
    if (away) Ignora(files_.Delete(work.Backup));
    kept = kept || (!work.Backup.empty() && !away);
  }
  if (folderIsNew_ && !kept) Ignora(files_.DeleteFolder(outcome_.Originali));
}

}  // namespace

bool EsitoSubentro::Cambiato() const {
  return std::ranges::any_of(Database, &DatabaseSubentrato::Preso);
}

std::vector<std::string> DatabaseDaSubentrare(Contesto& contesto) {
  std::vector<std::string> names;
  for (const char* name : kDatabaseProgetto) {
    const std::string path = FileDelProgetto(contesto, name);
    if (FileExists(contesto.Files, path) && !IsOurs(contesto.Files, path)) {
      names.emplace_back(name);
    }
  }
  return names;
}

EsitoSubentro SubentraNeiDatabase(Contesto& contesto, const OpzioniSubentro& opzioni) {
  return TakingOver(contesto, opzioni).Run();
}

}  // namespace kvr5
