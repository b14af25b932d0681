#include "platform/jet/Row.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/jet/Bytes.h"
#include "platform/jet/Text.h"

namespace kvr5::jet {
namespace {

/// The time of day of a date in days since 1899-12-30, whose day doesn't count; before that day the
/// fraction counts forward none the less. To the nearest second of the same day. False where it is
/// no date.
bool TimeOf(double days, DbValue& value) {
  constexpr double kSeconds = 86'400;
  constexpr long kLastSecond = 86'399;
  constexpr double kFarthest = 3'000'000;  // beyond the year 9999
  if (!std::isfinite(days) || std::abs(days) > kFarthest) return false;
  double whole = 0;
  const double part = std::abs(std::modf(days, &whole));
  const auto second =
      static_cast<unsigned>(std::clamp(std::lround(part * kSeconds), 0L, kLastSecond));
  std::string text;
  for (const unsigned number : {second / 3600, second / 60 % 60, second % 60}) {
    if (!text.empty()) text += ':';
    text += {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
  }
  value = std::move(text);
  return true;
}

/// One row and where its parts lie.
class Row {
 public:
  Row(std::span<const unsigned char> content, bool hasPieces)
      : bytes_(content), columns_(bytes_.U16(0)) {
    const std::size_t mask = (std::size_t{columns_} + 7) / 8;
    mask_ = content.size() < mask ? 0 : content.size() - mask;
    places_ = mask_;
    end_ = mask_;
    if (hasPieces) FindPieces();
  }

  bool IsWhole() { return mask_ >= 2 && end_ >= 2 && !bytes_.Spoilt(); }
  /// False where the row contradicts itself.
  bool Get(const Column& column, DbValue& value);

 private:
  void FindPieces() {
    places_ = mask_ < 2 ? 0 : mask_ - 2;
    pieces_ = bytes_.U16(places_);
    const std::size_t size = 2 * (std::size_t{pieces_} + 1);
    end_ = places_ < size ? 0 : places_ - size;
  }
  bool IsNull(const Column& column) {
    const unsigned bits = bytes_.U8(mask_ + column.Number / 8U);
    return (bits >> column.Number % 8U & 1U) == 0;
  }
  std::size_t Place(std::size_t piece) { return bytes_.U16(places_ - 2 * (piece + 1)); }
  bool Fixed(const Column& column, DbValue& value);
  bool Piece(const Column& column, DbValue& value);

  Bytes bytes_;
  std::uint16_t columns_;
  std::size_t mask_ = 0;    ///< where the bits begin
  std::size_t places_ = 0;  ///< where the places end
  std::size_t end_ = 0;     ///< where the values end
  std::uint16_t pieces_ = 0;
};

bool Row::Get(const Column& column, DbValue& value) {
  value = DbValue();
  // A row that is older than a column doesn't know it.
  if (column.Number >= columns_ || IsNull(column)) return true;
  return column.IsFixed ? Fixed(column, value) : Piece(column, value);
}

bool Row::Fixed(const Column& column, DbValue& value) {
  const std::size_t at = std::size_t{2} + column.Offset;
  const std::size_t limit = pieces_ > 0 ? std::min(Place(0), end_) : end_;
  const auto fits = [&](std::size_t size) { return at + size <= limit; };
  switch (static_cast<Type>(column.Kind)) {
    case Type::Byte:
      value = std::int64_t{bytes_.U8(at)};
      return fits(1);
    case Type::Int16:
      value = std::int64_t{static_cast<std::int16_t>(bytes_.U16(at))};
      return fits(2);
    case Type::Int32:
      value = std::int64_t{static_cast<std::int32_t>(bytes_.U32(at))};
      return fits(4);
    case Type::Date:
      return fits(8) && TimeOf(bytes_.F64(at), value);
    case Type::Text:
      break;
  }
  return false;
}

bool Row::Piece(const Column& column, DbValue& value) {
  if (column.Variable >= pieces_ || static_cast<Type>(column.Kind) != Type::Text) return false;
  const std::size_t at = Place(column.Variable);
  const std::size_t end = Place(column.Variable + std::size_t{1});
  if (at < 2 || end > end_ || at > end) return false;
  auto text = StoredText(bytes_.Piece(at, end));
  if (text) value = std::move(*text);
  return text.has_value();
}

}  // namespace

bool ReadRow(std::span<const unsigned char> row, std::span<const Column* const> columns,
             bool hasPieces, std::vector<DbValue>& values) {
  Row parts(row, hasPieces);
  if (!parts.IsWhole()) return false;
  values.resize(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!parts.Get(*columns[i], values[i])) return false;
  }
  return true;
}

}  // namespace kvr5::jet
