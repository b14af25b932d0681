#include "flashcard/VociListe.h"

#include "core/Aiuti.h"
#include "platform/CodePage.h"
#include "platform/FileOps.h"
#include "platform/TextLines.h"

namespace kvr5 {
namespace {

template <typename Line>
Error ForEachLine(Contesto& contesto, std::string_view file, Line line) {
  const auto opened = contesto.Files.Open(file, OpenMode::Read);
  if (!opened) return opened.Err();
  const CodePage page(contesto.Luogo.AnsiCodePage);
  TextLines lines(*opened.Value());
  for (std::string bytes; lines.Next(bytes);) line(page.Decode(bytes));
  return lines.Failure();
}

}  // namespace

Error LeggiListaBrani(Contesto& contesto, std::string_view file, const VoceListe& voce) {
  return ForEachLine(contesto, file, [&](const std::string& line) {
    if (!Rifila(line).empty()) voce(line);
  });
}

Error LeggiPalinsesto(Contesto& contesto, std::string_view file, const VoceListe& voce) {
  return ForEachLine(contesto, file, [&](const std::string& line) {
    // The time ends at the first tab; of the rest, every other piece is empty.
    std::size_t at = line.find('\t');
    while (at != std::string::npos) {
      const std::size_t end = line.find('\t', at + 1);
      const std::string name = line.substr(at + 1, end - at - 1);
      if (!Rifila(name).empty()) voce(name);
      at = end;
    }
  });
}

}  // namespace kvr5
