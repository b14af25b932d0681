#include "reports/Report.h"

#include <functional>
#include <string>

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/TextLines.h"
#include "projects/CartellaProgetto.h"
#include "reports/TestoHtml.h"

namespace kvr5 {
namespace {

constexpr std::string_view kOpen = "<BODY>";
constexpr std::string_view kClose = "</BODY>";

CodePage Page(const Contesto& contesto) {
  return CodePage(contesto.Luogo.AnsiCodePage);
}

std::string InReportFolder(const Contesto& contesto, std::string_view name) {
  return (AggiungiBarra(contesto.CartellaProgramma) + "Report\\").append(name);
}

bool Holds(std::string_view line, std::string_view smallLetters) {
  return FoldCase(line).find(smallLetters) != std::string::npos;
}

/// Prints bytes of the report's page as a line. A page that couldn't be opened has told why: its
/// lines are lost in silence.
void PrintLine(Contesto& contesto, std::string bytes) {
  auto& state = contesto.Stato;
  if (!state.CanaleReport) {
    if (!state.ReportAperto) contesto.Errore.Record(Error(errors::BadFileName));
    return;
  }
  if (!contesto.Errore.Record(state.CanaleReport->Write(bytes += "\r\n"))) {
    state.ReportIntero = false;
  }
}

/// Opens the file anew. An old one goes first, a hidden one too; one that can't go, as in a locked
/// folder, is emptied, nothing is added to it, and its failure counts.
Result<std::unique_ptr<File>> OpenAnew(Contesto& contesto, const std::string& path) {
  const auto old = contesto.Files.Info(path);
  const bool there = old && !old.Value().IsFolder;
  const bool stays = there && !contesto.Errore.Record(contesto.Files.Delete(path));
  return contesto.Files.Open(path, stays ? OpenMode::Write : OpenMode::Append);
}

/// Hands the trimmed lines of a file, as bytes, to `visit`, which gives false to stop.
void EachLine(Contesto& contesto, std::string_view path,
              const std::function<bool(std::string_view)>& visit) {
  if (!contesto.Stato.ReportAperto || !FileExists(contesto.Files, path)) return;
  auto file = contesto.Files.Open(path, OpenMode::Read);
  if (!contesto.Errore.Record(file.Err())) return;
  TextLines lines(*file.Value());
  std::string line;
  while (lines.Next(line)) {
    if (!visit(Rifila(line))) return;
  }
  contesto.Errore.Record(lines.Failure());
}

/// The lines of a body as they are copied: all up to the closing tag, but for a "div" among the
/// first two, which opens what only the page itself has.
class BodyLines {
 public:
  explicit BodyLines(Contesto& contesto) : contesto_(contesto) {}
  bool operator()(std::string_view line) {
    if (EqualFold(line, kClose)) return false;
    constexpr int kFrame = 3;  // counted from 1: the first two lines are below
    if (count_ < kFrame) ++count_;
    if (count_ >= kFrame || !Holds(line, "div")) PrintLine(contesto_, std::string(line));
    return true;
  }

 private:
  Contesto& contesto_;
  int count_ = 0;
};

void CopyUnlessThere(Contesto& contesto, std::string_view image) {
  const std::string target = FileDelProgetto(contesto, image);
  if (FileExists(contesto.Files, target)) return;
  contesto.Errore.Record(CopyOneFile(contesto.Files, InReportFolder(contesto, image), target));
}

}  // namespace

void ApriReport(Contesto& contesto, std::string_view nome, std::string_view /*titolo*/) {
  auto& state = contesto.Stato;
  const std::string name = std::string(nome.empty() ? state.ProjectName : nome) + ".htm";
  state.FileReport = FileDelProgetto(contesto, name);
  state.CanaleReport.reset();
  state.ReportAperto = true;
  Error opened(errors::BadFileName);
  if (CardCanHold(name)) {
    auto file = OpenAnew(contesto, state.FileReport);
    opened = file.Err();
    if (file) state.CanaleReport = std::move(file.Value());
  } else {
    state.FileReport.clear();  // it might lead out of the folder
  }
  state.ReportIntero = state.CanaleReport != nullptr;
  IncludiTemplate(contesto, InReportFolder(contesto, "report.htm"));
  CopyUnlessThere(contesto, "logo_menu.jpg");
  CopyUnlessThere(contesto, "sf_menu.jpg");
  contesto.Errore.Record(opened);  // last: what followed from it says less
}

void ScriviRigaReport(Contesto& contesto, std::string_view testo) {
  PrintLine(contesto, RigaInPagina(testo, Page(contesto)));
}

void ChiudiReport(Contesto& contesto) {
  auto& state = contesto.Stato;
  ScriviRigaReport(contesto, kClose);
  ScriviRigaReport(contesto, "</HTML>");
  if (state.CanaleReport && !contesto.Errore.Record(state.CanaleReport->Close())) {
    state.ReportIntero = false;
  }
  state.CanaleReport.reset();
  contesto.Messaggi.LasciaCorrere();
  state.ReportAperto = false;
}

void IncludiTemplate(Contesto& contesto, std::string_view file) {
  EachLine(contesto, file, BodyLines(contesto));
}

void IncludiCorpoHtml(Contesto& contesto, std::string_view file) {
  BodyLines copy(contesto);
  bool inside = false;
  EachLine(contesto, file, [&](std::string_view line) {
    if (inside) return copy(line);
    inside = EqualFold(line, kOpen);
    return true;
  });
}

void IncludiFileTesto(Contesto& contesto, std::string_view file, bool aCapo) {
  const CodePage page = Page(contesto);
  EachLine(contesto, file, [&](std::string_view line) {
    if (line.empty() || Holds(line, "[config]")) return true;
    ScriviRigaReport(contesto, TestoHtml(page.Decode(line)) + (aCapo ? "<BR>" : ""));
    return true;
  });
}

}  // namespace kvr5
