#include "flashcard/ContenutoScheda.h"

#include <unordered_map>

#include "core/Aiuti.h"
#include "core/ListaCopia.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/db/Walk.h"
#include "playerconfig/TabellaIngressi.h"
#include "projects/CartellaProgetto.h"
#include "projects/RipristinaDatabase.h"

namespace kvr5 {
namespace {

namespace scheda = contenuto_scheda;

/// Gathers what the stages of a recording copy, one after another.
class Contents {
 public:
  explicit Contents(Contesto& context) : context_(context) {}

  ContenutoScheda Take() {
    OwnFiles();
    Analyzer();
    Inputs();
    Rows(Passata::Playlist, "playlist.mdb");
    Rows(Passata::Palinsesto, "scheduler.mdb");
    return std::move(contents_);
  }

 private:
  void OwnFiles();
  void Analyzer();
  void Inputs();
  void Rows(Passata pass, const char* database);
  void Walk(Passata pass, Recordset& rows, const char* database);
  void AddRow(Passata pass, const RigaRaccolta& row);

  std::string InProject(std::string_view name) const { return FileDelProgetto(context_, name); }
  bool IsThere(std::string_view name) const { return FileExists(context_.Files, InProject(name)); }
  void AddIfThere(const char* name) {
    if (IsThere(name)) Add({name, InProject(name)});
  }
  void AddMatching(const char* wildcard);
  void Add(FileDiScheda file);

  Contesto& context_;
  ContenutoScheda contents_;
  std::unordered_map<std::string, std::size_t> places_;  ///< by name, without regard to case
  ListaCopia list_;
};

void Contents::OwnFiles() {
  for (const char* name : scheda::kDatabase) {
    Ignora(RipristinaDatabase(context_, InProject(name)));
    AddIfThere(name);
  }
  for (const char* name : scheda::kConfigurazione) Add({name, InProject(name)});
  AddMatching(scheda::kListe);
  AddIfThere(scheda::kPalinsesto);
  AddMatching(scheda::kGiorni);
  for (const char* wildcard : scheda::kReport) AddMatching(wildcard);
}

void Contents::AddMatching(const char* wildcard) {
  const bool named = context_.Stato.PlayerMode == scheda::kPlaylistConNome;
  for (const FileInfo& file : ListMatching(context_.Files, InProject(wildcard))) {
    const bool stays = named && MatchesWildcard(file.Name, scheda::kListeLocali);
    if (!stays) Add({file.Name, InProject(file.Name)});
  }
}

void Contents::Analyzer() {
  if (context_.Stato.Analyzer != 1) return;
  const std::string source = AggiungiBarra(context_.CartellaProgramma) + scheda::kAnalyzer;
  list_.Aggiungi(source, scheda::kAnalyzer);
  Add({scheda::kAnalyzer, source, RegolaMp3::Brani});
}

void Contents::Inputs() {
  const auto& state = context_.Stato;
  if (TabellaIngressi::SenzaIngressi(state.PlayerType, state.PlayerMode)) return;
  TabellaIngressi inputs(context_);
  inputs.ApriSeCiSono();
  Walk(Passata::Ingressi, inputs.Cursore(), "inputcfg.mdb");
}

void Contents::Rows(Passata pass, const char* database) {
  Connection connection(context_.Files);
  Recordset rows;
  Ignora(connection.Open(InProject(database)));
  Ignora(rows.Open(connection, kRigheDellaPassata));
  Walk(pass, rows, database);
}

void Contents::Walk(Passata pass, Recordset& rows, const char* database) {
  const bool read = rows.IsOpen() && !WalkRows(rows, [&] {
                      AddRow(pass, RaccogliRiga(context_, pass, rows, list_, {}));
                      return true;
                    });
  if (!read && IsThere(database)) contents_.NonLetti.emplace_back(database);
}

void Contents::AddRow(Passata pass, const RigaRaccolta& row) {
  const RegolaMp3 rule = pass == Passata::Ingressi ? RegolaMp3::Ingressi : RegolaMp3::Brani;
  if (row.Esito == RigaRaccolta::Fine::Aggiunta) Add({row.Alias, row.Sorgente, rule});
  if (row.Esito != RigaRaccolta::Fine::Manca) return;
  // A row with a name that no card can hold is known by its file.
  Add({row.Alias.empty() ? std::string(LastName(row.FileMancante)) : row.Alias,
       {},
       rule,
       row.Perche == Mancanza::Nome ? row.Percorso : row.FileMancante,
       row.Perche});
}

/// Of two files with one name the later one is copied over the earlier.
void Contents::Add(FileDiScheda file) {
  const auto [place, isNew] = places_.emplace(FoldCase(file.Nome), contents_.File.size());
  if (isNew) {
    contents_.File.push_back(std::move(file));
  } else {
    contents_.File[place->second] = std::move(file);
  }
}

}  // namespace

ContenutoScheda ContenutoDellaScheda(Contesto& contesto) {
  return Contents(contesto).Take();
}

std::optional<std::vector<FileInfo>> FileSullaScheda(const FileSystem& files,
                                                     const std::string& scheda) {
  auto entries = files.List(scheda);
  if (!entries) return std::nullopt;
  auto& all = entries.Value();
  std::erase_if(all,
                [](const FileInfo& each) { return each.IsFolder || each.Hidden || each.System; });
  return std::move(all);
}

bool ForseDelProgetto(const ContenutoScheda& contenuto, const FileInfo& file) {
  return !contenuto.NonLetti.empty() && MatchesWildcard(file.Name, "*.mp3");
}

}  // namespace kvr5
