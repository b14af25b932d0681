#include "platform/jet/UsageMap.h"

#include "platform/jet/Bytes.h"
#include "platform/jet/Slots.h"

namespace kvr5::jet {
namespace {

constexpr std::uint32_t kBits = 8;

/// Adds the pages from `first` on whose bits are set; false where one of them isn't in the file.
bool AddSet(std::span<const unsigned char> bits, std::uint64_t first, const Pages& pages,
            std::vector<std::uint32_t>& owned) {
  for (std::size_t i = 0; i < bits.size(); ++i) {
    if (bits[i] == 0) continue;
    for (unsigned bit = 0; bit < kBits; ++bit) {
      if ((unsigned{bits[i]} >> bit & 1U) == 0) continue;
      const std::uint64_t page = first + i * kBits + bit;
      if (page >= pages.Count()) return false;
      owned.push_back(static_cast<std::uint32_t>(page));
    }
  }
  return true;
}

/// The row of a pointer; empty where there is none.
std::vector<unsigned char> RowOf(Pages& pages, std::uint32_t pointer) {
  const Page page = pages.At(pointer >> 8U);
  if (page.empty() || page[0] != kDataPage) return {};
  const auto place = PlaceOf(page, pointer & 0xFFU);
  if (!place || place->Deleted || place->Moved) return {};
  const Page row = page.subspan(place->Begin, place->End - place->Begin);
  return {row.begin(), row.end()};
}

bool ReadMapPages(Pages& pages, Bytes& row, std::vector<std::uint32_t>& owned) {
  constexpr std::size_t kHead = 4;
  constexpr std::uint64_t kCovered = (kPageSize - kHead) * kBits;
  std::uint64_t first = 0;
  for (std::size_t at = 1; at + 4 <= row.Size(); at += 4, first += kCovered) {
    const std::uint32_t number = row.U32(at);
    if (number == 0) continue;
    const Page page = pages.At(number);
    if (page.empty() || page[0] != kMapPage) return false;
    if (!AddSet(page.subspan(kHead), first, pages, owned)) return false;
  }
  return true;
}

}  // namespace

Fault ReadUsageMap(Pages& pages, std::uint32_t pointer, std::vector<std::uint32_t>& owned) {
  constexpr std::size_t kHead = 5;
  owned.clear();
  const std::vector<unsigned char> content = RowOf(pages, pointer);
  const Fault broken = pages.Unreadable() ? Fault::Unreadable : Fault::Damaged;
  if (content.size() < kHead) return broken;
  Bytes row(content);
  bool whole = false;
  if (content[0] == 0) {
    whole = AddSet(std::span(content).subspan(kHead), row.U32(1), pages, owned);
  } else if (content[0] == 1) {
    whole = ReadMapPages(pages, row, owned);
  }
  if (whole) return Fault::None;
  return pages.Unreadable() ? Fault::Unreadable : Fault::Damaged;
}

}  // namespace kvr5::jet
