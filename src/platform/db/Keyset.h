#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kvr5 {

/// The keys of a recordset's rows in their fixed order. A row that is gone keeps its slot, so that
/// those behind it stay where they are; places count the living rows alone, from 1. All in at most
/// logarithmic time (a binary indexed tree of living rows).
class Keyset {
 public:
  void Clear();
  void Append(std::int64_t key);
  /// Marks a living row as gone.
  void Remove(std::size_t slot);

  int Living() const { return living_; }
  bool Lives(std::size_t slot) const { return lives_[slot]; }
  std::int64_t Key(std::size_t slot) const { return keys_[slot]; }
  /// The slot of the last row.
  std::size_t LastSlot() const { return keys_.size() - 1; }
  /// The slot of the living row at `place`, which must be from 1 to Living().
  std::size_t SlotAt(int place) const;
  /// How many living rows there are up to and with this slot.
  int PlaceOf(std::size_t slot) const;

 private:
  std::vector<std::int64_t> keys_;
  std::vector<bool> lives_;
  std::vector<int> sums_;  ///< node i counts the living rows of the slots (i - lowest bit of i, i]
  int living_ = 0;
};

}  // namespace kvr5
