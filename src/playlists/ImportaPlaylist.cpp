#include "playlists/ImportaPlaylist.h"

#include <algorithm>

#include "core/Aiuti.h"
#include "platform/CodePage.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/TextLines.h"
#include "playlists/BraniPlaylist.h"

namespace kvr5 {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";  // of UTF-8

bool HasDrive(std::string_view path) {
  return path.size() > 1 && path[1] == ':';
}

/// A line as a path that can be looked up, in `where`, and as what is stored of it.
class LineOfAList {
 public:
  LineOfAList(Contesto& context, const std::string& folder) : context_(context), folder_(folder) {}

  /// Nothing where the line names no file.
  std::optional<RigaImportata> Read(std::string line) const {
    if (line.find('\0') != std::string::npos) return {};
    if (line.starts_with('/')) {
      const auto path = context_.Files.SystemPath(line);
      if (!path) return {};
      // As it is written, not as the disk spells it; where the letter is another, as it is found.
      std::string written = "C:" + line;
      std::ranges::replace(written, '/', '\\');
      line = EqualFold(written, path.Value()) ? written : path.Value();
    }
    std::ranges::replace(line, '/', '\\');
    const std::string full = Full(line);
    if (!FileExists(context_.Files, full)) return {};
    const std::string stored = EstraiCartella(line);
    return RigaImportata{stored.empty() ? folder_ : stored, EstraiNomeFile(line),
                         EstraiCartella(full)};
  }

 private:
  std::string Full(const std::string& line) const {
    if (HasDrive(line)) return line;
    constexpr std::size_t kDrive = 2;
    return (line.starts_with('\\') ? folder_.substr(0, kDrive) : folder_) + line;
  }

  Contesto& context_;
  const std::string& folder_;
};

}  // namespace

std::vector<RigaImportata> RigheDellaLista(Contesto& contesto, const std::string& lista) {
  std::vector<RigaImportata> rows;
  auto file = contesto.Files.Open(lista, OpenMode::Read);
  if (!contesto.Errore.Record(file.Err())) return rows;
  const std::string folder = EstraiCartella(lista);
  const LineOfAList reader(contesto, folder);
  CodePage page(contesto.Luogo.AnsiCodePage);
  constexpr int kUtf8 = 65001;
  TextLines lines(*file.Value());
  std::string bytes;
  constexpr int kBreath = 64;  // lines between two looks at the user
  for (int count = 0; lines.Next(bytes); ++count) {
    const bool first = count == 0;
    if (count % kBreath == kBreath - 1) contesto.Messaggi.LasciaCorrere();
    if (first && bytes.starts_with(kMark)) {
      page = CodePage(kUtf8);
      bytes.erase(0, kMark.size());
    }
    const std::string_view line = Rifila(bytes);
    if (line.empty() || line.starts_with("#EXT")) continue;
    auto row = reader.Read(page.Decode(line));
    // Many programs write UTF-8 without its mark; such a line names nothing in the code page.
    const bool letters = std::ranges::any_of(line, [](char c) { return (c & '\x80') != 0; });
    if (!row && letters) row = reader.Read(std::string(line));
    if (row) rows.push_back(std::move(*row));
  }
  contesto.Errore.Record(lines.Failure());
  return rows;
}

bool PuoImportare(EditorPlaylist& editor) {
  if (editor.SelettoreVuoto()) return false;
  if (editor.Piena()) DiciPienaInMassa(editor);
  return !editor.Piena();
}

void ImportaPlaylist(EditorPlaylist& editor, modMp3Infos& lettore, const std::string& lista) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  if (!FileExists(context.Files, lista)) return;
  const auto rows = RigheDellaLista(context, lista);
  if (rows.empty()) return;
  editor.Attesa(true);
  bool full = false;
  {
    Transaction all(editor.ConnessionePlaylist());
    for (const RigaImportata& each : rows) {
      full = editor.Piena();
      if (full) break;
      AggiungiSeBuono(editor, lettore, {each.Cartella, each.FilePath, each.FileName});
      context.Messaggi.LasciaCorrere();
    }
    editor.Concludi(all);
  }
  FineInMassa(editor, full);
}

}  // namespace kvr5
