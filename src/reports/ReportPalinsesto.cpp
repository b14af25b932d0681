#include "reports/ReportPalinsesto.h"

#include <string>

#include "core/Lingua.h"
#include "core/LinguaLetta.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "projects/OraDelSegmento.h"
#include "reports/Markup.h"
#include "reports/Report.h"
#include "reports/TestoHtml.h"

namespace kvr5 {
namespace {

constexpr int kPlaces = 8;

/// All segments by day and time, with a column for the name at each place.
std::string Query() {
  std::string query = "SELECT [HEAD].ID,[HEAD].[NScheduler],[HEAD].[StartTime]";
  for (int place = 1; place <= kPlaces; ++place) {
    const std::string number = std::to_string(place);
    query.append(",(SELECT TOP 1 [Filename] FROM [List] WHERE [NPlaylist]=[HEAD].[NScheduler]")
        .append(" AND Pos=" + number)
        .append(" AND IDSched=[HEAD].ID) AS Spot" + number);
  }
  return query + " FROM [HEAD] ORDER BY [HEAD].[NScheduler],[HEAD].[StartTime] ASC";
}

void WriteSegment(Contesto& context, const Recordset& rows) {
  const std::string words =
      TestoLingua(context, "0140023") + " " + OraConPunto(OraDa(rows.Text("StartTime")));
  ScriviRigaReport(context, "<BR><LI><FONT COLOR='Blue'>" + TestoHtml(words) + "</FONT></LI><BR>");
  for (int place = 1; place <= kPlaces; ++place) {
    const std::string name = rows.Text("Spot" + std::to_string(place));
    if (!name.empty()) ScriviRigaReport(context, TestoHtml(name) + "<BR>");
  }
}

}  // namespace

void ScriviReportPalinsesto(Contesto& contesto, Connection& connessione) {
  constexpr std::int16_t kByDay = 3;
  const LinguaLetta words(contesto);  // each row asks for its words
  Recordset rows;
  contesto.Errore.Record(rows.Open(connessione, Query()));
  const std::string title = TestoLingua(contesto, "0140029");
  ApriReport(contesto, "Scheduler", title);
  ScriviRigaReport(contesto, TitoloReport(title));
  ScriviRigaReport(contesto, "<BR>");
  std::string day = "99";  // no day has it: the first row opens a group
  contesto.Errore.Record(WalkRows(rows, [&] {
    std::string its = rows.Text("NScheduler");
    if (contesto.Stato.PlayerMode == kByDay && its != day) {
      ScriviRigaReport(contesto, "<BR>" + GruppoReport(TestoLingua(contesto, "014000" + its)));
    }
    day = std::move(its);
    WriteSegment(contesto, rows);
    return true;
  }));
  ChiudiReport(contesto);
}

}  // namespace kvr5
