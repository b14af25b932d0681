#include "support/ScriviJet.h"

#include <algorithm>
#include <bit>
#include <string_view>

#include "platform/Utf16.h"
#include "platform/jet/Pages.h"
#include "platform/jet/Rc4.h"

namespace kvr5::test {
namespace {

constexpr std::size_t kPage = jet::kPageSize;
constexpr std::size_t kHead = 14;  // of a data page
constexpr std::uint32_t kCatalogue = 2;
constexpr unsigned kDeleted = 0x8000;
constexpr unsigned kMoved = 0x4000;
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

/// Bytes of a fixed column of a type; 0 for one that has no fixed place.
std::size_t SizeOf(std::uint8_t type) {
  constexpr std::size_t kSizes[] = {0, 0, 1, 2, 4, 8, 4, 8, 8, 0, 0, 0, 0, 0, 0, 16};
  return kSizes[type];
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

std::string Encoded(const std::vector<DbValue>& row, const std::vector<CampoJet>& fields) {
  const std::size_t columns = row.empty() ? 0 : std::size_t{fields[row.size() - 1].Numero} + 1;
  std::string bytes;
  std::string mask((columns + 7) / 8, '\0');
  std::vector<std::size_t> places;
  Add(bytes, columns, 2);
  for (std::size_t i = 0; i < row.size(); ++i) {
    char& bits = mask[fields[i].Numero / 8U];
    if (!IsNull(row[i])) bits = static_cast<char>(bits | 1 << fields[i].Numero % 8);
    const std::size_t size = SizeOf(fields[i].Tipo);
    for (std::size_t put = 0; put < size; put += 8) {
      Add(bytes, put == 0 ? Number(row[i]) : 0, std::min<std::size_t>(size - put, 8));
    }
  }
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (SizeOf(fields[i].Tipo) != 0) continue;
    places.push_back(bytes.size());
    if (const auto* text = std::get_if<std::string>(&row[i])) bytes += Stored(*text);
  }
  places.push_back(bytes.size());
  for (auto place = places.rbegin(); place != places.rend(); ++place) Add(bytes, *place, 2);
  Add(bytes, places.size() - 1, 2);
  return bytes + mask;
}

std::string DataPage(std::uint32_t owner) {
  std::string page(kPage, '\0');
  Put(page, 0, 0x0101, 2);
  Put(page, 4, owner, 4);
  return page;
}

/// A definition as one piece, with places for the map of its pages.
std::string DefinitionOf(char kind, const std::vector<CampoJet>& fields, std::size_t rows,
                         std::uint32_t map) {
  const auto isPiece = [](const CampoJet& each) { return SizeOf(each.Tipo) == 0; };
  std::string content(63, '\0');
  Put(content, 0, 0x0102, 2);
  Put(content, 16, rows, 4);
  content[40] = kind;
  Put(content, 41, std::size_t{fields.back().Numero} + 1, 2);
  Put(content, 43, static_cast<std::size_t>(std::ranges::count_if(fields, isPiece)), 2);
  Put(content, 45, fields.size(), 2);
  Put(content, 55, map, 4);
  Put(content, 59, map, 4);
  std::size_t offset = 0;
  std::size_t piece = 0;
  for (const CampoJet& field : fields) {
    const std::size_t size = SizeOf(field.Tipo);
    std::string column(25, '\0');
    Put(column, 0, field.Tipo, 1);
    Put(column, 5, field.Numero, 2);
    Put(column, 7, size == 0 ? piece++ : 0, 2);
    Put(column, 15, size == 0 ? 0x102 : 3, 2);
    Put(column, 21, size == 0 ? 0 : offset, 2);
    Put(column, 23, size == 0 ? 510 : size, 2);
    offset += size;
    content += column;
  }
  for (const CampoJet& field : fields) {
    const std::string name = utf16::FromUtf8(field.Nome);
    Add(content, name.size(), 2);
    content += name;
  }
  Put(content, 8, content.size(), 4);
  return content;
}

}  // namespace

ScrittoreJet::ScrittoreJet() : pages_(3, std::string(kPage, '\0')) {
  constexpr std::uint32_t kMask = 0x6B39DAC7;
  constexpr std::string_view kSignature("\0\1\0\0Standard Jet DB\0\1", 21);
  pages_[0].replace(0, kSignature.size(), kSignature);
  std::vector<unsigned char> masked(128, 0);
  jet::Rc4(kMask, masked);
  std::ranges::copy(masked, pages_[0].begin() + 0x18);
  pages_[1] = DataPage(0);
}

std::uint32_t ScrittoreJet::NewPage() {
  pages_.emplace_back(kPage, '\0');
  return static_cast<std::uint32_t>(pages_.size() - 1);
}

void ScrittoreJet::Tabella(const std::string& nome, const std::vector<CampoJet>& campi,
                           const RigheJet& righe, const DisposizioneJet& disposizione) {
  last_ = NewPage();
  Voce(nome);
  Table(last_, 'N', campi, righe, disposizione);
}

std::string ScrittoreJet::Prendi() {
  RigheJet rows;
  for (const Entry& each : catalogue_) {
    rows.push_back({std::int64_t{each.Page}, each.Name, std::int64_t{1}});
  }
  Table(kCatalogue, 'S', {{"Id", kInt32, 0}, {"Name", kText, 1}, {"Type", kInt16, 2}}, rows,
        layout_);
  std::string file;
  file.reserve(pages_.size() * kPage);
  for (const std::string& page : pages_) file += page;
  return file;
}

/// Where the bytes lie now, page << 8 | slot.
std::uint32_t ScrittoreJet::Lay(Data& data, const std::string& bytes, unsigned flags) {
  constexpr std::uint16_t kMostSlots = 255;
  if (data.Pages.empty() || data.Free < bytes.size() + 2 || data.Slots == kMostSlots) {
    data.Pages.push_back(NewPage());
    pages_[data.Pages.back()] = DataPage(data.Owner);
    data.Free = kPage - kHead;
    data.Slots = 0;
  }
  std::string& page = pages_[data.Pages.back()];
  const std::size_t at = kHead + data.Free + std::size_t{2} * data.Slots - bytes.size();
  page.replace(at, bytes.size(), bytes);
  Put(page, kHead + std::size_t{2} * data.Slots, at | flags, 2);
  data.Free -= bytes.size() + 2;
  Put(page, 2, data.Free, 2);
  Put(page, 12, ++data.Slots, 2);
  return data.Pages.back() << 8U | (data.Slots - 1U);
}

/// One row in every second slot of a page; those between end at the page's end, so that each of the
/// others has it whole.
void ScrittoreJet::LayOver(Data& data, const std::string& bytes, std::size_t rows) {
  const std::uint32_t hidden = NewPage();
  std::string& page = pages_[hidden];
  page = DataPage(data.Owner);
  const std::size_t at = kPage - bytes.size();
  page.replace(at, bytes.size(), bytes);
  for (std::size_t slot = 0; slot < 2 * rows; ++slot) {
    Put(page, kHead + 2 * slot, (slot % 2 == 0 ? kPage : at) | kDeleted, 2);
  }
  Put(page, 12, 2 * rows, 2);
  for (std::size_t row = 0; row < rows; ++row) {
    std::string pointer;
    Add(pointer, hidden << 8U | (2 * row + 1), 4);
    Lay(data, pointer, kMoved);
  }
}

void ScrittoreJet::LayRow(Data& data, const std::string& bytes, const DisposizioneJet& layout) {
  if (layout.Spostamenti == 0) {
    Lay(data, bytes, 0);
    return;
  }
  std::uint32_t place = Lay(data, bytes, kDeleted);
  for (int i = 1; i <= layout.Spostamenti; ++i) {
    std::string pointer;
    Add(pointer, place, 4);
    place = Lay(data, pointer, i == layout.Spostamenti ? kMoved : kMoved | kDeleted);
  }
}

void ScrittoreJet::Table(std::uint32_t page, char kind, const std::vector<CampoJet>& fields,
                         const RigheJet& rows, const DisposizioneJet& layout) {
  Data data{.Owner = page};
  if (layout.Sovrapposte) {
    LayOver(data, Encoded(rows.front(), fields), rows.size());
  } else if (layout.Ventaglio) {
    std::string pointer;
    Add(pointer, Lay(data, Encoded(rows.front(), fields), kDeleted), 4);
    for (std::size_t i = 0; i < rows.size(); ++i) Lay(data, pointer, kMoved);
  } else {
    for (const auto& row : rows) LayRow(data, Encoded(row, fields), layout);
  }
  Define(page, DefinitionOf(kind, fields, rows.size(), MapOf(data.Pages)));
}

/// A map of pages of the second kind, which reaches any page; where it is, page << 8 | slot.
std::uint32_t ScrittoreJet::MapOf(const std::vector<std::uint32_t>& owned) {
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
  Put(pages_[page], kHead, kPage - row.size(), 2);
  pages_[page].replace(kPage - row.size(), row.size(), row);
  return page << 8U;
}

/// Writes a definition, over as many pages as it takes.
void ScrittoreJet::Define(std::uint32_t page, const std::string& content) {
  constexpr std::size_t kGoesOn = 8;
  std::string rest = content.substr(std::min(kPage, content.size()));
  pages_[page].replace(0, content.size() - rest.size(), content, 0, content.size() - rest.size());
  while (!rest.empty()) {
    const std::uint32_t next = NewPage();
    Put(pages_[page], 4, next, 4);
    Put(pages_[next], 0, 0x0102, 2);
    const std::size_t length = std::min(kPage - kGoesOn, rest.size());
    pages_[next].replace(kGoesOn, length, rest, 0, length);
    rest.erase(0, length);
    page = next;
  }
}

std::vector<CampoJet> CampiList() {
  return {{"ID", kInt32, 0},  {"FileName", kText, 1},   {"FilePath", kText, 2}, {"Alias", kText, 3},
          {"Pos", kInt16, 4}, {"NPlaylist", kInt16, 5}, {"IDSched", kInt32, 6}};
}

std::vector<CampoJet> CampiHead() {
  return {{"ID", kInt32, 0},
          {"NScheduler", kInt16, 1},
          {"Descript", kText, 2},
          {"StartTime", kDate, 3}};
}

std::string FileJet(const RigheJet& lista, const RigheJet& testa,
                    const DisposizioneJet& disposizione) {
  ScrittoreJet file;
  file.Tabella("List", CampiList(), lista, disposizione);
  file.Tabella("HEAD", CampiHead(), testa);
  return file.Prendi();
}

}  // namespace kvr5::test
