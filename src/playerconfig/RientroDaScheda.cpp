#include "playerconfig/RientroDaScheda.h"

#include <string>
#include <string_view>

#include "platform/Locale.h"
#include "platform/Path.h"
#include "platform/db/Walk.h"
#include "playerconfig/NomiCartella.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

constexpr std::string_view kFirstPlaylist =
    "SELECT * FROM [List] WHERE [NPlaylist]=1 ORDER BY [NPlaylist],[Pos] ASC";

/// The project's folder while its files get their names back.
class Renaming {
 public:
  explicit Renaming(Contesto& context)
      : context_(context), names_(context.Files, context.Stato.CartellaProgetto) {}

  void Inputs(TabellaIngressi& inputs) {
    for (const auto& row : inputs.Righe()) {
      Rename(row.Alias.value_or(""), row.FileName.value_or(""));
    }
  }

  void FirstPlaylist() {
    Connection connection(context_.Files);
    Recordset rows;
    Ignora(connection.Open(FileDelProgetto(context_, "Playlist.mdb")));
    Ignora(rows.Open(connection, kFirstPlaylist));
    Ignora(WalkRows(rows, [&] {
      Rename(NameOnCard(rows), rows.Text("FileName"));
      return true;
    }));
  }

 private:
  static std::string NameOnCard(const Recordset& rows) {
    const auto picture = [&rows](const char* column, int digits) {
      return FormatDigits(static_cast<double>(rows.Number(column)), digits);
    };
    return "P" + picture("NPlaylist", 2) + "-" + picture("Pos", 4) + ".mp3";
  }

  void Rename(const std::string& from, const std::string& to) {
    const bool plain = FaultOf(from) == NameFault::None && FaultOf(to) == NameFault::None;
    if (!plain || from.empty() || to.empty() || !names_.Contiene(from)) return;
    const Error error =
        context_.Files.Rename(FileDelProgetto(context_, from), FileDelProgetto(context_, to));
    if (!error) names_.Rinominato(from, to);
  }

  Contesto& context_;
  NomiCartella names_;
};

}  // namespace

void RientroDaScheda(Contesto& contesto, TabellaIngressi& ingressi) {
  const auto& state = contesto.Stato;
  const Error before = contesto.Errore.Last();
  Renaming renaming(contesto);
  if (!TabellaIngressi::SenzaIngressi(state.PlayerType, state.PlayerMode)) {
    renaming.Inputs(ingressi);
  }
  if (state.PlayerType >= 2 && state.PlayerType != 3 && state.PlayerMode != 1) {
    renaming.FirstPlaylist();
  }
  contesto.Errore.Clear();
  contesto.Errore.Record(before);
}

}  // namespace kvr5
