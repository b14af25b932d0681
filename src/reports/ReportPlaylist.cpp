#include "reports/ReportPlaylist.h"

#include <string>

#include "core/Lingua.h"
#include "core/LinguaLetta.h"
#include "core/Parole.h"
#include "platform/Fold.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "reports/Markup.h"
#include "reports/Report.h"
#include "reports/TestoHtml.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kByDay = 6;
constexpr std::int16_t kNamed = 9;

std::string Query(std::int16_t mode, std::optional<std::int32_t> number) {
  if (mode == kNamed) return kBraniConNome;
  if (!number) return "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC";
  return "SELECT * FROM [List] WHERE [NPlaylist]=" + std::to_string(*number) +
         " ORDER BY [Pos] ASC";
}

/// The heading of the current row's playlist.
std::string Heading(Contesto& context, const Recordset& rows, bool one) {
  const std::int16_t mode = context.Stato.PlayerMode;
  if (one) return TestoLingua(context, "0050018");
  const std::string before = TestoLingua(context, "0050033") + " ";
  if (mode == kNamed) return before + rows.Text("Descript") + ".m3u";
  const std::string number = rows.Text("NPlaylist");
  const std::string file = before + number + ".m3u";
  return mode == kByDay ? file + " - " + NomeDelGiorno(context, rows.Number("NPlaylist")) : file;
}

}  // namespace

bool ScriviReportPlaylist(Contesto& contesto, Connection& connessione,
                          std::optional<std::int32_t> numero) {
  const std::int16_t mode = contesto.Stato.PlayerMode;
  Recordset rows;
  if (!contesto.Errore.Record(rows.Open(connessione, Query(mode, numero)))) return false;
  if (rows.RecordCount() < 1) return false;
  const LinguaLetta words(contesto);  // each row asks for its heading
  ApriReport(contesto, "Playlist", "Playlist");
  ScriviRigaReport(contesto, TitoloReport("Playlist"));
  std::optional<std::string> group;
  contesto.Errore.Record(WalkRows(rows, [&] {
    std::string heading = Heading(contesto, rows, numero.has_value() && mode != kNamed);
    if (!group || !EqualFold(*group, heading)) {
      ScriviRigaReport(contesto, "<BR>" + GruppoReport(heading));
      group = std::move(heading);
    }
    ScriviRigaReport(contesto, TestoHtml(rows.Text("FileName")) + "<BR>");
    return true;
  }));
  ChiudiReport(contesto);
  return true;
}

}  // namespace kvr5
