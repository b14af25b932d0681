#include "flashcard/Registrazione.h"

#include <initializer_list>
#include <string>

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/Lingua.h"
#include "core/ListaCopia.h"
#include "core/ParoleCopia.h"
#include "flashcard/ContenutoScheda.h"
#include "flashcard/RaccoltaMp3.h"
#include "platform/FileOps.h"
#include "projects/CartellaProgetto.h"
#include "projects/RipristinaDatabase.h"

namespace kvr5 {
namespace {

namespace scheda = contenuto_scheda;

constexpr std::uint32_t kOrange = 33023;  // red 255, green 128, blue 0

/// One run of the recording; each method is one of its steps.
class Recording {
 public:
  Recording(Contesto& context, TabellaIngressi& inputs, FinestraProgresso& progress,
            SelezioneFlash& choice)
      : context_(context),
        inputs_(inputs),
        progress_(progress),
        choice_(choice),
        connection_(context.Files) {}

  EsitoRegistrazione Run();

 private:
  bool CardIsWritable();
  void Begin();
  void Stage(const char* textKey);
  void CopyDatabases();
  void CopyConfiguration();
  void CopyLists();
  void CopyReports();
  bool CollectInputs();
  bool CollectFrom(Passata pass, const char* database);
  bool CollectMp3();
  void NoteUnread(const std::string& database, const Recordset& rows);
  void CopyMp3();
  void TellUnwritable();
  void TellStop(const EsitoPassata& pass);
  void TellCancelled();
  void Notice(const char* titleKey, const std::string& text, bool orange);

  std::string Source(std::string_view name) const { return FileDelProgetto(context_, name); }
  std::string Card(std::string_view name = {}) const { return AggiungiBarra(card_).append(name); }
  bool CardWentAway();
  void Copy(const std::string& from, const std::string& to);
  void CopyIfThere(std::string_view name);
  void CopyMatching(std::string_view wildcard);

  Contesto& context_;
  TabellaIngressi& inputs_;
  FinestraProgresso& progress_;
  SelezioneFlash& choice_;
  Connection connection_;
  Recordset rows_;
  ListaCopia list_;
  EsitoRegistrazione outcome_;
  std::string card_;  ///< the one it began on, whatever is chosen while events run
  bool gone_ = false;
};

EsitoRegistrazione Recording::Run() {
  context_.Stato.AnnullatoDaUtente = false;
  if (!ScegliSchedaSeManca(context_, choice_)) return {FineRegistrazione::SenzaScheda};
  card_ = context_.Stato.PercorsoMemoryCard;
  if (!CardIsWritable()) {
    TellUnwritable();
    return {FineRegistrazione::NonScrivibile};
  }
  Begin();
  CopyDatabases();
  CopyConfiguration();
  CopyLists();
  CopyReports();
  if (!CollectMp3()) {
    outcome_.Fine = FineRegistrazione::FileMancante;
    return outcome_;
  }
  CopyMp3();
  // The only look at the cancel flag. An error left over from a copy is no failure.
  if (context_.Stato.AnnullatoDaUtente) {
    TellCancelled();
    outcome_.Fine = FineRegistrazione::Annullata;
  }
  return outcome_;
}

bool Recording::CardIsWritable() {
  auto& error = context_.Errore;
  error.Clear();
  // The folder that a card was mounted at may outlive it, and take the file.
  if (!choice_.Presente()) {
    error.Record(Error(errors::DeviceUnavailable));
    return false;
  }
  // The lists for the computer, and whatever a recording writes, would be taken from the project.
  if (context_.Files.SameFile(card_, context_.Stato.CartellaProgetto)) {
    error.Record(Error(errors::PathFileAccess));
    return false;
  }
  const std::string path = Card("\\test.txt");  // the doubled backslash counts as one
  // A link of that name is the card's own; what it leads to isn't.
  if (context_.Files.BehindLink(path) != path) Ignora(context_.Files.Delete(path));
  // One that leads nowhere can't be told from a free name: a new file goes nowhere but here.
  const bool there = static_cast<bool>(context_.Files.Info(path));
  auto file = context_.Files.Open(path, there ? OpenMode::Write : OpenMode::New);
  if (error.Record(file.Err())) {
    error.Record(file.Value()->Write("test\r\n"));
    error.Record(file.Value()->Close());
  }
  // What the user does while events run has errors of its own.
  const bool written = !error;
  context_.Messaggi.LasciaCorrere();
  if (file) {
    Ignora(context_.Files.Delete(path));  // also where writing failed: no stray is left
    context_.Messaggi.LasciaCorrere();
  }
  return written;
}

void Recording::Begin() {
  context_.Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  progress_.Operazione(TestoLingua(context_, "0070002"));
  progress_.ValoreMassimo = 7;
  progress_.Progresso(1);
  progress_.Mostra();
  context_.Messaggi.LasciaCorrere();
}

void Recording::Stage(const char* textKey) {
  if (textKey != nullptr) progress_.Operazione(TestoLingua(context_, textKey));
  progress_.Step(0, false);
}

void Recording::CopyDatabases() {  // stage 1
  progress_.Operazione(TestoLingua(context_, "0070014"));
  inputs_.Chiudi();  // a copy of a closed file
  for (const char* name : scheda::kDatabase) {
    // A crash may have left it half changed: the card doesn't get the half.
    Ignora(RipristinaDatabase(context_, Source(name)));
    CopyIfThere(name);
  }
  inputs_.Riapri();
}

void Recording::CopyConfiguration() {  // stage 2
  Stage("0070015");
  for (const char* name : scheda::kConfigurazione) Copy(Source(name), Card(name));
}

void Recording::CopyLists() {  // stage 3
  Stage("0070016");
  Copy(Source(scheda::kListe), Card());
  // The lists for use on the computer stay in the project where playlists have names.
  const std::string local = Card(scheda::kListeLocali);
  if (context_.Stato.PlayerMode == scheda::kPlaylistConNome && !gone_ &&
      FileExists(context_.Files, local)) {
    context_.Errore.Record(DeleteMatching(context_.Files, local));
    Ignora(context_.Files.SyncVolume(card_));  // nothing may be copied after it
  }
  CopyIfThere(scheda::kPalinsesto);
  CopyMatching(scheda::kGiorni);
}

void Recording::CopyReports() {  // stage 4
  Stage("0070017");
  for (const char* wildcard : scheda::kReport) CopyMatching(wildcard);
}

bool Recording::CollectMp3() {  // stages 5 to 7
  Stage("0070013");
  if (!CollectInputs()) return false;
  Stage(nullptr);
  if (!CollectFrom(Passata::Playlist, "playlist.mdb")) return false;
  Stage(nullptr);
  return CollectFrom(Passata::Palinsesto, "Scheduler.mdb");
}

bool Recording::CollectInputs() {
  if (context_.Stato.Analyzer == 1) {
    list_.Aggiungi(AggiungiBarra(context_.CartellaProgramma) + scheda::kAnalyzer,
                   Card(scheda::kAnalyzer));
  }
  const auto& state = context_.Stato;
  if (!TabellaIngressi::SenzaIngressi(state.PlayerType, state.PlayerMode)) {
    NoteUnread("inputcfg.mdb", inputs_.Cursore());
  }
  const auto pass =
      RaccogliMp3(context_, Passata::Ingressi, inputs_.Cursore(), list_, "inputcfg.mdb", card_);
  if (!pass.Riuscita) TellStop(pass);
  return pass.Riuscita;
}

bool Recording::CollectFrom(Passata pass, const char* database) {
  rows_.Close();
  connection_.Close();
  Ignora(connection_.Open(Source(database)));  // a missing database skips its pass
  Ignora(rows_.Open(connection_, kRigheDellaPassata));
  NoteUnread(database, rows_);
  const auto result = RaccogliMp3(context_, pass, rows_, list_, database, card_);
  if (!result.Riuscita) TellStop(result);
  return result.Riuscita;
}

void Recording::NoteUnread(const std::string& database, const Recordset& rows) {
  if (!rows.IsOpen() && FileExists(context_.Files, Source(database))) {
    outcome_.NonLetti.push_back(database);
  }
}

void Recording::CopyMp3() {
  rows_.Close();
  connection_.Close();
  progress_.Scarica();
  context_.Messaggi.LasciaCorrere();
  if (!Rifila(list_.ListaSorgenti()).empty()) {
    Copy(list_.ListaSorgenti(), list_.ListaDestinazioni());
  }
  context_.Messaggi.ImpostaPuntatore(Puntatore::Normale);
  context_.Messaggi.LasciaCorrere();
}

/// The folder that a card was mounted at may outlive it. Told once; nothing is copied from then on.
bool Recording::CardWentAway() {
  if (!gone_ && !choice_.Presente()) {
    gone_ = true;
    context_.FinestraCopia.Failed({Card(), false, Error(errors::DeviceUnavailable)});
  }
  return gone_;
}

void Recording::Copy(const std::string& from, const std::string& to) {
  if (CardWentAway()) {
    outcome_.CopieRiuscite = false;
    return;
  }
  const CopyOutcome copied = CopiaFileShell(context_, from, to);
  if (copied.Result != 0) outcome_.CopieRiuscite = false;
  outcome_.File += copied.FilesCopied;
  outcome_.Byte += copied.BytesCopied;
}

void Recording::CopyIfThere(std::string_view name) {
  if (FileExists(context_.Files, Source(name))) Copy(Source(name), Card(name));
}

void Recording::CopyMatching(std::string_view wildcard) {
  if (FileExists(context_.Files, Source(wildcard))) Copy(Source(wildcard), Card());
}

void Recording::TellUnwritable() {
  Notice("0040037", TestoLingua(context_, "0040048") + "." + TestoLingua(context_, "0040049"),
         false);
}

void Recording::TellStop(const EsitoPassata& pass) {
  progress_.Scarica();
  // The run ends here and sets no pointer back; the notice's own load does, where there is one.
  // A row's own FileName stands as it is.
  const std::string& file = pass.FileMancante;
  const std::string named = PathMap::IsSystemForm(file) ? PercorsoPerPersone(context_, file) : file;
  const std::string what =
      pass.DatabaseIlleggibile
          ? TestoLinguaO(
                context_, "0130263",
                "No MP3 was copied, so the card isn't complete. This database can't be read")
          : TestoLingua(context_, "0070019");
  Notice("0070009", what + ":\r\n" + named, true);
}

void Recording::TellCancelled() {
  Notice("0070005", TestoLingua(context_, "0070007"), true);
  context_.Messaggi.LasciaCorrere();
}

void Recording::Notice(const char* titleKey, const std::string& text, bool orange) {
  BoxSiNo box{TestoLingua(context_, titleKey), text, TestoLingua(context_, "0140022"), {}};
  if (orange) box.ColoreNota = kOrange;
  context_.Finestre.MostraSiNo(box);
}

}  // namespace

EsitoRegistrazione RegistraProgettoSuFlash(Contesto& contesto, TabellaIngressi& ingressi,
                                           FinestraProgresso& progresso, SelezioneFlash& scelta) {
  return Recording(contesto, ingressi, progresso, scelta).Run();
}

}  // namespace kvr5
