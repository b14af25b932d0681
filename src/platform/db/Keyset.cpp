#include "platform/db/Keyset.h"

#include <bit>

namespace kvr5 {
namespace {

std::size_t LowestBit(std::size_t node) {
  return node & (~node + 1);
}

}  // namespace

void Keyset::Clear() {
  keys_.clear();
  lives_.clear();
  sums_.clear();
  living_ = 0;
}

void Keyset::Append(std::int64_t key) {
  keys_.push_back(key);
  lives_.push_back(true);
  ++living_;
  const std::size_t node = keys_.size();
  int sum = 1;
  for (std::size_t bit = 1; bit < LowestBit(node); bit <<= 1U) sum += sums_[node - bit - 1];
  sums_.push_back(sum);
}

void Keyset::Remove(std::size_t slot) {
  lives_[slot] = false;
  --living_;
  for (std::size_t node = slot + 1; node <= sums_.size(); node += LowestBit(node)) {
    --sums_[node - 1];
  }
}

std::size_t Keyset::SlotAt(int place) const {
  std::size_t node = 0;
  for (std::size_t bit = std::bit_floor(sums_.size()); bit > 0; bit >>= 1U) {
    if (node + bit <= sums_.size() && sums_[node + bit - 1] < place) {
      node += bit;
      place -= sums_[node - 1];
    }
  }
  return node;
}

int Keyset::PlaceOf(std::size_t slot) const {
  int place = 0;
  for (std::size_t node = slot + 1; node > 0; node -= LowestBit(node)) place += sums_[node - 1];
  return place;
}

}  // namespace kvr5
