#include "flashcard/VociListe.h"

#include "core/Aiuti.h"
#include "platform/CodePage.h"
#include "platform/FileOps.h"
#include "platform/TextLines.h"

namespace kvr5 {
namespace {

template <typename Line>
Error ForEachLine(Contesto& contesto, std::string_view file, const AvantiListe& avanti, Line line) {
  constexpr std::uint64_t kMost = std::uint64_t{4} << 20U;
  constexpr std::size_t kBreath = 256;  // lines
  const auto opened = contesto.Files.Open(file, OpenMode::Read);
  if (!opened) return opened.Err();
  const auto length = opened.Value()->Size();
  if (!length) return length.Err();
  if (length.Value() > kMost) return Error(errors::OutOfMemory);
  const CodePage page(contesto.Luogo.AnsiCodePage);
  TextLines lines(*opened.Value());
  std::size_t read = 0;
  for (std::string bytes; lines.Next(bytes);) {
    if (++read % kBreath == 0 && avanti && !avanti()) return {};
    line(page.Decode(bytes));
  }
  return lines.Failure();
}

}  // namespace

Error LeggiListaBrani(Contesto& contesto, std::string_view file, const VoceListe& voce,
                      const AvantiListe& avanti) {
  return ForEachLine(contesto, file, avanti, [&](const std::string& line) {
    if (!Rifila(line).empty()) voce(line);
  });
}

Error LeggiPalinsesto(Contesto& contesto, std::string_view file, const VoceListe& voce,
                      const AvantiListe& avanti) {
  return ForEachLine(contesto, file, avanti, [&](const std::string& line) {
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
