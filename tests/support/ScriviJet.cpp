#include "support/ScriviJet.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <string_view>

#include "platform/Utf16.h"
#include "platform/jet/Pages.h"
#include "platform/jet/Rc4.h"

namespace kvr5::test {
namespace {

using Row = std::vector<DbValue>;

constexpr std::size_t kPage = jet::kPageSize;
constexpr std::uint8_t kInt16 = 3;
constexpr std::uint8_t kInt32 = 4;
constexpr std::uint8_t kDate = 8;
constexpr std::uint8_t kText = 10;

void Put(std::string& bytes, std::size_t at, std::uint64_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) bytes[at + i] = static_cast<char>(value >> 8 * i);
}

void Add(std::string& bytes, std::uint64_t value, std::size_t size) {
  bytes.resize(bytes.size() + size);
  Put(bytes, bytes.size() - size, value, size);
}

struct Field {
  const char* Name;
  std::uint8_t Kind;
};

std::size_t SizeOf(std::uint8_t kind) {
  return kind == kInt16 ? 2 : kind == kInt32 ? 4 : 8;
}

/// Text as the engine stores it: one byte a character where all are below 256.
std::string Stored(const std::string& text) {
  std::string plain = utf16::FromUtf8(text);
  std::string small("\xFF\xFE");
  for (std::size_t i = 0; i < plain.size(); i += 2) {
    if (plain[i + 1] != 0 || plain[i] == 0) return plain;
    small += plain[i];
  }
  return text.empty() ? std::string() : small;
}

std::uint64_t Number(const DbValue& value) {
  if (const auto* real = std::get_if<double>(&value)) return std::bit_cast<std::uint64_t>(*real);
  const auto* whole = std::get_if<std::int64_t>(&value);
  return whole == nullptr ? 0 : static_cast<std::uint64_t>(*whole);
}

std::string Encoded(const Row& row, const std::vector<Field>& fields) {
  std::string bytes;
  std::string mask((fields.size() + 7) / 8, '\0');
  std::vector<std::size_t> places;
  Add(bytes, fields.size(), 2);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (!IsNull(row[i])) mask[i / 8] = static_cast<char>(mask[i / 8] | 1 << i % 8);
    if (fields[i].Kind != kText) Add(bytes, Number(row[i]), SizeOf(fields[i].Kind));
  }
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].Kind != kText) continue;
    places.push_back(bytes.size());
    if (const auto* text = std::get_if<std::string>(&row[i])) bytes += Stored(*text);
  }
  places.push_back(bytes.size());
  for (auto place = places.rbegin(); place != places.rend(); ++place) Add(bytes, *place, 2);
  Add(bytes, places.size() - 1, 2);
  return bytes + mask;
}

/// A file that grows page by page.
class Builder {
 public:
  Builder() : pages_(3, std::string(kPage, '\0')) {
    constexpr std::uint32_t kMask = 0x6B39DAC7;
    constexpr std::string_view kHead("\0\1\0\0Standard Jet DB\0\1", 21);
    pages_[0].replace(0, kHead.size(), kHead);
    std::vector<unsigned char> masked(128, 0);
    jet::Rc4(kMask, masked);
    std::ranges::copy(masked, pages_[0].begin() + 0x18);
    pages_[1] = DataPage(0);
  }

  std::uint32_t NewPage() {
    pages_.emplace_back(kPage, '\0');
    return static_cast<std::uint32_t>(pages_.size() - 1);
  }

  /// Writes a table whose definition is on a page.
  void Table(std::uint32_t page, char kind, const std::vector<Field>& fields,
             const std::vector<Row>& rows) {
    std::vector<std::uint32_t> owned;
    std::size_t free = 0;
    std::uint16_t slots = 0;
    for (const Row& row : rows) {
      const std::string bytes = Encoded(row, fields);
      if (owned.empty() || free < bytes.size() + 2) {
        owned.push_back(NewPage());
        pages_[owned.back()] = DataPage(page);
        free = kPage - 14;
        slots = 0;
      }
      std::string& target = pages_[owned.back()];
      const std::size_t at = 14 + free + std::size_t{2} * slots - bytes.size();
      target.replace(at, bytes.size(), bytes);
      Put(target, 14 + std::size_t{2} * slots++, at, 2);
      Put(target, 12, slots, 2);
      free -= bytes.size() + 2;
      Put(target, 2, free, 2);
    }
    Define(page, kind, fields, rows.size(), MapOf(owned));
  }

  std::string Take() const {
    std::string file;
    file.reserve(pages_.size() * kPage);
    for (const std::string& page : pages_) file += page;
    return file;
  }

 private:
  static std::string DataPage(std::uint32_t owner) {
    std::string page(kPage, '\0');
    Put(page, 0, 0x0101, 2);
    Put(page, 4, owner, 4);
    return page;
  }

  /// A map of pages of the second kind, which reaches any page; where it is, page << 8 | slot.
  std::uint32_t MapOf(const std::vector<std::uint32_t>& owned) {
    constexpr std::size_t kCovered = (kPage - 4) * 8;
    std::string row(1, '\1');
    for (std::uint32_t first = 0; first < pages_.size() + 2; first += kCovered) {
      const std::uint32_t map = NewPage();
      Put(pages_[map], 0, 0x0105, 2);
      for (const std::uint32_t page : owned) {
        if (page < first || page >= first + kCovered) continue;
        char& bits = pages_[map][4 + (page - first) / 8];
        bits = static_cast<char>(bits | 1 << (page - first) % 8);
      }
      Add(row, map, 4);
    }
    const std::uint32_t page = NewPage();
    pages_[page] = DataPage(0);
    Put(pages_[page], 12, 1, 2);
    Put(pages_[page], 14, kPage - row.size(), 2);
    pages_[page].replace(kPage - row.size(), row.size(), row);
    return page << 8U;
  }

  void Define(std::uint32_t page, char kind, const std::vector<Field>& fields, std::size_t rows,
              std::uint32_t map) {
    const auto pieces = static_cast<std::size_t>(std::ranges::count(fields, kText, &Field::Kind));
    std::string content(63, '\0');
    Put(content, 0, 0x0102, 2);
    Put(content, 16, rows, 4);
    content[40] = kind;
    Put(content, 41, fields.size(), 2);
    Put(content, 43, pieces, 2);
    Put(content, 45, fields.size(), 2);
    Put(content, 55, map, 4);
    Put(content, 59, map, 4);
    std::size_t offset = 0;
    std::size_t piece = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const bool text = fields[i].Kind == kText;
      std::string column(25, '\0');
      Put(column, 0, fields[i].Kind, 1);
      Put(column, 5, i, 2);
      Put(column, 7, text ? piece++ : 0, 2);
      Put(column, 15, text ? 0x102 : 3, 2);
      Put(column, 21, text ? 0 : offset, 2);
      Put(column, 23, text ? 510 : SizeOf(fields[i].Kind), 2);
      if (!text) offset += SizeOf(fields[i].Kind);
      content += column;
    }
    for (const Field& field : fields) {
      const std::string name = utf16::FromUtf8(field.Name);
      Add(content, name.size(), 2);
      content += name;
    }
    Put(content, 8, content.size(), 4);
    pages_[page].replace(0, content.size(), content);
  }

  std::vector<std::string> pages_;
};

}  // namespace

std::string FileJet(const std::vector<std::vector<DbValue>>& lista,
                    const std::vector<std::vector<DbValue>>& testa) {
  constexpr std::uint32_t kCatalogue = 2;
  Builder file;
  const std::uint32_t list = file.NewPage();
  const std::uint32_t head = file.NewPage();
  const DbValue table(std::int64_t{1});
  file.Table(kCatalogue, 'S', {{"Id", kInt32}, {"Name", kText}, {"Type", kInt16}},
             {{std::int64_t{list}, "List", table}, {std::int64_t{head}, "HEAD", table}});
  file.Table(list, 'N',
             {{"ID", kInt32},
              {"FileName", kText},
              {"FilePath", kText},
              {"Alias", kText},
              {"Pos", kInt16},
              {"NPlaylist", kInt16},
              {"IDSched", kInt32}},
             lista);
  file.Table(head, 'N',
             {{"ID", kInt32}, {"NScheduler", kInt16}, {"Descript", kText}, {"StartTime", kDate}},
             testa);
  return file.Take();
}

}  // namespace kvr5::test
