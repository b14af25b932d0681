#include "reports/ReportProgetto.h"

#include <string>
#include <string_view>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "reports/Markup.h"
#include "reports/Report.h"
#include "reports/TestoHtml.h"

namespace kvr5 {
namespace {

void CopyPicture(Contesto& contesto, const std::string& picture) {
  const std::string target = FileDelProgetto(contesto, picture);
  const std::string source = AggiungiBarra(contesto.CartellaProgramma) + "Pictures\\" + picture;
  if (FileExists(contesto.Files, target) || !FileExists(contesto.Files, source)) return;
  contesto.Errore.Record(CopyOneFile(contesto.Files, source, target));
}

void WriteField(Contesto& contesto, std::string_view key, std::string_view value) {
  ScriviRigaReport(contesto, CampoReport(TestoLingua(contesto, key), value));
}

void WriteHead(Contesto& contesto, bool analyzer) {
  const auto& state = contesto.Stato;
  const std::string player = state.PlayerName + " Player";
  ScriviRigaReport(contesto, TitoloReport(player));
  ScriviRigaReport(contesto,
                   "<CENTER><P><IMG SRC='" + TestoHtml(state.PlayerName) + ".gif'></P></CENTER>");
  WriteField(contesto, "0030000", state.ProjectName);
  WriteField(contesto, "9011011", state.PlayerConfigDesc.empty() ? player : state.PlayerConfigDesc);
  if (!analyzer) return;
  WriteField(contesto, "9011014",
             TestoLingua(contesto, state.Analyzer == 1 ? "9011015" : "9011016"));
}

void WriteInputs(Contesto& contesto, Recordset* rows) {
  const bool there = FileExists(contesto.Files, FileDelProgetto(contesto, "inputcfg.mdb"));
  if (!there || rows == nullptr || !rows->IsOpen()) return;
  ScriviRigaReport(contesto, SezioneReport(TestoLingua(contesto, "0040033")));
  contesto.Errore.Record(WalkRows(*rows, [&] {
    ScriviRigaReport(contesto, "<FONT COLOR='Blue'>" + TestoHtml(rows->Text("Alias")) + " </FONT>" +
                                   TestoHtml(rows->Text("FileName")) + "<BR>");
    return true;
  }));
}

/// Merges another report of the folder. A project that is called like one of them has its own
/// report under that name, which can't take itself in.
void MergeReport(Contesto& contesto, std::string_view name) {
  const std::string path = FileDelProgetto(contesto, name);
  if (!contesto.Files.SameFile(path, contesto.Stato.FileReport)) IncludiCorpoHtml(contesto, path);
}

}  // namespace

void ScriviReportProgetto(Contesto& contesto, const FontiReport& fonti) {
  CopyPicture(contesto, contesto.Stato.PlayerName + ".gif");
  ApriReport(contesto, "", "");
  WriteHead(contesto, fonti.AnalyzerVisibile);
  WriteInputs(contesto, fonti.Ingressi);
  ScriviRigaReport(contesto, "<BR><P><B><FONT COLOR='Blue'> File CONFIG.TXT</FONT></B></P>");
  IncludiFileTesto(contesto, FileDelProgetto(contesto, "config.txt"), true);
  MergeReport(contesto, "Playlist.htm");
  MergeReport(contesto, "Scheduler.htm");
  ChiudiReport(contesto);
}

void MostraReportProgetto(Contesto& contesto, Esecutore& esecutore, const FontiReport& fonti) {
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  ScriviReportProgetto(contesto, fonti);
  if (!contesto.Stato.FileReport.empty()) esecutore.Apri(contesto.Stato.FileReport);
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

}  // namespace kvr5
