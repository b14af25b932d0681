#include "platform/jet/Definition.h"

#include <algorithm>

#include "platform/Fold.h"
#include "platform/jet/Bytes.h"
#include "platform/jet/Text.h"

namespace kvr5::jet {
namespace {

constexpr std::size_t kMostColumns = 255;
constexpr std::size_t kMostPages = 64;  // 255 columns with the longest names and 64 indexes need 20
constexpr std::size_t kIndexes = 63;
constexpr std::size_t kIndexSize = 12;
constexpr std::size_t kColumnSize = 25;

/// All pages of a definition one after another; empty where one of them isn't of a definition.
std::vector<unsigned char> Gather(Pages& pages, std::uint32_t number) {
  constexpr std::ptrdiff_t kHead = 8;
  const std::size_t most = std::min<std::size_t>(kMostPages, pages.Count());
  std::vector<unsigned char> content;
  for (std::size_t many = 0; number != 0; ++many) {
    const Page page = pages.At(number);
    if (page.empty() || page[0] != kDefinitionPage || many == most) return {};
    content.insert(content.end(), page.begin() + (many == 0 ? 0 : kHead), page.end());
    number = Bytes(page).U32(4);
  }
  return content;
}

Column ReadColumn(Bytes& bytes, std::size_t at) {
  constexpr unsigned kFixed = 1;
  return {.Name = {},
          .Kind = bytes.U8(at),
          .Number = bytes.U16(at + 5),
          .IsFixed = (bytes.U16(at + 15) & kFixed) != 0,
          .Offset = bytes.U16(at + 21),
          .Variable = bytes.U16(at + 7)};
}

}  // namespace

const Column* Definition::Find(std::string_view name) const {
  const auto found = std::ranges::find_if(
      Columns, [name](const Column& each) { return EqualFold(each.Name, name); });
  return found == Columns.end() ? nullptr : &*found;
}

Fault ReadDefinition(Pages& pages, std::uint32_t page, Definition& definition) {
  const std::vector<unsigned char> content = Gather(pages, page);
  if (content.empty()) return pages.Unreadable() ? Fault::Unreadable : Fault::Damaged;
  Bytes bytes(content);
  definition = {.Page = page, .Rows = bytes.U32(16), .Owned = bytes.U32(55), .Columns = {}};
  const std::size_t count = bytes.U16(45);
  std::size_t at = kIndexes + std::size_t{bytes.U32(51)} * kIndexSize;
  if (count > kMostColumns || at > content.size()) return Fault::Damaged;
  for (std::size_t i = 0; i < count; ++i, at += kColumnSize) {
    definition.Columns.push_back(ReadColumn(bytes, at));
  }
  for (Column& column : definition.Columns) {
    const std::size_t length = bytes.U16(at);
    const auto name = PlainText(bytes.Piece(at + 2, at + 2 + length));
    if (bytes.Spoilt() || !name) return Fault::Damaged;
    column.Name = *name;
    if (column.Number >= bytes.U16(41)) return Fault::Damaged;
    if (!column.IsFixed && column.Variable >= bytes.U16(43)) return Fault::Damaged;
    at += 2 + length;
  }
  return bytes.Spoilt() ? Fault::Damaged : Fault::None;
}

}  // namespace kvr5::jet
