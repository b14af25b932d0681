#include "RecordsetModel.h"

#include <algorithm>
#include <tuple>

namespace kvr5::test {

std::int64_t RecordsetModel::Insert(const Track& track) {
  Table[++LastId] = track;
  return LastId;
}

int RecordsetModel::Requery() {
  CancelUpdate();
  keys_.clear();
  for (const auto& [id, track] : Table) keys_.push_back({id});
  std::stable_sort(keys_.begin(), keys_.end(), [this](const Key& a, const Key& b) {
    const Track& x = Table[a.Id];
    const Track& y = Table[b.Id];
    return std::tie(x.Playlist, x.Pos) < std::tie(y.Playlist, y.Pos);
  });
  return Visit(0, 1);
}

int RecordsetModel::RecordCount() const {
  return static_cast<int>(
      std::count_if(keys_.begin(), keys_.end(), [](const Key& key) { return !key.Gone; }));
}

bool RecordsetModel::Bof() const {
  return !adding_ && !OnRow() && (!at_ || RecordCount() == 0);
}

bool RecordsetModel::Eof() const {
  return !adding_ && !OnRow() && (at_ || RecordCount() == 0);
}

int RecordsetModel::AbsolutePosition() const {
  if (adding_ || (OnRow() && keys_[*at_].Gone)) return -1;
  if (Eof()) return -3;
  if (Bof()) return -2;
  int place = 0;
  for (std::size_t i = 0; i <= *at_; ++i) place += keys_[i].Gone ? 0 : 1;
  return place;
}

RecordsetModel::Track* RecordsetModel::Current() {
  if (!OnRow() || keys_[*at_].Gone) return nullptr;
  const auto row = Table.find(keys_[*at_].Id);
  if (row == Table.end()) {
    keys_[*at_].Gone = true;
    return nullptr;
  }
  return &row->second;
}

int RecordsetModel::Visit(std::size_t from, int step) {
  for (auto i = static_cast<std::ptrdiff_t>(from);; i += step) {
    if (i < 0) {
      at_.reset();
      return 0;
    }
    at_ = static_cast<std::size_t>(i);
    if (*at_ >= keys_.size() || Current() != nullptr) return 0;
  }
}

int RecordsetModel::VisitEnd(std::size_t from, int step) {
  Visit(from, step);
  if (OnRow()) return 0;
  at_ = keys_.size();
  return errors::NoCurrentRecord;
}

int RecordsetModel::StoreChanges() {
  return editing_ || adding_ ? Update() : 0;
}

int RecordsetModel::MoveFirst() {
  if (const int error = StoreChanges()) return error;
  return VisitEnd(0, 1);
}

int RecordsetModel::MoveLast() {
  if (const int error = StoreChanges()) return error;
  if (keys_.empty()) return VisitEnd(0, 1);
  return VisitEnd(keys_.size() - 1, -1);
}

int RecordsetModel::MoveNext() {
  if (const int error = StoreChanges()) return error;
  if (Eof()) return errors::NoCurrentRecord;
  return Visit(at_ ? *at_ + 1 : 0, 1);
}

int RecordsetModel::MovePrevious() {
  if (const int error = StoreChanges()) return error;
  if (Bof()) return errors::NoCurrentRecord;
  if (*at_ == 0) {
    at_.reset();
    return 0;
  }
  return Visit(*at_ - 1, -1);
}

int RecordsetModel::AddNew() {
  if (const int error = StoreChanges()) return error;
  adding_ = true;
  return 0;
}

int RecordsetModel::SetPos(int pos) {
  if (!adding_ && Current() == nullptr) return errors::NoCurrentRecord;
  newPos_ = pos;
  editing_ = !adding_;
  return 0;
}

int RecordsetModel::SetName(const std::string& name) {
  if (!adding_ && Current() == nullptr) return errors::NoCurrentRecord;
  newName_ = name;
  editing_ = !adding_;
  return 0;
}

int RecordsetModel::Update() {
  if (adding_) {
    keys_.push_back({Insert({0, newPos_.value_or(0), newName_.value_or("")})});
    at_ = keys_.size() - 1;
    CancelUpdate();
    return 0;
  }
  Track* const row = Current();
  if (row != nullptr && newPos_) row->Pos = *newPos_;
  if (row != nullptr && newName_) row->Name = *newName_;
  CancelUpdate();
  return row != nullptr ? 0 : errors::NoCurrentRecord;
}

void RecordsetModel::CancelUpdate() {
  editing_ = false;
  adding_ = false;
  newPos_.reset();
  newName_.reset();
}

int RecordsetModel::Delete() {
  if (adding_) return errors::NoCurrentRecord;
  CancelUpdate();
  if (Current() == nullptr) return errors::NoCurrentRecord;
  Table.erase(keys_[*at_].Id);
  keys_[*at_].Gone = true;
  return 0;
}

const RecordsetModel::Track* RecordsetModel::Shown() {
  const Track* const row = adding_ ? nullptr : Current();
  if (row == nullptr && !adding_) return nullptr;
  edited_ = row != nullptr ? *row : Track{};
  if (newPos_) edited_.Pos = *newPos_;
  if (newName_) edited_.Name = *newName_;
  return &edited_;
}

std::int64_t RecordsetModel::Id() {
  return adding_ || Current() == nullptr ? 0 : keys_[*at_].Id;
}

}  // namespace kvr5::test
