#include "playerconfig/TabellaIngressi.h"

#include "core/Aiuti.h"
#include "core/Registro.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "playerconfig/CodiceIngressi.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

constexpr std::string_view kAllRows = "SELECT * FROM [List] ORDER BY [Pos] ASC";

bool IsNull(const Recordset& rows, const char* column) {
  const auto value = rows.Get(column);
  return !value || std::holds_alternative<std::monostate>(value.Value());
}

}  // namespace

TabellaIngressi::TabellaIngressi(Contesto& contesto)
    : contesto_(contesto), connessione_(contesto.Files) {}

bool TabellaIngressi::SenzaIngressi(std::int16_t playerType, std::int16_t playerMode) {
  return playerType == 4 && playerMode != 1;
}

void TabellaIngressi::Apri() {
  Chiudi();
  percorso_ = FileDelProgetto(contesto_, "inputcfg.mdb");
  Riapri();
}

void TabellaIngressi::ApriSeCiSono() {
  if (!SenzaIngressi(contesto_.Stato.PlayerType, contesto_.Stato.PlayerMode)) Apri();
}

void TabellaIngressi::Chiudi() {
  righe_.Close();
  connessione_.Close();
}

void TabellaIngressi::Riapri() {
  Chiudi();
  if (percorso_ != FileDelProgetto(contesto_, "inputcfg.mdb")) return;  // another project's
  Ignora(connessione_.Open(percorso_));
  Ignora(righe_.Open(connessione_, kAllRows));
}

void TabellaIngressi::RiapriRighe() {
  righe_.Close();
  if (SenzaIngressi(contesto_.Stato.PlayerType, contesto_.Stato.PlayerMode)) return;
  const std::string path = FileDelProgetto(contesto_, "inputcfg.mdb");
  if (!FileExists(contesto_.Files, path)) return;
  auto& error = contesto_.Errore;
  if (!connessione_.IsOpen() && !error.Record(connessione_.Open(path))) return;
  error.Record(righe_.Open(connessione_, kAllRows));
}

bool TabellaIngressi::Cerca(std::int16_t codice) {
  if (righe_.RecordCount() < 1) return false;
  // A search that fails leaves the cursor on some other row, which must not pass for the one
  // that was asked for.
  auto& error = contesto_.Errore;
  return error.Record(righe_.MoveFirst()) &&
         error.Record(righe_.Find("Pos=" + std::to_string(codice))) && !righe_.Eof();
}

void TabellaIngressi::Scrivi(std::int16_t codice, const std::string& fileName,
                             const std::string& cartella) {
  auto& error = contesto_.Errore;
  if (!error.Record(righe_.Requery())) return;  // another program may have added the row
  if (!Cerca(codice) && (error || !error.Record(righe_.AddNew()))) return;
  error.Record(righe_.Set("FileName", fileName));
  error.Record(righe_.Set("FilePath", AggiungiBarra(cartella)));
  error.Record(righe_.Set("Pos", std::int64_t{codice}));
  error.Record(righe_.Set("Alias", AliasIngresso(codice)));
  error.Record(righe_.Set("NPlaylist", std::int64_t{1}));
  if (error || !error.Record(righe_.Update())) {
    righe_.CancelUpdate();
    return;
  }
  contesto_.Messaggi.LasciaCorrere();
  error.Record(righe_.Requery());
  error.Record(righe_.MoveLast());
  Cerca(codice);
}

void TabellaIngressi::Assegna(std::int16_t codice, const std::string& fileName,
                              const std::string& cartella) {
  contesto_.Errore.Clear();
  Scrivi(codice, fileName, cartella);
  AnnotaErrore(fileName);
}

void TabellaIngressi::Libera(std::int16_t codice) {
  contesto_.Errore.Clear();
  auto& error = contesto_.Errore;
  if (error.Record(righe_.Requery()) && Cerca(codice)) error.Record(righe_.Delete());
  AnnotaErrore(" ");  // what the list of files shows for no file
}

void TabellaIngressi::AnnotaErrore(const std::string& fileName) {
  if (!contesto_.Errore) return;
  const Error& error = contesto_.Errore.Last();
  ScriviLog(contesto_, "frmPlayerConfig/Routine cmdOKFileMp3: err n°" +
                           std::to_string(error.Number()) + ":" + error.Description());
  ScriviLog(contesto_, "File: " + fileName);
}

std::vector<RigaIngresso> TabellaIngressi::Righe() {
  std::vector<RigaIngresso> rows;
  auto& error = contesto_.Errore;
  error.Clear();
  const auto text = [this](const char* column) -> std::optional<std::string> {
    if (IsNull(righe_, column)) return {};
    return righe_.Text(column);
  };
  const auto add = [&] {
    std::optional<std::int64_t> pos;
    if (!IsNull(righe_, "Pos")) pos = righe_.Number("Pos");
    rows.push_back({pos, text("Alias"), text("FileName"), text("FilePath")});
    return true;
  };
  if (error.Record(righe_.Requery())) error.Record(WalkRows(righe_, add));
  return rows;
}

}  // namespace kvr5
