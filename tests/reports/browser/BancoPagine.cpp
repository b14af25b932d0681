#include "reports/browser/BancoPagine.h"

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "projects/CartellaProgetto.h"
#include "reports/Markup.h"
#include "reports/Report.h"
#include "reports/ReportProgetto.h"
#include "reports/TestoHtml.h"

namespace kvr5::test {

namespace fs = std::filesystem;

void BancoPagine::SetUp() {
  if (!BrowserProcess::Executable()) {
    GTEST_SKIP() << "Chromium isn't installed: script/bootstrap test installs it.";
  }
  fs::copy(fs::path(KVR5_STAGED_PROGRAM) / "Report", b.Cartella.Host() / "program" / "Report",
           fs::copy_options::recursive | fs::copy_options::overwrite_existing);
  b.CreaProgetto(Progetto(), 4, 1);
  b.C.Stato.PlayerConfigDesc = "KVR5 (Inputs)";
  int pos = 0;
  for (const auto& name : Nomi()) {
    ++pos;
    b.AggiungiRiga("inputcfg.mdb", 0, pos, name, "C:\\Music", std::to_string(pos) + ".mp3");
  }
  ScriviReport();
}

const std::string& BancoPagine::Progetto() {
  static const std::string name = "Caff\u00E8 & 'Bar'";
  return name;
}

const std::vector<std::string>& BancoPagine::Nomi() {
  static const std::vector<std::string> names = {
      "<b>.mp3",
      "<b>bold<\u2044b>.mp3",
      "<BODY>.mp3",
      "<img src=x onerror=alert(1)>.mp3",
      "Tom & Jerry.mp3",
      "&amp;&lt;&#65;.mp3",
      "\"twice\" and 'once'.mp3",
      "caff\u00E8 \u20AC \u0160umava.mp3",
      "\u0141\u00F3d\u017A.mp3",
      "\u6771\u4EAC\u306E\u97F3.mp3",
      "\U0001F3B5.mp3",
      std::string(196, 'M') + ".mp3",
      "divertimento.mp3",
  };
  return names;
}

fs::path BancoPagine::File(const std::string& name) const {
  return b.Disco.HostPath(FileDelProgetto(b.C, name));
}

void BancoPagine::ScriviReport() {
  ScriviElenco("Playlist", "Playlists", false);
  ScriviElenco("Scheduler", "Schedule", true);
  Connection connection(b.C.Files);
  ASSERT_FALSE(connection.Open(FileDelProgetto(b.C, "inputcfg.mdb")));
  Recordset rows;
  ASSERT_FALSE(rows.Open(connection, "SELECT * FROM [List] ORDER BY [Pos] ASC"));
  ScriviReportProgetto(b.C, {&rows, true});
  ASSERT_FALSE(b.C.Errore);
}

void BancoPagine::ScriviElenco(const std::string& name, const std::string& heading, bool segments) {
  ApriReport(b.C, name, "");
  ScriviRigaReport(b.C, TitoloReport(heading));
  for (int group = 1; group <= 8; ++group) {
    ScriviRigaReport(b.C, "<BR><B><FONT COLOR='Blue'>" + heading + " " + std::to_string(group) +
                              "</FONT></B><BR>");
    for (const auto& file : Nomi()) {
      if (segments) {
        ScriviRigaReport(b.C, "<BR><LI><FONT COLOR='Blue'>Segment 08.30</FONT></LI><BR>");
      }
      ScriviRigaReport(b.C, TestoHtml(file) + "<BR>");
    }
  }
  ChiudiReport(b.C);
}

}  // namespace kvr5::test
