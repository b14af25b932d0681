#include "flashcard/ConfrontoFile.h"

#include <algorithm>
#include <memory>
#include <span>
#include <string>

namespace kvr5 {
namespace {

constexpr std::size_t kPiece = std::size_t{128} << 10U;

EsitoConfronto CompareBytes(File& first, File& second, const std::function<bool(std::size_t)>& step,
                            PezziConfronto& pieces) {
  std::string& mine = pieces.Primo;
  std::string& theirs = pieces.Secondo;
  mine.resize(kPiece);
  theirs.resize(kPiece);
  for (;;) {
    const auto read = first.Read(mine);
    if (!read) return EsitoConfronto::PrimoIlleggibile;
    const auto other = second.Read(theirs);
    if (!other) return EsitoConfronto::SecondoIlleggibile;
    const auto length = read.Value();
    if (other.Value() != length ||
        !std::equal(mine.begin(), mine.begin() + static_cast<std::ptrdiff_t>(length),
                    theirs.begin())) {
      return EsitoConfronto::Diversi;
    }
    if (length > 0 && !step(length)) return EsitoConfronto::Interrotto;
    if (length < kPiece) return EsitoConfronto::Uguali;
  }
}

}  // namespace

EsitoConfronto ConfrontaFile(FileSystem& files, std::string_view primo, std::string_view secondo,
                             const std::function<bool(std::size_t)>& passo) {
  PezziConfronto pieces;
  return ConfrontaFile(files, primo, secondo, passo, pieces);
}

EsitoConfronto ConfrontaFile(FileSystem& files, std::string_view primo, std::string_view secondo,
                             const std::function<bool(std::size_t)>& passo, PezziConfronto& pezzi) {
  const auto first = files.Open(primo, OpenMode::Read);
  if (!first) return EsitoConfronto::PrimoIlleggibile;
  // A pipe in the place of a file would be waited for.
  const auto info = files.Info(secondo);
  const bool endless = info && info.Value().System && info.Value().Size == 0;
  if (!info || info.Value().IsFolder || endless) return EsitoConfronto::SecondoIlleggibile;
  const auto second = files.Open(secondo, OpenMode::Read);
  if (!second) return EsitoConfronto::SecondoIlleggibile;
  const auto length = first.Value()->Size();
  if (!length) return EsitoConfronto::PrimoIlleggibile;
  const auto other = second.Value()->Size();
  if (!other) return EsitoConfronto::SecondoIlleggibile;
  if (length.Value() != other.Value()) return EsitoConfronto::Diversi;
  first.Value()->ForgetCached();
  return CompareBytes(*first.Value(), *second.Value(), passo, pezzi);
}

}  // namespace kvr5
